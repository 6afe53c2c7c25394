#include "tests/cli/CommandLineWorld.h"

#include <QRegularExpression>
#include <csignal>

namespace {

using CommandLineExport = CommandLineWorld;

} // namespace

TEST_F(CommandLineExport, ExportsPhotosWithAPlugInAndReplacesNothingUnasked) {
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

TEST_F(CommandLineExport, AnInterruptedExportLeavesFinishedPhotosWhole) {
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
