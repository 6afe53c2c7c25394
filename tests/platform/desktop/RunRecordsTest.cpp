#include "platform/common/KTLog.h"
#include "platform/desktop/KTLogFile.h"
#include "platform/desktop/KTWriteNote.h"
#include "tests/support/TestSupport.h"

#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct NotesIn {
    explicit NotesIn(const fs::path& folder) { KTWriteNote::setFolder(folder); }
    ~NotesIn() { KTWriteNote::setFolder({}); }
};

/// A process that is killed while it writes @p files.
void killWhileWriting(const std::vector<fs::path>& files) {
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<std::unique_ptr<KTWriteNote>> notes;
        for (const fs::path& file : files)
            notes.push_back(std::make_unique<KTWriteNote>(file));
        ::raise(SIGKILL);
    }
    ::waitpid(child, nullptr, 0);
}

} // namespace

TEST(WriteNote, NamesWhatAKilledProcessWasWriting) {
    const TemporaryFolder folder;
    const NotesIn notes(folder / "state" / "writing");
    const KTWriteNote ours(folder / "ours.jpg");
    killWhileWriting({folder / "b.jpg", folder / "a\nname.jpg", folder / "b.jpg"});
    { const KTWriteNote ended(folder / "ended.jpg"); }
    EXPECT_EQ(KTWriteNote::takeLeftBehind(),
              (std::vector<fs::path>{folder / "a\nname.jpg", folder / "b.jpg"}));
    EXPECT_TRUE(KTWriteNote::takeLeftBehind().empty()) << "each is told once";
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "state" / "writing"), {}), 1)
        << "the note of a write under way stays";
}

TEST(WriteNote, KeepsNobodyFromWriting) {
    const TemporaryFolder folder;
    const NotesIn notes(folder.file("no-folder", "a file") / "writing");
    const KTWriteNote note(folder / "a.jpg");
    EXPECT_TRUE(KTWriteNote::takeLeftBehind().empty());
}

TEST(LogFile, HoldsNothingPrivate) {
    const std::pair<const char*, const char*> lines[] = {
        {"“IMG 1.jpg” cannot be copied: No space left", "… cannot be copied: No space left"},
        {"/home/anna/My Photos/a.jpg: Permission denied", "…: Permission denied"},
        {"reading ~/trip/a.gpx: done", "reading …: done"},
        {"The setting \"defaultBackupPathBookmark\" holds \"/x\"", "The setting … holds …"},
        {"asked https://places.example/reverse?lat=46.1 twice", "asked … twice"},
        {"near 46.05108, -14.50513 at 12.5 m", "near …, … at 12.5 m"},
        {"contact anna@example.org please", "contact … please"},
        {"Waymark 0.1.0 begins, on Qt 6.4.2", "Waymark 0.1.0 begins, on Qt 6.4.2"}};
    for (const auto& [line, kept] : lines)
        EXPECT_EQ(KTWithoutPrivateParts(line), kept);
}

TEST(LogFile, BeginsAnewWhenItHasGrown) {
    const TemporaryFolder folder;
    const fs::path file = folder / "state" / "waymark.log";
    ASSERT_TRUE(KTLogFile::keepLogIn(file));
    KTLog("The first line of /home/anna/a.jpg: too bad");
    const std::string first = contentOf(file);
    EXPECT_NE(first.find("Z The first line of …: too bad\n"), std::string::npos) << first;
    const std::string line(1000, 'x');
    for (int i = 0; i < 1200; ++i)
        KTLogFile::note(line);
    KTSetLogSink(nullptr);
    EXPECT_LE(fs::file_size(file), KTLogFile::kLargest);
    EXPECT_LE(fs::file_size(file.string() + ".1"), KTLogFile::kLargest);
    EXPECT_GT(fs::file_size(file) + fs::file_size(file.string() + ".1"), 512u * 1000u);
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 2);
}
