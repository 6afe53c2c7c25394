#include "collection/KTPhotoFileList.h"

#include "tests/support/TestSupport.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

/// The files that @p paths stand for, relative to @p folder.
Names namesOf(const TemporaryFolder& folder, const std::vector<fs::path>& paths) {
    Names names;
    for (const fs::path& file : KTPhotoFileList::fromPaths(paths).files)
        names.push_back(file.lexically_relative(folder.path()));
    return names;
}

TEST(PhotoFileList, AcceptedNames) {
    EXPECT_EQ(KTPhotoFileList::validFileTypes().size(), 32u);
    for (const char* name : {"a.jpg", "/x.y/a.JPEG", ".nef", "a.b.Tif", "a.'jpeg'", "a.jpég", "a.jpe\u0301"})
        EXPECT_TRUE(KTPhotoFileList::validPhotoTypePredicate(name)) << name;
    for (const char* name :
         {"", "jpg", "ajpg", "a.jpg/b", "a.jpgx", "a.xjpg", "a.", "a.gif", "a.jp\xFFg", "a.ＪＰＧ", "a.XMP"})
        EXPECT_FALSE(KTPhotoFileList::validPhotoTypePredicate(name)) << name;
    EXPECT_TRUE(KTPhotoFileList::validFileTypePredicate("a.XMP"));
}

TEST(PhotoFileList, FoldersStandForTheImagesBelowThem) {
    TemporaryFolder folder;
    for (const char* name : {"a/IMG_2.JPG", "a/IMG_1.jpg", "a/IMG_1.xmp", "a/notes.txt", "B/deep/er/x.nef",
                             "B/.hidden/y.png", "a/.waymark-Ab3dEf/IMG_9.jpg", "Ärger.jpg", "ärger/1.jpg"})
        folder.file(name, "");
    fs::create_directory(folder / "a/folder.jpg");
    fs::create_directory_symlink("..", folder / "a/circle");
    fs::create_directory_symlink("..", folder / "a/circle.jpg");
    ASSERT_EQ(::mkfifo((folder / "a/pipe.jpg").c_str(), 0600), 0);

    EXPECT_EQ(namesOf(folder, {folder.path()}), (Names{"a/IMG_1.jpg", "a/IMG_2.JPG", "B/.hidden/y.png",
                                                       "B/deep/er/x.nef", "Ärger.jpg", "ärger/1.jpg"}));
    fs::create_directory_symlink("B/deep", folder / "given");
    EXPECT_EQ(namesOf(folder, {folder / "given"}), (Names{"given/er/x.nef"}));
}

TEST(PhotoFileList, EachFileComesOnce) {
    TemporaryFolder folder;
    folder.file("a/1.jpg", "");
    folder.file("a/2.jpg", "");
    fs::create_symlink("1.jpg", folder / "a/3.jpg");
    fs::create_directory_symlink("a", folder / "b");
    EXPECT_EQ(namesOf(folder, {folder / "b/1.jpg", folder / "a", folder / "a/../a/2.jpg", folder / "b"}),
              (Names{"a/../a/2.jpg", "a/1.jpg"}));
}

TEST(PhotoFileList, SidecarsStandForTheirImage) {
    TemporaryFolder folder;
    for (const char* name :
         {"IMG_1.xmp", "IMG_1.CR2", "IMG_1.JPG", "IMG_1.txt", "img_1.png", "IMG_2.XMP", "IMG_3.xmp"})
        folder.file(name, "");
    fs::create_directory(folder / "IMG_3.jpg");
    EXPECT_EQ(namesOf(folder, {folder / "IMG_1.xmp"}), (Names{"IMG_1.CR2"}));
    const auto list =
        KTPhotoFileList::fromPaths({folder / "IMG_1.xmp", folder / "IMG_1.CR2", folder / "IMG_2.XMP",
                                    folder / "IMG_3.xmp", folder / "IMG_4.xmp"});
    EXPECT_EQ(list.files, std::vector<fs::path>{folder / "IMG_1.CR2"});
    EXPECT_EQ(list.problems.size(), 3u);
}

TEST(PhotoFileList, ProblemsAreNamedAndTheRestIsFound) {
    TemporaryFolder folder;
    folder.file("a/good.jpg", "");
    folder.file("notes.txt", "");
    fs::create_symlink("nowhere", folder / "a/dangling.jpg");
    fs::create_symlink("loop.jpg", folder / "a/loop.jpg");
    fs::create_directory(folder / "empty");
    fs::create_directory(folder / "a/closed");
    fs::permissions(folder / "a/closed", fs::perms::none);
    const auto list = KTPhotoFileList::fromPaths({folder / "a", folder / "missing.jpg", folder / "missing",
                                                  folder / "notes.txt", folder / "empty", ""});
    fs::permissions(folder / "a/closed", fs::perms::all);
    EXPECT_EQ(list.files, std::vector<fs::path>{folder / "a/good.jpg"});
    Names expected = {"a/dangling.jpg", "a/loop.jpg", "missing.jpg", "missing", "notes.txt", "empty", "“”"};
    if (::geteuid() != 0)
        expected.push_back("a/closed");
    EXPECT_EQ(list.problems.size(), expected.size());
    for (const std::string& name : expected)
        EXPECT_TRUE(std::ranges::any_of(list.problems, [&](const std::string& problem) {
            return problem.find(name) != std::string::npos;
        })) << name;
}

TEST(PhotoFileList, EndsWhenAskedTo) {
    TemporaryFolder folder;
    folder.file("a.jpg", "");
    std::stop_source source;
    source.request_stop();
    const auto list = KTPhotoFileList::fromPaths({folder.path()}, source.get_token());
    EXPECT_TRUE(list.files.empty() && list.problems.empty());
}

} // namespace
