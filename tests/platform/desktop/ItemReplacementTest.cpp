#include "platform/desktop/KTItemReplacement.h"

#include "platform/desktop/KTProcessIdentity.h"
#include "tests/platform/desktop/ChildProcess.h"
#include "tests/support/TestSupport.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace fs = std::filesystem;

namespace {

std::optional<std::string> replaceWith(const fs::path& target, std::string_view content) {
    KTItemReplacement replacement(target);
    if (replacement.error())
        return replacement.error();
    std::ofstream(replacement.temporaryItem(), std::ios::binary) << content;
    return KTReplaceItem(target, replacement.temporaryItem());
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

std::string attribute(const fs::path& file, const char* name) {
    char value[256];
    const ssize_t size = ::getxattr(file.c_str(), name, value, sizeof value);
    return size < 0 ? "none" : std::string(value, static_cast<std::size_t>(size));
}

bool setAttribute(const fs::path& file, const char* name, const std::string& value) {
    return ::setxattr(file.c_str(), name, value.data(), value.size(), 0) == 0;
}

/// An access control list as the kernel keeps it: owner rw, user 1234 r, group r, mask r, others nothing.
std::string accessControlList() {
    struct Entry {
        std::uint16_t tag, permissions;
        std::uint32_t id;
    };
    const Entry entries[] = {{1, 6, ~0u}, {2, 4, 1234}, {4, 4, ~0u}, {0x10, 4, ~0u}, {0x20, 0, ~0u}};
    std::string list("\2\0\0\0", 4);
    return list.append(reinterpret_cast<const char*>(entries), sizeof entries);
}

struct stat statusOf(const fs::path& file) {
    struct stat status = {};
    ::stat(file.c_str(), &status);
    return status;
}

TEST(ItemReplacement, KeepsWhatBelongsToTheFileAndNotToItsContent) {
    TemporaryFolder folder;
    const fs::path photo = folder.file("photo.jpg", "old");
    const bool hasAttributes = setAttribute(photo, "user.rating", std::string("a\0b", 3));
    ASSERT_EQ(::chmod(photo.c_str(), 0604), 0);
    const bool isRoot = ::geteuid() == 0 && ::chown(photo.c_str(), 1234, 1235) == 0;

    EXPECT_EQ(replaceWith(photo, "new content"), std::nullopt);
    EXPECT_EQ(contentOf(photo), "new content");
    EXPECT_EQ(statusOf(photo).st_mode & 07777, 0604u);
    if (hasAttributes) {
        EXPECT_EQ(attribute(photo, "user.rating"), std::string("a\0b", 3));
    }
    if (isRoot) {
        EXPECT_EQ(statusOf(photo).st_uid, 1234u);
        EXPECT_EQ(statusOf(photo).st_gid, 1235u);
    }
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"photo.jpg"}));
}

TEST(ItemReplacement, KeepsTheAccessControlListAndTakesNoneFromTheFolder) {
    TemporaryFolder folder;
    const fs::path listed = folder.file("listed.jpg", "old"), plain = folder.file("plain.jpg", "old");
    if (!setAttribute(listed, "system.posix_acl_access", accessControlList()) ||
        !setAttribute(folder.path(), "system.posix_acl_default", accessControlList()))
        GTEST_SKIP() << "no access control lists here";

    EXPECT_EQ(replaceWith(listed, "new"), std::nullopt);
    EXPECT_EQ(attribute(listed, "system.posix_acl_access"), accessControlList());
    EXPECT_EQ(replaceWith(plain, "new"), std::nullopt);
    EXPECT_EQ(attribute(plain, "system.posix_acl_access"), "none");
    EXPECT_EQ(replaceWith(folder / "added.jpg", "new"), std::nullopt);
    EXPECT_EQ(attribute(folder / "added.jpg", "system.posix_acl_access"), accessControlList());
}

TEST(ItemReplacement, MakesANewFileUnderTheUsersMask) {
    TemporaryFolder folder;
    const mode_t mask = ::umask(027);
    EXPECT_EQ(replaceWith(folder / "new.xmp", "content"), std::nullopt);
    ::umask(mask);
    EXPECT_EQ(contentOf(folder / "new.xmp"), "content");
    EXPECT_EQ(statusOf(folder / "new.xmp").st_mode & 07777, 0640u);
}

TEST(ItemReplacement, FollowsLinksAndKeepsThem) {
    TemporaryFolder folder;
    const fs::path original = folder.file("store/original.jpg", "old");
    fs::create_directory(folder / "album");
    fs::create_symlink("../store/original.jpg", folder / "album/first");
    fs::create_symlink(folder / "album/first", folder / "second.jpg");
    fs::create_symlink("store/missing.jpg", folder / "dangling.jpg");
    fs::create_symlink("circle.jpg", folder / "circle.jpg");

    KTItemReplacement replacement(folder / "second.jpg");
    EXPECT_EQ(replacement.temporaryItem().filename(), "second.jpg");
    EXPECT_EQ(replacement.temporaryItem().parent_path().parent_path(), folder / "album/../store");
    EXPECT_EQ(replaceWith(folder / "second.jpg", "new"), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(folder / "second.jpg") && fs::is_symlink(folder / "album/first"));
    EXPECT_FALSE(fs::is_symlink(original));
    EXPECT_EQ(contentOf(original), "new");
    EXPECT_EQ(replaceWith(folder / "dangling.jpg", "found"), std::nullopt);
    EXPECT_EQ(contentOf(folder / "store/missing.jpg"), "found");
    EXPECT_NE(replaceWith(folder / "circle.jpg", "new"), std::nullopt);
}

TEST(ItemReplacement, LeavesTheOriginalWhereItFails) {
    TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms::all);
    const fs::path photo = folder.file("closed/photo.jpg", "old"),
                   guarded = folder.file("open/guarded.jpg", "old");
    fs::create_directory(folder / "open/folder.jpg");
    fs::permissions(folder / "closed", fs::perms(0555));
    fs::permissions(folder / "open", fs::perms(0777));
    fs::permissions(guarded, fs::perms(0444));

    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        auto error = replaceWith(photo, "new");
        return error && error->find((folder / "closed").string()) != std::string::npos &&
               error->find("Permission denied") != std::string::npos;
    }));
    EXPECT_TRUE(holdsForOrdinaryUser([&] { return replaceWith(guarded, "new").has_value(); }));
    EXPECT_EQ(contentOf(photo), "old");
    EXPECT_EQ(contentOf(guarded), "old");
    EXPECT_NE(replaceWith(folder / "open/folder.jpg", "new"), std::nullopt);
    EXPECT_NE(KTReplaceItem(guarded, folder / "open/missing"), std::nullopt);
    EXPECT_NE(replaceWith(folder / "missing/photo.jpg", "new"), std::nullopt);
    EXPECT_NE(replaceWith(photo / "below-a-file.jpg", "new"), std::nullopt);
    EXPECT_EQ(namesIn(folder / "open"), (std::vector<std::string>{"folder.jpg", "guarded.jpg"}));
    fs::permissions(folder / "closed", fs::perms::all);
    EXPECT_EQ(namesIn(folder / "closed"), (std::vector<std::string>{"photo.jpg"}));
}

TEST(ItemReplacement, ProcessKilledAtAnyMomentLeavesTheFileWhole) {
    TemporaryFolder folder;
    constexpr std::size_t kSize = 200'000;
    const fs::path photo = folder.file("photo.jpg", std::string(kSize, 'a'));
    for (int round = 0; round < 40; ++round) {
        const pid_t child = ::fork();
        if (child == 0)
            for (char letter = 'b';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1))
                if (replaceWith(photo, std::string(kSize, letter)))
                    ::_exit(1);
        ::usleep(static_cast<useconds_t>(1000 + 331 * round));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        const std::string content = contentOf(photo);
        ASSERT_EQ(content, std::string(kSize, content.empty() ? '?' : content[0]));
    }
    EXPECT_EQ(replaceWith(photo, "at last"), std::nullopt);
    for (const auto& entry : fs::directory_iterator(folder.path()))
        if (entry.is_directory()) { // of a process killed before it could name itself: nothing else is in it
                                    // yet
            EXPECT_FALSE(fs::exists(entry.path() / "photo.jpg")) << entry.path();
        }
}

TEST(ItemReplacement, RemovesOnlyFoldersOfProcessesThatAreGone) {
    TemporaryFolder folder;
    const KTProcessIdentity mine = KTProcessIdentity::ofThisProcess();
    KTProcessIdentity dead = mine, lastRun = mine, elsewhere = mine, contained = dead;
    dead.start = "1";
    lastRun.systemRun = "another";
    elsewhere.host = "another";
    elsewhere.start = "1";
    contained.processSpace = "another";
    contained.start = "1";
    auto leave = [&](const char* name, const std::string& owner) {
        folder.file(fs::path(name) / ".waymark-owner", owner);
        folder.file(fs::path(name) / "photo.jpg", "half");
    };
    leave(".waymark-dead00", dead.text());
    leave(".waymark-run000", lastRun.text());
    leave(".waymark-mine00", mine.text());
    leave(".waymark-else00", elsewhere.text());
    leave(".waymark-cont00", contained.text());
    leave(".waymark-torn00", dead.text().substr(0, dead.text().size() - dead.start.size() - 2));
    leave(".waymark-settings", dead.text());
    folder.file(".waymark-plain0/photo.jpg", "the user's");
    leave(".waymark-lost00", ""); // by a computer that lost its power
    fs::create_directory(folder / ".waymark-void00");
    fs::create_directory(folder / ".waymark-new000");
    for (const char* old : {".waymark-plain0", ".waymark-else00", ".waymark-lost00", ".waymark-void00"})
        fs::last_write_time(folder / old, fs::file_time_type::clock::now() - std::chrono::hours(25));
    TemporaryFolder store;
    store.file(".waymark-owner", dead.text());
    fs::create_directory_symlink(store.path(), folder / ".waymark-link00");

    { KTItemReplacement replacement(folder / "photo.jpg"); }
    EXPECT_EQ(namesIn(folder.path()),
              (std::vector<std::string>{".waymark-cont00", ".waymark-else00", ".waymark-link00",
                                        ".waymark-mine00", ".waymark-new000", ".waymark-plain0",
                                        ".waymark-settings", ".waymark-torn00"}));
    EXPECT_EQ(namesIn(store.path()), (std::vector<std::string>{".waymark-owner"}));
    EXPECT_EQ(KTProcessIdentity::fromText(mine.text()), mine);
}

} // namespace
