#include "tests/support/TestPhotos.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <csignal>
#include <gtest/gtest.h>
#include <set>
#include <sys/stat.h>

namespace {

struct Result {
    int status = -1;
    std::string output, errors;
    const QJsonValue json() const {
        return QJsonDocument::fromJson(QByteArray::fromStdString(output)).object();
    }
};

/// The real program, run in a folder of its own with a configuration of its own.
class CommandLine : public testing::Test {
protected:
    void prepare(QProcess& process, const QStringList& arguments) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", folder.path().c_str());
        environment.remove("XDG_CONFIG_HOME");
        environment.remove("XDG_DATA_HOME");
        environment.remove("XDG_STATE_HOME");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path().c_str());
        process.setProgram(WAYMARK_CLI);
        process.setArguments(arguments);
    }

    Result run(const QStringList& arguments) const {
        QProcess process;
        prepare(process, arguments);
        process.start();
        process.waitForFinished(120000);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
    }

    QStringList geotagDemo(const QStringList& more = {}) const {
        return QStringList{"--json",        "--library",   ":memory:", "geotag",     "--track",
                           "trip/walk.gpx", "--time-zone", "+02:00",   "trip/photos"} +
               more;
    }

    TemporaryFolder folder;
};

std::set<std::string> outcomes(const QJsonValue& json) {
    std::set<std::string> result;
    const QJsonArray photos = json["photos"].toArray();
    for (const QJsonValue photo : photos)
        result.insert(QFileInfo(photo["path"].toString()).fileName().toStdString() + " " +
                      photo["outcome"].toString().toStdString() + " " +
                      photo["point"].toString().toStdString());
    return result;
}

} // namespace

TEST_F(CommandLine, DemoGeotagsItsTripAndTheFilesShowIt) {
    Result demo = run({"demo", "trip"});
    ASSERT_EQ(demo.status, 0) << demo.errors;
    EXPECT_NE(demo.output.find("9 photos can be geotagged"), std::string::npos) << demo.output;
    KTTagDictionary tags = tagsOf(folder / "trip/photos/IMG_0101.jpg");
    EXPECT_NEAR(std::stod(tags.valueForKey("EXIF:GPSLatitude").description()), 47.05, 0.05);
    EXPECT_EQ(tags.valueForKey("EXIF:GPSLatitudeRef"), KTValue("N"));
    EXPECT_FALSE(tagsOf(folder / "trip/photos/IMG_0111.jpg").find("EXIF:GPSLatitude")) << "no date";
    EXPECT_EQ(run({"demo", "trip"}).status, 1) << "a folder that holds something is not touched";
}

TEST_F(CommandLine, GeotagJudgesReportsAndCarriesOn) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    Result again = run(geotagDemo());
    EXPECT_EQ(again.status, 0) << again.errors;
    EXPECT_EQ(again.json()["counts"]["previouslyGeotaggedFailures"].toInt(), 9);
    EXPECT_EQ(again.json()["counts"]["timeCriteriaFailures"].toInt(), 2);
    EXPECT_EQ(again.json()["counts"]["noDateTimeOriginalFailures"].toInt(), 1);

    const std::string before = contentOf(folder / "trip/photos/IMG_0102.jpg");
    Result dry = run(geotagDemo({"--overwrite", "--time-weighted", "--dry-run"}));
    EXPECT_EQ(dry.json()["counts"]["totalSuccesses"].toInt(), 9);
    EXPECT_TRUE(outcomes(dry.json()).contains("IMG_0102.jpg geotagged timeWeighted"));
    EXPECT_EQ(contentOf(folder / "trip/photos/IMG_0102.jpg"), before);
    Result wide = run(geotagDemo({"--no-time", "--dry-run"}));
    EXPECT_TRUE(outcomes(wide.json()).contains("IMG_0108.jpg geotagged next") ||
                outcomes(wide.json()).contains("IMG_0112.jpg geotagged preceding"));
    auto cityOf = [](const Result& result) {
        return result.json()["photos"].toArray()[0].toObject()["city"].toString();
    };
    EXPECT_EQ(cityOf(dry), "Luzern");
    EXPECT_EQ(tagsOf(folder / "trip/photos/IMG_0101.jpg").valueForKey("XMP:Country"), KTValue("Switzerland"));
    EXPECT_EQ(cityOf(run(geotagDemo({"--overwrite", "--no-place", "--dry-run"}))), "");
    Result noServer = run(QStringList{"--set", "reverseGeocoder=server"} + geotagDemo({"--overwrite"}));
    EXPECT_EQ(noServer.status, 0) << "the position is written all the same";
    EXPECT_NE(noServer.errors.find("No server is set"), std::string::npos) << noServer.errors;
    Result otherZone = run(geotagDemo({"--time-zone", "Z", "--dry-run", "--overwrite"}));
    EXPECT_EQ(otherZone.status, 2) << "the zone is given twice";
}

TEST_F(CommandLine, ReadsAndSetsPhotos) {
    makePhoto(
        folder, "a.jpg",
        {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}, {"EXIF:FNumber", *KTDecimal::fromText("2.8")}});
    makePhoto(folder, "sub/B.jpg");
    Result set = run({"--set", "defaultAssumedTimeZoneOffset=7200", "set", "title=Ein = Titel",
                      "keywords=lake|walk", "rating=3", ".", "a.jpg"});
    EXPECT_EQ(set.status, 0) << set.errors;
    Result read = run({"--json", "--set", "defaultAssumedTimeZoneOffset=7200", "read", "."});
    const QJsonArray photos = read.json()["photos"].toArray();
    ASSERT_EQ(photos.size(), 2);
    const QJsonObject properties = photos[0]["properties"].toObject();
    EXPECT_EQ(properties["title"].toString(), "Ein = Titel");
    EXPECT_EQ(properties["keywords"].toArray().size(), 2);
    EXPECT_EQ(properties["rating"].toInt(), 3);
    EXPECT_EQ(properties["dateTimeOriginalComponents"].toString(), "2014-06-01T12:00:00");
    EXPECT_EQ(properties["dateTimeOriginalTimeZone"].toString(), "+02:00");
    EXPECT_EQ(properties["dateTimeOriginal"].toString(), "2014-06-01T10:00:00Z");
    EXPECT_FALSE(photos[1]["properties"].toObject().contains("dateTimeOriginal"));
    EXPECT_TRUE(photos[0]["flags"]["hasIPTCBlock"].isBool());
    EXPECT_EQ(run({"set", "title=", "a.jpg"}).status, 0);
    EXPECT_FALSE(tagsOf(folder / "a.jpg").find("XMP:Title"));
    Result text = run({"read", "a.jpg"});
    EXPECT_NE(text.output.find("Rating: 3"), std::string::npos) << text.output;
}

TEST_F(CommandLine, SetsTheZoneAndShowsInstants) {
    makePhoto(folder, "a.jpg", {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}});
    makePhoto(folder, "b.jpg");
    const std::string before = contentOf(folder / "a.jpg");
    const Result zone = run({"zone", "+02:00", "."});
    EXPECT_EQ(zone.status, 0) << zone.errors;
    EXPECT_EQ(zone.output, "./a.jpg: 2014-06-01T10:00:00Z\n./b.jpg: no capture date\n");
    EXPECT_EQ(contentOf(folder / "a.jpg"), before);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.xmp"));
    const QJsonValue read = run({"--json", "read", "a.jpg"}).json()["photos"][0]["properties"];
    EXPECT_EQ(read["dateTimeOriginal"].toString(), "2014-06-01T10:00:00Z") << "the zone stays set";
    const Result region = run({"--json", "zone", "Asia/Kolkata", "a.jpg"});
    EXPECT_EQ(region.json()["timeZone"].toString(), "+05:30");
    EXPECT_EQ(region.json()["photos"][0]["dateTimeOriginal"].toString(), "2014-06-01T06:30:00Z");
    EXPECT_NE(region.errors.find("fixed offset +05:30"), std::string::npos) << region.errors;
    EXPECT_EQ(run({"zone", "--", "-03:00", "a.jpg"}).output, "a.jpg: 2014-06-01T15:00:00Z\n");
}

TEST_F(CommandLine, ShowsTheProgressOfTheCollectionAndStopsWhenInterrupted) {
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

TEST_F(CommandLine, NamesPlaces) {
    const QJsonObject basel = run({"--json", "place", "47.5581", "7.5878"}).json().toObject();
    EXPECT_EQ(basel["description"].toString(), "Basel, Basel-City, Switzerland");
    EXPECT_EQ(basel["countryCode"].toString(), "CH");
    EXPECT_EQ(run({"place", "--", "-54.8019", "-68.303"}).output, "Ushuaia, Tierra del Fuego, Argentina\n");
    EXPECT_TRUE(run({"--json", "place", "30", "--", "-40"}).json().toObject().isEmpty()) << "the open sea";
    EXPECT_EQ(run({"place", "91", "0"}).status, 2);
    EXPECT_EQ(run({"--set", "reverseGeocoder=server", "place", "47", "7"}).status, 1);
}

TEST_F(CommandLine, SavesAsTheOptionsSay) {
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

TEST_F(CommandLine, KeepsATrackLibrary) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    EXPECT_EQ(run({"tracks", "import", "trip/walk.gpx"}).status, 0);
    Result twice = run({"--json", "tracks", "import", "trip/walk.gpx"});
    EXPECT_TRUE(twice.json()["imports"][0]["alreadyImported"].toBool());
    Result list = run({"--json", "tracks", "list"});
    ASSERT_EQ(list.json()["tracks"].toArray().size(), 2) << "the track and the waypoint";
    const QString id = QString::number(list.json()["tracks"][0]["id"].toInt());
    Result exported = run({"tracks", "export", id});
    EXPECT_NE(exported.output.find("<gpx"), std::string::npos);
    Result library =
        run({"--json", "geotag", "--time-zone", "+02:00", "--overwrite", "--dry-run", "trip/photos"});
    EXPECT_EQ(library.json()["counts"]["totalSuccesses"].toInt(), 9);
    EXPECT_EQ(run({"tracks", "remove", id}).status, 0);
    EXPECT_EQ(run({"tracks", "remove", id}).status, 1);
    EXPECT_EQ(run({"tracks", "import", "trip/photos/IMG_0101.jpg"}).status, 1);
}

TEST_F(CommandLine, SaysWhatIsWrongAndTouchesNothing) {
    auto file = makePhoto(folder, "a.jpg");
    const std::string before = contentOf(file);
    for (const QStringList& arguments : {QStringList{},
                                         {"nonsense"},
                                         {"--set", "noSuchKey=1", "read", "a.jpg"},
                                         {"set", "a.jpg"},
                                         {"set", "noSuchField=1", "a.jpg"},
                                         {"set", "cameraMake=x", "a.jpg"},
                                         {"set", "rating=many", "a.jpg"},
                                         {"set", "dateTimeOriginalComponents=yesterday", "a.jpg"},
                                         {"geotag", "--time-zone", "Mars", "a.jpg"},
                                         {"zone", "Mars", "a.jpg"},
                                         {"zone", "Z"},
                                         {"geotag", "--sidecar-style", "7", "a.jpg"},
                                         {"geotag"},
                                         {"tracks"}})
        EXPECT_EQ(run(arguments).status, 2) << arguments.join(" ").toStdString();
    EXPECT_EQ(contentOf(file), before);
    EXPECT_EQ(run({"read", "missing.jpg"}).status, 1);
    folder.file("broken.jpg", std::string_view("\1\2\3\4\0\6", 6));
    Result broken = run({"--json", "geotag", "broken.jpg"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_EQ(broken.json()["photos"][0]["outcome"].toString(), "unreadable");
    EXPECT_EQ(run({"geotag", "--track", "missing.gpx", "a.jpg"}).status, 1);
    EXPECT_EQ(run({"--help"}).status, 0);
    EXPECT_EQ(run({"--version"}).status, 0);
}

TEST_F(CommandLine, CtrlCEndsTheBatchAfterThePhotoBeingWritten) {
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

TEST_F(CommandLine, KilledAtAnyMomentItLeavesEveryPhotoOldOrNewAndTheNextRunCarriesOn) {
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

TEST_F(CommandLine, DateToolsChangeSaveAndPrint) {
    makePhoto(folder, "a.jpg",
              {{"EXIF:DateTimeOriginal", "2014:05:03 10:00:00"}, {"EXIF:CreateDate", "2014:05:03 10:00:02"}});
    makePhoto(folder, "none.png");
    auto tag = [&](const char* key) { return tagsOf(folder / "a.jpg").valueForKey(key).description(); };
    const Result shift = run({"--json", "shift", "--digitized", "--", "-91785", "."});
    EXPECT_EQ(shift.status, 0) << shift.errors;
    EXPECT_EQ(tag("EXIF:DateTimeOriginal"), "2014:05:02 08:30:15");
    EXPECT_EQ(tag("EXIF:CreateDate"), "2014:05:02 08:30:17");
    const QJsonArray shifted = shift.json()["photos"].toArray();
    ASSERT_EQ(shifted.size(), 2);
    EXPECT_EQ(shifted[0]["dateTimeOriginalComponents"].toString(), "2014-05-02T08:30:15");
    EXPECT_TRUE(shifted[0]["saved"].toBool());
    EXPECT_FALSE(shifted[1]["saved"].toBool()) << "has no date";

    EXPECT_EQ(run({"copy-date", "--from", "digitized", "--to", "original", "a.jpg"}).status, 0);
    EXPECT_EQ(tag("EXIF:DateTimeOriginal"), "2014:05:02 08:30:17");
    EXPECT_EQ(run({"set-date", "2014-05-03 17:41:09", "--precision", "month", "."}).status, 0);
    const Result read = run({"--json", "read", "--only", "properties", "."});
    for (const QJsonValue photo : read.json()["photos"].toArray()) {
        EXPECT_EQ(photo["properties"]["dateTimeOriginalComponents"].toString(), "2014-05");
        EXPECT_TRUE(photo["properties"]["dateTimeOriginal"].isUndefined()) << "no instant is made up";
    }
    for (const QStringList& arguments : {QStringList{"set-date", "yesterday", "."},
                                         {"set-date", "2014", "."},
                                         {"copy-date", "--from", "original", "--to", "original", "."},
                                         {"shift", "soon", "."}})
        EXPECT_EQ(run(arguments).status, 2) << arguments.join(" ").toStdString();
}

TEST_F(CommandLine, MapDrawsPhotosAndTracksWithoutADisplay) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    const auto sizeOf = [](const std::string& png) {
        const auto number = [&](std::size_t at) {
            return static_cast<unsigned char>(png.at(at)) * 256 + static_cast<unsigned char>(png.at(at + 1));
        };
        return std::pair(number(18), number(22)); // the low halves of the header's width and height
    };
    const QStringList all = {"map",     "--out", "all.png", "--size",        "600x400",
                             "--scale", "2",     "--track", "trip/walk.gpx", "trip/photos"};
    const Result drawn = run(all);
    ASSERT_EQ(drawn.status, 0) << drawn.errors;
    const std::string picture = contentOf(folder / "all.png");
    EXPECT_EQ(picture.substr(1, 3), "PNG");
    EXPECT_EQ(sizeOf(picture), std::pair(1200, 800));
    ASSERT_EQ(run(QStringList(all) << "--dark").status, 0);
    EXPECT_NE(contentOf(folder / "all.png"), picture);

    EXPECT_EQ(run({"map", "--out", "world.png", "--size", "320x200"}).status, 0);
    EXPECT_EQ(sizeOf(contentOf(folder / "world.png")), std::pair(320, 200));
    EXPECT_EQ(run({"map", "--out", "x.png", "--size", "320"}).status, 2);
    EXPECT_EQ(run({"map", "--out", "x.png", "--tiles", "nobody's"}).status, 2);
    EXPECT_EQ(run({"map", "--out", "none/x.png"}).status, 1);
    EXPECT_EQ(run({"map", "--out", "x.png", "none.jpg"}).status, 1);
}

TEST_F(CommandLine, DoctorFindsWhatIsWrong) {
    const auto resultOf = [](const Result& result, const QString& subject) {
        const QJsonArray findings = result.json()["findings"].toArray();
        for (const QJsonValue finding : findings)
            if (finding["subject"].toString() == subject)
                return finding["result"].toString() + (finding["advice"].isString() ? " with advice" : "");
        return QString("not looked at");
    };
    const Result healthy = run({"--json", "doctor"});
    EXPECT_EQ(healthy.status, 0) << healthy.output;
    for (const char* subject :
         {"Image::ExifTool", "Data of the program", "Settings", "Track library", "Cache folder"})
        EXPECT_EQ(resultOf(healthy, subject), "ok") << subject;
    EXPECT_FALSE(std::filesystem::exists(folder / ".local/share/waymark/tracks.sqlite"))
        << "it makes nothing";

    std::filesystem::create_directories(folder / "library/Image");
    folder.file("library/Image/ExifTool.pm",
                "package Image::ExifTool;\n$VERSION = '13.00';\ndie 'broken';\n");
    folder.file("tracks", "not a library");
    const Result ill =
        run({"--json", "--exiftool", "library", "--library", "tracks", "doctor", "missing-folder"});
    EXPECT_EQ(ill.status, 1);
    EXPECT_EQ(resultOf(ill, "Image::ExifTool"), "failure with advice") << ill.output;
    EXPECT_EQ(resultOf(ill, "Track library"), "failure with advice");
    EXPECT_EQ(resultOf(ill, "missing-folder"), "failure");
}

TEST_F(CommandLine, TakesNoExifToolThatItCannotUse) {
    std::filesystem::create_directories(folder / "old/Image");
    folder.file("old/Image/ExifTool.pm", "package Image::ExifTool;\n$VERSION = '9.10';\n");
    EXPECT_EQ(run({"--exiftool", "old", "fields"}).status, 2);
    EXPECT_EQ(run({"--exiftool", "nowhere", "fields"}).status, 2);
    const Result setting = run({"--set", "exifToolFolder=old", "fields"});
    EXPECT_EQ(setting.status, 0) << "its own does";
    EXPECT_NE(setting.errors.find("9.10"), std::string::npos) << setting.errors;
}

TEST_F(CommandLine, ManualPageTellsOfEveryCommandAndOption) {
    const Result page = run({"--man-page"});
    ASSERT_EQ(page.status, 0) << page.errors;
    EXPECT_TRUE(page.output.starts_with(".TH WAYMARK\\-CLI 1"));
    const Result help = run({"geotag", "--help"});
    const QRegularExpression option("--[a-z-]+");
    auto options = option.globalMatch(QString::fromStdString(help.output));
    ASSERT_TRUE(options.hasNext());
    while (options.hasNext()) {
        QString name = options.next().captured();
        EXPECT_TRUE(name == "--help" ||
                    page.output.find(name.replace("-", "\\-").toStdString()) != std::string::npos)
            << name.toStdString();
    }
    for (const char* command : {"tracks import", "copy\\-date", "set\\-date", "doctor", "map"})
        EXPECT_NE(page.output.find(".SH \"" + std::string(command)), std::string::npos) << command;
}

TEST_F(CommandLine, ExportsPhotosWithAPlugInAndReplacesNothingUnasked) {
    makePhoto(folder, "photos/a.jpg", {{"XMP:Title", "market"}, {"EXIF:GPSLatitude", KTValue(46)}});
    makePhoto(folder, "photos/b.jpg");
    const QStringList command = {"--json", "export",  "--plugin", "folder", "--to",   "out",
                                 "--size", "100x100", "--type",   "png",    "photos", "--exclude-location"};
    const Result first = run(command);
    EXPECT_EQ(first.status, 0) << first.errors;
    EXPECT_EQ(first.json()["result"].toString().toStdString(), "Exported 2 photos.");
    EXPECT_EQ(first.json()["destination"].toString().toStdString(), "file://" + (folder / "out").string());
    const auto tags = tagsOf(folder / "out/a.png");
    EXPECT_EQ(tags.valueForKey("PNG:ImageWidth"), KTValue(100));
    EXPECT_EQ(tags.valueForKey("PNG:ImageHeight"), KTValue(75));
    EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("market"));
    EXPECT_FALSE(tags.hasValue("EXIF:GPSLatitude"));

    folder.file("out/a.png", "mine");
    const Result refused = run(command);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(contentOf(folder / "out/a.png"), "mine");
    EXPECT_TRUE(refused.json()["result"].toString().contains("A file of this name exists already."));
    EXPECT_EQ(run(command + QStringList{"--overwrite"}).status, 0);
    EXPECT_NE(contentOf(folder / "out/a.png"), "mine");

    EXPECT_EQ(run({"export", "--plugin", "nothing", "--to", "out", "photos"}).status, 2);
    EXPECT_EQ(run({"export", "--plugin", "folder", "--to", "out", "--size", "100", "photos"}).status, 2);
    EXPECT_EQ(run({"export", "--plugin", "folder", "--to", "out", "--type", "odt", "photos"}).status, 2);
    EXPECT_EQ(run({"export", "--plugin", "folder", "--to", "out", "missing"}).status, 1);
    EXPECT_EQ(run({"export", "--plugin", "folder", "--to", "photos/a.jpg/x", "photos"}).status, 1);
}

TEST_F(CommandLine, AnInterruptedExportLeavesFinishedPhotosWhole) {
    constexpr int kPhotos = 40;
    for (int i = 0; i < kPhotos; ++i)
        makePhoto(folder, "photos/" + std::to_string(100 + i) + ".jpg");
    QProcess process;
    prepare(process, {"--progress", "always", "export", "--plugin", "Folder", "--to", "out", "--size",
                      "2000x2000", "photos"});
    process.setReadChannel(QProcess::StandardError);
    process.start();
    QByteArray errors;
    while (!QRegularExpression("photo ([4-9]|1\\d) of 40").match(errors).hasMatch() &&
           process.waitForReadyRead(60000))
        errors += process.readAllStandardError();
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 130) << errors.toStdString();
    int finished = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "out")) {
        const std::string content = contentOf(entry.path());
        EXPECT_TRUE(content.starts_with("\xff\xd8") && content.ends_with("\xff\xd9")) << entry.path();
        EXPECT_EQ(tagsOf(entry.path()).valueForKey("File:ImageWidth"), KTValue(2000));
        ++finished;
    }
    EXPECT_GE(finished, 3);
    EXPECT_LT(finished, kPhotos);
    const std::string told = process.readAllStandardOutput().toStdString();
    EXPECT_EQ(told, "Export canceled. Exported " + std::to_string(finished) + " photos.\n");
}
