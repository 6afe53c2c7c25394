#include "photo/KTPhotoReadAhead.h"

#include "tests/support/TestPhotos.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::filesystem::path> makePhotos(const TemporaryFolder& folder, int count) {
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < count; ++i)
        files.push_back(makePhoto(folder, std::to_string(i) + ".jpg"));
    files.insert(files.begin() + 3, folder / "missing.jpg");
    return files;
}

} // namespace

TEST(PhotoReadAhead, HandsOutPhotosInOrderWhicheverThreadReadThem) {
    TemporaryFolder folder;
    const auto files = makePhotos(folder, 40);
    KTPhotoReadAhead photos(files, 2);
    for (const auto& file : files) {
        const auto [photo, failure] = photos.next();
        ASSERT_EQ(photo == nullptr, file.filename() == "missing.jpg");
        if (photo)
            EXPECT_EQ(photo->fileURL(), file);
        else
            EXPECT_EQ(failure.back().operationDescription, "Read from primary file URL.");
    }
}

TEST(PhotoReadAhead, MayBeLetGoOfBeforeItsEnd) {
    TemporaryFolder folder;
    KTPhotoReadAhead photos(makePhotos(folder, 40), 2);
    EXPECT_TRUE(photos.next().photo);
}
