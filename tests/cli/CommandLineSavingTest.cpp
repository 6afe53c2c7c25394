#include "tests/cli/CommandLineWorld.h"

#include <QRegularExpression>
#include <csignal>
#include <sys/stat.h>

namespace {

using CommandLineSaving = CommandLineWorld;

} // namespace

TEST_F(CommandLineSaving, ShowsTheProgressOfTheCollectionAndStopsWhenInterrupted) {
    constexpr int kPhotos = 60;
    for (int i = 0; i < kPhotos; ++i)
        makePhoto(folder, "photos/" + std::to_string(100 + i) + ".jpg");
    std::map<std::string, std::string> before;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "photos"))
        before[entry.path()] = contentOf(entry.path());
    QProcess process;
    QByteArray errors;
    // Lines may be left out where the work outruns them.
    auto interruptAt = [&](const char* line, const QStringList& command) {
        prepare(process, QStringList{"--json", "--progress", "always"} + command);
        process.setReadChannel(QProcess::StandardError);
        process.start();
        errors.clear();
        while (!QRegularExpression(line).match(errors).hasMatch() && process.waitForReadyRead(60000))
            errors += process.readAllStandardError();
        if (process.state() == QProcess::Running)
            ::kill(static_cast<pid_t>(process.processId()), SIGINT);
        EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return QJsonDocument::fromJson(process.readAllStandardOutput())["photos"];
    };
    for (const char* line : {"image [1-9] of 60", "image 1\\d of 60", "image [23]\\d of 60"}) {
        // While files are read ahead; all may be over when the signal comes.
        const QJsonValue shown = interruptAt(line, {"read", "photos"});
        EXPECT_TRUE(process.exitCode() == 130 || shown.toArray().size() == kPhotos) << process.exitCode();
        ASSERT_TRUE(shown.isArray()) << "the document is whole";
        const QJsonArray photos = shown.toArray();
        for (const QJsonValue photo : photos)
            EXPECT_TRUE(photo["valid"].toBool());
    }
    const QJsonArray photos =
        interruptAt("photo ([3-9]|1\\d) of 60", {"set", "title=interrupted", "photos"}).toArray();
    EXPECT_EQ(process.exitCode(), 130) << errors.toStdString();
    EXPECT_TRUE(errors.contains("Loading image") && errors.contains("Saving to photo"));
    ASSERT_EQ(photos.size(), kPhotos);
    int saved = 0;
    for (const QJsonValue photo : photos) {
        const std::filesystem::path file = folder / photo["path"].toString().toStdString();
        saved += photo["saved"].toBool() ? 1 : 0;
        EXPECT_EQ(contentOf(file) == before.at(file), !photo["saved"].toBool()) << file;
        EXPECT_EQ(tagsOf(file).valueForKey("XMP:Title").isSomething(), photo["saved"].toBool()) << file;
    }
    EXPECT_GE(saved, 3);
    EXPECT_LT(saved, kPhotos);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "photos"), {}), kPhotos)
        << "nothing half written is left";
}

TEST_F(CommandLineSaving, SavesAsTheOptionsSay) {
    const auto photo = makePhoto(folder, "a.jpg", {{"XMP:Label", "l"}});
    const std::string before = contentOf(photo);
    std::filesystem::create_directory(folder / "backup");
    const auto modified = std::filesystem::last_write_time(photo) - std::chrono::hours(48);
    std::filesystem::last_write_time(photo, modified);
    EXPECT_EQ(run({"set", "--sidecar-style", "2", "title=t", "a.jpg"}).status, 0);
    EXPECT_EQ(contentOf(photo), before);
    EXPECT_EQ(tagsOf(folder / "a.xmp").valueForKey("XMP:Label"), KTValue("l"));
    EXPECT_EQ(run({"set", "--sidecar-style", "3", "--backup", "backup", "--preserve-date", "title=u",
                   "creationDate=2014-06-01 12:00:00", "a.jpg"})
                  .status,
              0);
    const std::filesystem::path backup = *std::filesystem::directory_iterator(folder / "backup");
    EXPECT_EQ(contentOf(backup / "a.jpg"), before);
    EXPECT_EQ(tagsOf(backup / "a.xmp").valueForKey("XMP:Title"), KTValue("t"));
    EXPECT_EQ(tagsOf(photo).valueForKey("XMP:Title"), KTValue("u"));
    EXPECT_EQ(tagsOf(folder / "a.xmp").valueForKey("XMP:Title"), KTValue("u"));
    EXPECT_EQ(std::filesystem::last_write_time(photo), modified);

    makePhoto(folder, "b.jpg");
    ASSERT_EQ(::mkfifo((folder / "b.xmp").c_str(), 0600), 0);
    const Result result = run({"--json", "read", "--only", "properties", "a.jpg", "--", "b.jpg"});
    EXPECT_EQ(result.status, 1) << "the second one's sidecar is no file";
    const QJsonArray photos = result.json()["photos"].toArray();
    EXPECT_TRUE(photos[0]["valid"].toBool());
    EXPECT_FALSE(photos[1]["valid"].toBool(true));
    EXPECT_EQ(photos[1]["operations"].toArray().last()["description"].toString(),
              "Read from sidecar file URL.");
}

TEST_F(CommandLineSaving, CtrlCEndsTheBatchAfterThePhotoBeingWritten) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    std::filesystem::create_directory(folder / "backup");
    const std::filesystem::path first = folder / "trip/photos/IMG_0101.jpg";
    bool wasInterruptedMidway = false;
    for (int round = 0; round < 20 && !wasInterruptedMidway; ++round) {
        const std::string before = contentOf(first);
        QProcess process;
        prepare(process, geotagDemo({"--overwrite", "--backup", "backup",
                                     round % 2 == 0 ? "--time-weighted" : "--no-distance"}));
        process.start();
        process.waitForStarted();
        while (process.state() == QProcess::Running && contentOf(first) == before)
            process.waitForFinished(1);
        if (process.state() == QProcess::Running)
            ::kill(pid_t(process.processId()), SIGINT);
        process.waitForFinished();
        const Result result = {process.exitCode(), process.readAllStandardOutput().toStdString(), ""};
        EXPECT_TRUE(result.status == 130 || result.status == 0) << result.status;
        const QJsonArray photos = result.json()["photos"].toArray();
        std::size_t written = 0;
        for (const QJsonValue photo : photos) {
            EXPECT_NE(photo["saved"], false);
            written += photo["saved"].toBool() ? 1 : 0;
        }
        wasInterruptedMidway = result.status == 130 && written < 9;
        EXPECT_GT(written, 0U) << "the first one was written";
        const std::filesystem::path backup = *std::filesystem::directory_iterator(folder / "backup");
        EXPECT_EQ(contentOf(backup / "IMG_0101.jpg"), before);
        std::filesystem::remove_all(folder / "backup");
        std::filesystem::create_directory(folder / "backup");
    }
    EXPECT_TRUE(wasInterruptedMidway);
}

TEST_F(CommandLineSaving, KilledAtAnyMomentItLeavesEveryPhotoOldOrNewAndTheNextRunCarriesOn) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    auto photos = [&] {
        std::map<std::string, std::string> contents;
        for (const auto& entry : std::filesystem::directory_iterator(folder / "trip/photos"))
            if (entry.is_regular_file())
                contents[entry.path().filename()] = contentOf(entry.path());
        return contents;
    };
    // Every round writes other positions than the one before, and is killed once the first photo has been
    // replaced.
    std::size_t killedMidway = 0;
    for (int round = 0; round < 4; ++round) {
        const auto before = photos();
        QProcess process;
        prepare(process, geotagDemo({"--overwrite", round % 2 == 0 ? "--time-weighted" : "--no-distance"}));
        process.start();
        while (process.waitForStarted(), process.state() == QProcess::Running && photos() == before)
            process.waitForFinished(2);
        process.waitForFinished(round * 7);
        process.kill();
        process.waitForFinished();
        const auto after = photos();
        ASSERT_EQ(after.size(), 12U);
        std::size_t changed = 0;
        for (const auto& [name, content] : after) {
            if (content == before.at(name))
                continue;
            ++changed;
            EXPECT_TRUE(content.starts_with("\xff\xd8") && content.ends_with("\xff\xd9"))
                << name << " is whole";
            EXPECT_TRUE(tagsOf(folder / "trip/photos" / name).find("EXIF:GPSLatitude")) << name;
        }
        EXPECT_GT(changed, 0U) << "the round writes";
        killedMidway += changed < 9 ? 1 : 0;
    }
    EXPECT_GT(killedMidway, 0U) << "no round was killed before its end";
    EXPECT_EQ(run(geotagDemo({"--overwrite"})).status, 0);
    // The process may have been killed before its folder had a name of its owner, which stays for a day.
    for (const auto& entry : std::filesystem::directory_iterator(folder / "trip/photos"))
        EXPECT_TRUE(entry.is_regular_file() || std::filesystem::is_empty(entry))
            << entry.path() << " was left behind";
}
