#include "tests/soak/Soak.h"
#include "collection/KTPhotoFileList.h"
#include "tests/support/TestPhotos.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

/// The content between the headers and the end of a JPEG file: its picture.
std::string pictureOf(const fs::path& file) {
    const std::string content = contentOf(file);
    std::size_t at = 2; // after the mark of the beginning
    while (at + 4 <= content.size() && content[at] == '\xff' && content[at + 1] != '\xda')
        at += 2 + (static_cast<unsigned char>(content[at + 2]) << 8 |
                   static_cast<unsigned char>(content[at + 3]));
    return at < content.size() ? content.substr(at, content.find("\xff\xd9", at) - at) : std::string();
}

/// Photos whose pictures must outlast whatever is done to them.
class SoakPhotos {
public:
    /// Small ones, made on the spot.
    static SoakPhotos made(std::size_t count) {
        SoakPhotos photos;
        static constexpr const char* extensions[] = {".jpg", ".tif", ".png"};
        for (std::size_t i = 0; i < count; ++i)
            photos.add(
                makePhoto(*photos.folder, std::to_string(i) + extensions[i % std::size(extensions)],
                          {{"EXIF:DateTimeOriginal", "2014:06:01 1" + std::to_string(i % 10) + ":00:00"},
                           {"XMP:Title", "Photo " + std::to_string(i)}}));
        return photos;
    }
    /// Copies of those below @p source, with their sidecars.
    static SoakPhotos copied(const fs::path& source) {
        SoakPhotos photos;
        for (const fs::path& file : KTPhotoFileList::fromPaths({source}).files) {
            const std::string number = std::to_string(1000 + photos.files.size()) + "-";
            const fs::path target = *photos.folder / (number + file.filename().string());
            const fs::path sidecar = fs::path(file).replace_extension("xmp");
            fs::copy_file(file, target);
            if (fs::exists(sidecar))
                fs::copy_file(sidecar, fs::path(target).replace_extension("xmp"));
            photos.add(target);
        }
        return photos;
    }

    const std::vector<fs::path>& paths() const { return files; }
    void expectSamePictures() const {
        for (const auto& [file, picture] : pictures)
            EXPECT_TRUE(pictureOf(file) == picture) << file << " shows another picture";
    }

private:
    void add(const fs::path& file) {
        fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
        files.push_back(fs::canonical(file));
        if (file.extension() == ".jpg")
            pictures[files.back()] = pictureOf(files.back());
    }

    std::unique_ptr<TemporaryFolder> folder = std::make_unique<TemporaryFolder>();
    std::vector<fs::path> files;
    std::map<fs::path, std::string> pictures;
};

/// Works until @p isEnough, or until something is wrong.
void soak(std::uint64_t seed, const SoakPhotos& photos, int sidecarStyle,
          const std::function<bool()>& isEnough) {
    Soak soak(seed, photos.paths(), sidecarStyle);
    while (soak.problem().empty() && !isEnough())
        soak.step();
    soak.checkFiles();
    photos.expectSamePictures();
    std::printf("seed %llu, style %d: %s\n", static_cast<unsigned long long>(seed), sidecarStyle,
                soak.summary().c_str());
    EXPECT_EQ(soak.problem(), "") << "seed " << seed;
}

} // namespace

TEST(Soak, HoldsItsPhotosThroughRandomWork) {
    for (const int style : {1, 3}) {
        int steps = 0;
        soak(20140601, SoakPhotos::made(20), style, [&] { return ++steps > 120; });
    }
}

/// WAYMARK_CORPUS names a folder of photos, WAYMARK_SOAK the minutes, WAYMARK_SEED the seed to repeat.
TEST(Soak, HoldsRealPhotosThroughRandomWork) {
    const char *folder = std::getenv("WAYMARK_CORPUS"), *minutes = std::getenv("WAYMARK_SOAK"),
               *given = std::getenv("WAYMARK_SEED");
    if (folder == nullptr || minutes == nullptr)
        GTEST_SKIP() << "WAYMARK_CORPUS or WAYMARK_SOAK is not set";
    const std::uint64_t first = given != nullptr ? std::strtoull(given, nullptr, 10) : std::random_device()();
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(std::atoi(minutes));
    // Rounds, each with a seed and copies of its own, so that each can be repeated.
    for (std::uint64_t seed = first; std::chrono::steady_clock::now() < end && !testing::Test::HasFailure();
         ++seed) {
        std::printf("WAYMARK_SEED=%llu\n", static_cast<unsigned long long>(seed));
        std::fflush(stdout);
        int steps = 0;
        soak(seed, SoakPhotos::copied(folder), static_cast<int>(seed % 4),
             [&] { return ++steps > 1000 || std::chrono::steady_clock::now() > end; });
    }
}
