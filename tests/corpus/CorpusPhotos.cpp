#include "tests/corpus/CorpusPhotos.h"

#include "collection/KTPhotoFileList.h"

#include <algorithm>
#include <cstdlib>

namespace fs = std::filesystem;

namespace {

void copyWritable(const fs::path& file, const fs::path& target) {
    fs::copy_file(file, target);
    fs::permissions(target, fs::perms::owner_write, fs::perm_options::add);
}

bool isJPEG(const fs::path& file) {
    return file.extension() == ".jpg";
}

/// The sidecars below @p folder beside which no photo lies, in a fixed order.
std::vector<fs::path> straySidecars(const fs::path& folder, const std::vector<fs::path>& photos) {
    std::vector<fs::path> result;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".xmp" && std::ranges::none_of(photos, [&](fs::path photo) {
                return photo.replace_extension("xmp") == entry.path();
            }))
            result.push_back(entry.path());
    std::ranges::sort(result);
    return result;
}

} // namespace

fs::path CorpusPhotos::source() {
    const char* folder = std::getenv("WAYMARK_CORPUS");
    return folder != nullptr ? folder : "";
}

CorpusPhotos::CorpusPhotos() {
    const std::vector<fs::path> photos = KTPhotoFileList::fromPaths({source()}).files;
    for (const fs::path& photo : photos)
        add(photo, fs::path(photo).replace_extension("xmp"));
    auto jpeg = std::ranges::find_if(photos, isJPEG);
    for (const fs::path& sidecar : straySidecars(source(), photos)) {
        if (jpeg == photos.end())
            break;
        add(*jpeg, sidecar);
        jpeg = std::find_if(jpeg + 1, photos.end(), isJPEG);
    }
}

void CorpusPhotos::add(const fs::path& photo, const fs::path& sidecar) {
    // Numbered, as photos of several folders may share a name.
    const std::string number = std::to_string(1000 + files.size()) + "-";
    files.push_back(folder() / (number + photo.filename().string()));
    copyWritable(photo, files.back());
    if (fs::exists(sidecar))
        copyWritable(sidecar, fs::path(files.back()).replace_extension("xmp"));
}

std::string nameInCorpus(const fs::path& copy) {
    const std::string name = copy.filename().string();
    return name.substr(name.find('-') + 1);
}
