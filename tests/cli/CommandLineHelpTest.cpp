#include "tests/cli/CommandLineWorld.h"

#include <QRegularExpression>

namespace {

using CommandLineHelp = CommandLineWorld;

} // namespace

TEST_F(CommandLineHelp, DoctorFindsWhatIsWrong) {
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

TEST_F(CommandLineHelp, TakesNoExifToolThatItCannotUse) {
    std::filesystem::create_directories(folder / "old/Image");
    folder.file("old/Image/ExifTool.pm", "package Image::ExifTool;\n$VERSION = '9.10';\n");
    EXPECT_EQ(run({"--exiftool", "old", "fields"}).status, 2);
    EXPECT_EQ(run({"--exiftool", "nowhere", "fields"}).status, 2);
    const Result setting = run({"--set", "exifToolFolder=old", "fields"});
    EXPECT_EQ(setting.status, 0) << "its own does";
    EXPECT_NE(setting.errors.find("9.10"), std::string::npos) << setting.errors;
}

TEST_F(CommandLineHelp, ManualPageTellsOfEveryCommandAndOption) {
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
