#include "cli/Command.h"
#include "cli/CommandManual.h"
#include "cli/ParserTexts.h"
#include "metadata/KTExifToolFolder.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/defaults/KTSettingsTable.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTAboutText.h"
#include "platform/desktop/KTWriteNote.h"
#include "platform/gazetteer/KTGazetteer.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>

namespace {

struct GlobalOptions {
    std::string settings;
    std::vector<std::string> assignments;
    std::string progress = "auto";
    std::string exifTool;
};

void addGlobalOptions(CLI::App& app, GlobalOptions& options, CommandSession& session) {
    translateParser(app);
    app.set_help_flag("-h,--help", KTLocalizedString("Show this help"));
    app.set_version_flag(
        "--version", [] { return KTAboutText("waymark-cli"); }, KTLocalizedString("Show the version"));
    app.add_flag("--json", session.json,
                 KTLocalizedString("One JSON document on standard output instead of text"));
    app.add_option("--settings", options.settings,
                   KTLocalizedString("Use this settings file instead of the user's"))
        ->type_name("FILE");
    app.add_option("--set", options.assignments, KTLocalizedString("A setting for this run only; repeatable"))
        ->type_name("KEY=VALUE")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
    app.add_option("--library", session.libraryFile,
                   KTLocalizedString("The track library file (\":memory:\" for none kept)"))
        ->type_name("FILE");
    app.add_option("--progress", options.progress, KTLocalizedString("Show progress on standard error"))
        ->check(CLI::IsMember({"auto", "always", "never"}));
    app.add_option("--exiftool", options.exifTool,
                   KTLocalizedString("Use this Image::ExifTool library folder"))
        ->type_name("FOLDER");
    app.require_subcommand(1);
    app.fallthrough();
}

void apply(const GlobalOptions& options, CommandSession& session) {
    if (!options.settings.empty() && !KTUserDefaults::useDomain(options.settings))
        throw UsageError{
            KTStringWithFormat(KTLocalizedString("the settings file %@ cannot be read"), {options.settings})};
    for (const std::string& text : options.assignments) {
        auto assignment = KTSettingsTable::parseAssignment(text);
        if (!assignment.error.empty())
            throw UsageError{assignment.error};
        KTUserDefaults::standardUserDefaults().setValueForThisRun(assignment.key, assignment.value);
    }
    if (const auto problem = KTUseExifToolFolder(options.exifTool)) {
        if (!options.exifTool.empty())
            throw UsageError{*problem};
        session.message(*problem); // a setting that no longer holds keeps nobody from working
    }
    const std::string units = KTUserDefaults::standardUserDefaults().textForKey("distanceUnits");
    KTUnitConverter::sharedUnitConverter().setDistanceUnits(
        KTUnitConverter::unitsFromName(units).value_or(KTUnitConverter::Units::Metric));
    session.progress = options.progress == "always"  ? CommandSession::Progress::Always
                       : options.progress == "never" ? CommandSession::Progress::Never
                                                     : CommandSession::Progress::Auto;
}

/// The arguments as the parser takes them, the last one first. It ends a list of paths at "--", which matters
/// only where an argument after it begins with a dash.
std::vector<std::string> argumentsForParser(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto mark = std::ranges::find(arguments, "--");
    if (mark != arguments.end() &&
        std::none_of(mark + 1, arguments.end(), [](const auto& text) { return text.starts_with('-'); }))
        arguments.erase(mark);
    std::ranges::reverse(arguments);
    return arguments;
}

int runWithApplication(Command& command, CommandSession& session, int argc, char** argv) {
    std::unique_ptr<QCoreApplication> application;
    if (command.drawsPictures()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    for (const std::filesystem::path& file : KTWriteNote::takeLeftBehind())
        session.message(KTStringWithFormat(
            KTLocalizedString(
                "a former run ended while it wrote %@; the file holds what it held before, or its "
                "new version as a whole"),
            {file.string()}));
    const struct Ending {
        ~Ending() { KTGazetteer::sharedGazetteer().close(); }
    } ending; // while there still is an application
    return command.run(session);
}

} // namespace

int runCommandLine(int argc, char** argv) {
    CommandSession session;
    GlobalOptions options;
    CommandList commands;
    CLI::App app(KTLocalizedString("Waymark geotags photos from GPS tracks and edits their metadata."),
                 "waymark-cli");
    addGlobalOptions(app, options, session);
    addReadCommand(app, commands);
    addFieldsCommand(app, commands);
    addSetCommand(app, commands);
    addGeotagCommand(app, commands);
    addPlaceCommand(app, commands);
    addZoneCommand(app, commands);
    addDateCommands(app, commands);
    addMapCommand(app, commands);
    addTracksCommands(app, commands);
    addExportCommand(app, commands);
    addDemoCommand(app, commands);
    addDoctorCommand(app, commands);
    app.add_flag_function(
           "--man-page",
           [&app](std::int64_t) { throw CLI::CallForVersion(manualOfCommandLine(app).roff(), 0); })
        ->group("")
        ->trigger_on_parse();
    try {
        app.parse(argumentsForParser(argc, argv));
        apply(options, session);
        for (const ParsedCommand& entry : commands)
            if (entry.parser->parsed())
                return runWithApplication(*entry.command, session, argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kExitDone : kExitUsage;
    } catch (const UsageError& error) {
        session.message(error.message);
    }
    return kExitUsage;
}
