#include "ui/application/StartOptions.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTAboutText.h"

KTManualPage StartOptions::manual() {
    return {.program = "waymark",
            .summary = KTLocalizedString("give photos the places where they were taken"),
            .synopses = {KTLocalizedString("[OPTIONS] [FILE...]")},
            .description = KTLocalizedString(
                "The desktop application of Waymark. It opens the given photos, folders and tracks. Where it "
                "runs already, the running one opens them."),
            .sections = {
                {KTLocalizedString("OPTIONS"),
                 {},
                 {{KTLocalizedString("--exiftool FOLDER"),
                   KTLocalizedString("Use this Image::ExifTool library folder")},
                  {"--help", KTLocalizedString("Show this help")},
                  {"--version", KTLocalizedString("Show the version")}}},
                {KTLocalizedString("ENVIRONMENT"),
                 {},
                 {{"LANGUAGE, LC_ALL, LC_MESSAGES, LANG",
                   KTLocalizedString("The language: English, French, German or Spanish")},
                  {"WAYMARK_LOG", KTLocalizedString("“full” keeps names and positions in the log file")}}},
                {KTLocalizedString("FILES"),
                 {},
                 {{"~/.config/waymark/waymark.ini", KTLocalizedString("settings")},
                  {"~/.local/share/waymark/tracks.sqlite", KTLocalizedString("the track library")},
                  {"~/.local/state/waymark/waymark.log", KTLocalizedString("the log")}}},
                {KTLocalizedString("SEE ALSO"), "waymark-cli(1), exiftool(1p), gpsbabel(1)", {}}}};
}

StartOptions StartOptions::of(int argc, char** argv) {
    StartOptions options;
    bool takesOptions = true;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (!takesOptions || !argument.starts_with('-')) {
            options.files.push_back(std::filesystem::absolute(argument));
        } else if (argument == "--") {
            takesOptions = false;
        } else if (argument == "--help" || argument == "-h") {
            options.answer = manual().help();
        } else if (argument == "--version") {
            options.answer = KTAboutText("Waymark");
        } else if (argument == "--man-page") {
            options.answer = manual().roff();
        } else if (argument == "--exiftool" && i + 1 < argc) {
            options.exifToolFolder = std::filesystem::absolute(argv[++i]);
        } else {
            options.mistake = KTStringWithFormat(KTLocalizedString("There is no option %@."), {argument});
        }
    }
    return options;
}
