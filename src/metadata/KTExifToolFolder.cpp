#include "metadata/KTExifToolFolder.h"

#include "metadata/KTExifTool.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"

#include <cstdlib>
#include <fstream>
#include <regex>

namespace fs = std::filesystem;

namespace {

constexpr double kOldestVersion = 12; // whose tags, and answers to a write, the program knows

} // namespace

std::string KTVersionOfExifToolFolder(const fs::path& folder) {
    std::ifstream module(folder / "Image" / "ExifTool.pm");
    const std::regex version("^\\s*\\$VERSION\\s*=\\s*'([0-9]+\\.[0-9]+)'.*");
    std::smatch found;
    for (std::string line; std::getline(module, line);)
        if (std::regex_match(line, found, version))
            return found[1];
    return {};
}

std::optional<std::string> KTUseExifToolFolder(const fs::path& folder) {
    const fs::path wanted =
        folder.empty() ? fs::path(KTUserDefaults::standardUserDefaults().textForKey("exifToolFolder"))
                       : folder;
    if (wanted.empty())
        return std::nullopt;
    fs::path library = fs::absolute(wanted);
    std::string version = KTVersionOfExifToolFolder(library);
    if (version.empty()) { // as its maker packs it
        library /= "lib";
        version = KTVersionOfExifToolFolder(library);
    }
    if (version.empty())
        return KTStringWithFormat(KTLocalizedString("there is no Image/ExifTool.pm in %@"),
                                  {wanted.string()});
    if (std::strtod(version.c_str(), nullptr) < kOldestVersion)
        return KTStringWithFormat(
            KTLocalizedString("the Image::ExifTool in %@ is version %@, which is too old"),
            {wanted.string(), version});
    KTExifTool::setLibraryFolder(library);
    return std::nullopt;
}
