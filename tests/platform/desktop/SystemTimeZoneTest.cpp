#include "platform/desktop/KTSystemTimeZone.h"

#include "tests/support/TestSupport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class SystemTimeZone : public testing::Test {
protected:
    /// How often it was announced since the last call; waits for what is to come where one is expected.
    int announcements(bool isExpected) {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < (isExpected ? 10'000 : 100) && !(isExpected && count > 0))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return std::exchange(count, 0);
    }
    /// As the system's tools do it.
    void setLink(const fs::path& target) {
        fs::create_symlink(target, folder / "localtime.new");
        fs::rename(folder / "localtime.new", folder / "localtime");
    }

    TemporaryFolder folder;
    const fs::path berlin = folder.file("Berlin", "rules of Berlin"), rome = folder.file("Rome", "of Rome");
    int count = 0;
};

TEST_F(SystemTimeZone, IsAnnouncedWhenItsLinkIsReplacedAndForNothingElse) {
    const fs::path vienna = folder / "Vienna";
    fs::create_hard_link(berlin, vienna);
    setLink(berlin);
    KTSystemTimeZone zone(folder / "localtime");
    auto observation = zone.observe([&](const KTChange& change) {
        EXPECT_EQ(change.key, "systemTimeZone");
        EXPECT_FALSE(change.isPrior);
        ++count;
    });
    setLink(rome);
    EXPECT_EQ(announcements(true), 1);
    EXPECT_EQ(announcements(false), 0);

    folder.file("resolv.conf", "something else");
    setLink(rome);
    EXPECT_EQ(announcements(false), 0);

    setLink(berlin);
    EXPECT_EQ(announcements(true), 1);
    setLink(vienna); // another name for the same file
    EXPECT_EQ(announcements(true), 1);
    fs::remove(folder / "localtime");
    EXPECT_EQ(announcements(true), 1);
    fs::copy_file(rome, folder / "localtime"); // some systems have no link
    EXPECT_GE(announcements(true), 1);
}

} // namespace
