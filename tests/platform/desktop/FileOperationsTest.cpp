#include "platform/desktop/KTFileDates.h"
#include "platform/desktop/KTFileOperations.h"

#include "tests/platform/desktop/ChildProcess.h"
#include "tests/support/TestSupport.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

TEST(FileOperations, CopyHoldsContentPermissionsAndDate) {
    TemporaryFolder folder;
    std::string content(3'000'000, 'x');
    content[1'500'000] = '\0';
    const fs::path photo = folder.file("photo.jpg", content);
    fs::permissions(photo, fs::perms(0440));
    const KTFileDate date(1'400'000'000s + 123'456'789ns);
    ASSERT_EQ(KTSetModificationDate(photo, date), std::nullopt);
    fs::create_symlink("photo.jpg", folder / "link.jpg");

    EXPECT_EQ(KTCopyItem(folder / "link.jpg", folder / "copy.jpg"), std::nullopt);
    EXPECT_FALSE(fs::is_symlink(folder / "copy.jpg"));
    EXPECT_TRUE(contentOf(folder / "copy.jpg") == content);
    EXPECT_EQ(fs::status(folder / "copy.jpg").permissions(), fs::perms(0440));
    EXPECT_EQ(KTModificationDate(folder / "copy.jpg"), date);
}

TEST(FileOperations, CopyFailsWithoutLeavingOrOverwritingAnything) {
    TemporaryFolder folder;
    const fs::path photo = folder.file("photo.jpg", std::string(100'000, 'x')),
                   other = folder.file("other.jpg", "other");
    EXPECT_NE(KTCopyItem(photo, other), std::nullopt);
    EXPECT_EQ(contentOf(other), "other");
    EXPECT_NE(KTCopyItem(folder / "missing.jpg", folder / "copy.jpg"), std::nullopt);
    EXPECT_NE(KTCopyItem(folder.path(), folder / "copy.jpg"), std::nullopt);

    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_TRUE(holdsForOrdinaryUser([&] { // the disk is full after 50,000 bytes
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {50'000, 50'000};
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && KTCopyItem(photo, folder / "copy.jpg").has_value();
    }));
    EXPECT_FALSE(fs::exists(folder / "copy.jpg"));
}

TEST(FileOperations, BackupNamesCountUpwards) {
    TemporaryFolder folder;
    EXPECT_EQ(KTBackupName(folder.path(), "IMG_0042.JPG"), "IMG_0042.JPG");
    folder.file("IMG_0042.JPG", "");
    folder.file("IMG_0042-1.JPG", "");
    EXPECT_EQ(KTBackupName(folder.path(), "IMG_0042.JPG"), "IMG_0042-2.JPG");
    fs::create_symlink("nowhere", folder / "a.b.tif");
    EXPECT_EQ(KTBackupName(folder.path(), "a.b.tif"), "a.b-1.tif");
    folder.file("plain", "");
    EXPECT_EQ(KTBackupName(folder.path(), "plain"), "plain-1");
}

TEST(FileOperations, FileDatesBeforeAndAfter1970) {
    TemporaryFolder folder;
    const fs::path photo = folder.file("photo.jpg", "content");
    for (KTFileDate date :
         {KTFileDate(-86'400s + 250ms), KTFileDate(1ns), KTFileDate(4'000'000'000s + 999'999'999ns)}) {
        EXPECT_EQ(KTSetModificationDate(photo, date), std::nullopt);
        EXPECT_EQ(KTModificationDate(photo), date);
    }
    if (auto born = KTCreationDate(photo)) {
        EXPECT_LT(std::chrono::abs(std::chrono::system_clock::now() - *born), 1h);
    }
    EXPECT_EQ(KTModificationDate(folder / "missing.jpg"), std::nullopt);
    EXPECT_NE(KTSetModificationDate(folder / "missing.jpg", KTFileDate(0s)), std::nullopt);
}

} // namespace
