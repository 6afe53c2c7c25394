#include "cli/SaveOptions.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/defaults/KTUserDefaults.h"

#include <CLI/CLI.hpp>
#include <filesystem>

void SaveOptions::addTo(CLI::App& parser) {
    parser
        .add_option("--sidecar-style", sidecarStyle,
                    KTLocalizedString(
                        "0 image, 1 image or sidecar by type, 2 sidecar, 3 both, 4 sidecar where one exists"))
        ->check(CLI::Range(0, 4));
    parser
        .add_option("--backup", folder,
                    KTLocalizedString("Keep backups there, in a folder named by date and time"))
        ->check(CLI::ExistingDirectory);
    parser.add_flag("--preserve-date", preservesDate,
                    KTLocalizedString("Keep the files' modification dates"));
}

void SaveOptions::apply() const {
    KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    if (preservesDate)
        defaults.setValueForThisRun("defaultShouldPreserveModificationDate", true);
    if (!folder.empty()) {
        defaults.setValueForThisRun("defaultShouldBackupWhenWritingToImageFiles", true);
        defaults.setValueForThisRun("defaultBackupPathBookmark", std::filesystem::absolute(folder).string());
    }
    if (sidecarStyle)
        defaults.setValueForThisRun("defaultXMPSidecarStyle", std::int64_t(*sidecarStyle));
}
