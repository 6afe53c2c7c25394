#include "cli/CommandManual.h"

#include "platform/common/KTLocalizedString.h"

#include <CLI/CLI.hpp>

namespace {

bool isPositional(const CLI::Option& option) {
    return option.get_positional();
}

/// "--settings FILE", "PATH..."
KTManualPage::Entry entryOf(const CLI::Option& option) {
    std::string name = isPositional(option) ? option.get_name(true) : option.get_name(false, true);
    if (!isPositional(option) && option.get_items_expected_max() > 0 && !option.get_type_name().empty())
        name += " " + option.get_type_name();
    return {name, option.get_description()};
}

bool isShown(const CLI::Option& option) {
    return !option.get_group().empty();
}

void addOptions(const CLI::App& app, std::vector<KTManualPage::Entry>& entries) {
    for (const bool positional : {true, false})
        for (const CLI::Option* option : app.get_options())
            if (isShown(*option) && isPositional(*option) == positional)
                entries.push_back(entryOf(*option));
}

/// "geotag [OPTIONS] PATH..."
std::string usageOf(const CLI::App& command, const std::string& before) {
    std::string usage = before + command.get_name();
    for (const CLI::Option* option : command.get_options())
        if (isShown(*option) && isPositional(*option))
            usage += (option->get_required() ? " " : " [") + option->get_name(true) +
                     (option->get_items_expected_max() > 1 && !option->get_name(true).ends_with("...") ? "..."
                                                                                                       : "") +
                     (option->get_required() ? "" : "]");
    return usage;
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App*) { return true; });
}

void addCommand(const CLI::App& command, const std::string& before, KTManualPage& page) {
    const std::vector<const CLI::App*> parts = commandsOf(command);
    for (const CLI::App* part : parts)
        addCommand(*part, before + command.get_name() + " ", page);
    if (!parts.empty())
        return;
    KTManualPage::Section section;
    section.title = usageOf(command, before);
    section.text = command.get_description();
    addOptions(command, section.entries);
    std::erase_if(section.entries,
                  [](const auto& entry) { return entry.name.find("--help") != std::string::npos; });
    page.sections.push_back(std::move(section));
}

} // namespace

KTManualPage manualOfCommandLine(const CLI::App& app) {
    KTManualPage page;
    page.program = app.get_name();
    page.summary = KTLocalizedString("geotag photos from GPS tracks and edit their metadata");
    page.synopses = {KTLocalizedString("[GLOBAL OPTIONS] COMMAND [OPTIONS] PATH...")};
    page.description =
        app.get_description() + "\n\n" +
        KTLocalizedString(
            "A path may be a photo, an XMP sidecar or a folder, which is searched at any depth. Photos "
            "are written in one step: whatever happens, a file holds what it held before or its new "
            "version as a whole.");
    KTManualPage::Section global;
    global.title = KTLocalizedString("GLOBAL OPTIONS");
    addOptions(app, global.entries);
    page.sections.push_back(std::move(global));
    for (const CLI::App* command : commandsOf(app))
        addCommand(*command, "", page);
    page.sections.push_back(
        {KTLocalizedString("EXIT STATUS"),
         {},
         {{"0", KTLocalizedString("Everything was done.")},
          {"1",
           KTLocalizedString("Something failed; the rest was done. What failed and why is in the output.")},
          {"2", KTLocalizedString("The arguments are wrong; nothing was read or written.")},
          {"130", KTLocalizedString("It was interrupted: the photo being written was finished.")}}});
    page.sections.push_back({KTLocalizedString("SEE ALSO"), "waymark(1), exiftool(1p), gpsbabel(1)", {}});
    return page;
}
