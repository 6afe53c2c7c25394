#include "platform/tracklibrary/KMZArchive.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <array>
#include <fstream>
#include <minizip/unzip.h>
#include <vector>

namespace {

constexpr int kMostMembers = 10000;
constexpr std::size_t kLargestKML = std::size_t{256} << 20;

using Archive = std::unique_ptr<void, decltype(&unzClose)>;

TrackFileProblem damaged() {
    return {0, KTLocalizedString("the KMZ archive is damaged")};
}

std::string currentName(unzFile archive) {
    std::array<char, 1024> name{};
    unz_file_info64 info;
    int status =
        unzGetCurrentFileInfo64(archive, &info, name.data(), name.size() - 1, nullptr, 0, nullptr, 0);
    return status == UNZ_OK ? KTLowercase(name.data()) : std::string();
}

/// Makes the main KML the archive's current member.
std::optional<TrackFileProblem> findKML(unzFile archive) {
    std::optional<unz64_file_pos> found;
    int members = 0;
    for (int status = unzGoToFirstFile(archive); status == UNZ_OK; status = unzGoToNextFile(archive)) {
        if (++members > kMostMembers)
            return TrackFileProblem{0, KTLocalizedString("the KMZ archive has too many members")};
        std::string name = currentName(archive);
        bool isMain = name == "doc.kml";
        if (isMain || (!found && name.ends_with(".kml"))) {
            unzGetFilePos64(archive, &found.emplace());
            if (isMain)
                break;
        }
    }
    if (!found)
        return TrackFileProblem{0, KTLocalizedString("the KMZ archive holds no KML file")};
    return unzGoToFilePos64(archive, &*found) == UNZ_OK ? std::nullopt : std::optional(damaged());
}

} // namespace

std::optional<TrackFileProblem> extractKML(const std::filesystem::path& archive,
                                           const std::filesystem::path& target) {
    Archive opened(unzOpen64(archive.c_str()), &unzClose);
    if (!opened)
        return damaged();
    if (auto problem = findKML(opened.get()))
        return problem;
    if (unzOpenCurrentFile(opened.get()) != UNZ_OK)
        return damaged();

    std::ofstream out(target, std::ios::binary);
    std::vector<char> piece(1 << 18);
    std::size_t size = 0;
    int length = 0;
    while ((length = unzReadCurrentFile(opened.get(), piece.data(), static_cast<unsigned>(piece.size()))) >
           0) {
        size += static_cast<std::size_t>(length);
        if (size > kLargestKML)
            return TrackFileProblem{0, KTLocalizedString("the KML file in the KMZ archive is too large")};
        out.write(piece.data(), length);
    }
    // Closing compares the checksum.
    if (length < 0 || unzCloseCurrentFile(opened.get()) != UNZ_OK)
        return damaged();
    out.close();
    return out ? std::nullopt
               : std::optional(TrackFileProblem{0, KTLocalizedString("it cannot be unpacked")});
}
