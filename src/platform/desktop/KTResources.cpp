#include "platform/desktop/KTResources.h"

#include <cstdlib>

std::filesystem::path KTResourcePath(const std::filesystem::path& name) {
    namespace fs = std::filesystem;
    if (const char* folder = std::getenv("WAYMARK_RESOURCES"); folder != nullptr && *folder != '\0')
        return fs::path(folder) / name;
    std::error_code error;
    fs::path executable = fs::read_symlink("/proc/self/exe", error);
    // bin/waymark-cli of a build or an installation, tests/… of a build.
    for (fs::path folder = executable.parent_path().parent_path(); folder.has_relative_path();
         folder = folder.parent_path())
        if (fs::path candidate = folder / "share/waymark"; fs::exists(candidate / "exiftoollib", error))
            return candidate / name;
    return fs::path(WAYMARK_INSTALLED_RESOURCES) / name;
}
