#include "platform/desktop/KTFileCoordinator.h"
#include "platform/desktop/KTFileDates.h"
#include "platform/desktop/KTFileStamp.h"
#include "platform/desktop/KTItemReplacement.h"

#include "tests/platform/desktop/ChildProcess.h"
#include "tests/support/TestSupport.h"

#include <array>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <latch>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

const auto noRead = [](const fs::path&) { ADD_FAILURE() << "must not be called"; };
const auto written = [] { return std::optional<std::string>(); };

class Presenter : public KTFilePresenter {
public:
    explicit Presenter(fs::path file, fs::path primary = {})
        : presented(std::move(file)), primaryFile(std::move(primary)) {
        KTFileCoordinator::addFilePresenter(*this);
    }
    ~Presenter() override { KTFileCoordinator::removeFilePresenter(*this); }

    fs::path presentedItemURL() const override { return presented; }
    fs::path primaryPresentedItemURL() const override { return primaryFile; }
    KTOperationQueue& presentedItemOperationQueue() override { return queue; }
    void presentedItemDidChange() override { ++told; }

    /// How often it was told since it was last asked.
    int wasTold() {
        queue.waitUntilAllOperationsAreFinished();
        return told.exchange(0);
    }

private:
    const fs::path presented, primaryFile;
    std::atomic<int> told = 0;
    KTOperationQueue queue;
};

TEST(FileCoordination, ReadersMeetAndAWriterIsAlone) {
    TemporaryFolder folder;
    const fs::path photo = folder.file("photo.jpg", "content");
    const KTFileCoordinator coordinator;
    {
        std::latch met(2);
        auto read = [&] {
            EXPECT_EQ(coordinator.coordinateReadingItemAtURL(photo,
                                                             [&](const fs::path& file) {
                                                                 EXPECT_EQ(file, photo);
                                                                 met.arrive_and_wait();
                                                             }),
                      std::nullopt);
        };
        std::jthread first(read), second(read);
    }
    fs::create_symlink("photo.jpg", folder / "link.jpg");
    const fs::path names[] = {photo, folder / "link.jpg", folder / "." / "photo.jpg", fs::relative(photo)};
    constexpr int kThreads = 4, kRounds = 300;
    int number = 0; // no lock of its own
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < kThreads; ++thread)
            threads.emplace_back([&, thread] {
                for (int round = 0; round < kRounds; ++round) {
                    const fs::path& name = names[(thread + round) % std::size(names)];
                    KTFileCoordinator().coordinateWritingItemAtURL(name, [&] {
                        ++number;
                        return written();
                    });
                    int before = 0;
                    KTFileCoordinator().coordinateReadingItemAtURL(name,
                                                                   [&](const auto&) { before = number; });
                    EXPECT_GT(before, 0);
                }
            });
    }
    EXPECT_EQ(number, kThreads * kRounds);
    coordinator.coordinateWritingItemAtURL(photo, [&] { // other files are not concerned
        EXPECT_EQ(coordinator.coordinateWritingItemAtURL(folder / "new.xmp", written), std::nullopt);
        return written();
    });
}

TEST(FileCoordination, WhatCannotBeReadIsSaidAndNotRead) {
    TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms::all);
    const KTFileCoordinator coordinator;
    auto missing = coordinator.coordinateReadingItemAtURL(folder / "missing.jpg", noRead);
    ASSERT_TRUE(missing);
    EXPECT_NE(missing->find((folder / "missing.jpg").string()), std::string::npos);
    EXPECT_NE(missing->find("No such file"), std::string::npos);
    fs::create_symlink("circle", folder / "circle");
    EXPECT_TRUE(coordinator.coordinateReadingItemAtURL(folder / "circle", noRead));

    const fs::path closed = folder.file("closed.jpg", "content");
    fs::permissions(closed, fs::perms::none);
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        bool wasCalled = false;
        auto error = coordinator.coordinateReadingItemAtURL(closed, [&](const auto&) { wasCalled = true; });
        return error && error->find("Permission denied") != std::string::npos && !wasCalled;
    }));
    ASSERT_EQ(::mkfifo((folder / "pipe.jpg").c_str(), 0600), 0);
    EXPECT_TRUE(coordinator.coordinateReadingItemAtURL(folder / "pipe.jpg", noRead)); // nor waited for
    EXPECT_TRUE(coordinator.coordinateReadingItemAtURL(folder.path(), noRead));
}

TEST(FileCoordination, OthersAreToldOfAWrite) {
    TemporaryFolder folder;
    const fs::path image = folder / "photo.jpg", sidecar = folder / "photo.xmp";
    Presenter photo(image), photosSidecar(sidecar, image), twin(image),
        neighbour(sidecar, folder / "photo.png"), stranger(folder / "other.jpg");
    KTFileCoordinator::addFilePresenter(twin); // counts once
    auto told = [&] {
        return std::array{photo.wasTold(), photosSidecar.wasTold(), twin.wasTold(), neighbour.wasTold(),
                          stranger.wasTold()};
    };
    using Told = std::array<int, 5>;

    const KTFileCoordinator own(&photo);
    EXPECT_EQ(own.coordinateWritingItemAtURL(image, written), std::nullopt);
    EXPECT_EQ(told(), (Told{0, 0, 1, 0, 0}));
    own.coordinateWritingItemAtURL(sidecar, written);
    EXPECT_EQ(told(), (Told{0, 0, 0, 1, 0}));
    KTFileCoordinator(&photosSidecar).coordinateWritingItemAtURL(sidecar, written);
    EXPECT_EQ(told(), (Told{0, 0, 0, 1, 0}));
    KTFileCoordinator().coordinateWritingItemAtURL(sidecar, written);
    EXPECT_EQ(told(), (Told{0, 1, 0, 1, 0}));

    EXPECT_EQ(own.coordinateWritingItemAtURL(image, [] { return std::optional<std::string>("full"); }),
              "full");
    EXPECT_FALSE(KTFileCoordinator().coordinateReadingItemAtURL(folder.file("photo.jpg", ""), [](auto&) {}));
    KTFileCoordinator::removeFilePresenter(twin);
    KTFileCoordinator::removeFilePresenter(twin);
    own.coordinateWritingItemAtURL(image, written);
    EXPECT_EQ(told(), Told{});
}

TEST(FileCoordination, PresentersMayGoWhileOthersWrite) {
    TemporaryFolder folder;
    const fs::path photo = folder / "photo.jpg";
    std::atomic<bool> isEnding = false;
    std::jthread writer([&] {
        while (!isEnding)
            KTFileCoordinator().coordinateWritingItemAtURL(photo, written);
    });
    for (int round = 0; round < 500; ++round)
        Presenter presenter(photo);
    isEnding = true;
}

TEST(FileStamp, ChangesWithEveryWriteAndReplacement) {
    TemporaryFolder folder;
    const fs::path photo = folder.file("photo.jpg", "old");
    EXPECT_EQ(KTFileStamp::of(folder / "missing.jpg"), std::nullopt);
    auto stamp = KTFileStamp::of(photo);
    ASSERT_TRUE(stamp);
    EXPECT_EQ(KTFileStamp::of(photo), stamp);
    fs::create_symlink("photo.jpg", folder / "link.jpg");
    EXPECT_EQ(KTFileStamp::of(folder / "link.jpg"), stamp);

    auto isChanged = [&] { return std::exchange(stamp, KTFileStamp::of(photo)) != stamp; };
    std::ofstream(photo, std::ios::app) << "er";
    EXPECT_TRUE(isChanged());
    const auto date = *KTModificationDate(photo);
    ASSERT_EQ(KTSetModificationDate(photo, date + 1ns), std::nullopt); // as a write of the same length
    EXPECT_TRUE(isChanged());
    ASSERT_EQ(KTSetModificationDate(photo, date), std::nullopt);
    EXPECT_TRUE(isChanged());
    {
        KTItemReplacement replacement(photo);
        std::ofstream(replacement.temporaryItem()) << "newer";
        KTSetModificationDate(replacement.temporaryItem(), date);
        ASSERT_EQ(KTReplaceItem(photo, replacement.temporaryItem()), std::nullopt);
    }
    EXPECT_TRUE(isChanged());
    const timespec farAway[] = {{0, UTIME_OMIT}, {15'000'000'000, 0}}; // no number of nanoseconds that fits
    if (::utimensat(AT_FDCWD, photo.c_str(), farAway, 0) == 0) {
        EXPECT_TRUE(isChanged());
    }
}

class CreationDate : public testing::Test {
protected:
    void SetUp() override {
        if (KTSetCreationDate(photo, date).kind == KTCreationDateOutcome::NoPlace)
            GTEST_SKIP() << "no extended attributes here";
    }
    void setAttribute(const std::string& text) {
        ASSERT_EQ(::setxattr(photo.c_str(), "user.waymark.creation-date", text.data(), text.size(), 0), 0);
    }

    static constexpr KTFileDate date{1'400'000'000s};
    TemporaryFolder folder;
    const fs::path photo = folder.file("photo.jpg", "old"), fresh = folder.file("fresh.jpg", "");
};

TEST_F(CreationDate, IsKeptInWholeSecondsAndSurvivesReplacingAndCopying) {
    for (KTFileDate wish : {date + 999'999'999ns, KTFileDate(-1ns), KTFileDate(-9'000'000'000s),
                            KTFileDate(9'000'000'000s), date}) {
        EXPECT_EQ(KTSetCreationDate(photo, wish).kind, KTCreationDateOutcome::Kept);
        EXPECT_EQ(KTCreationDate(photo), std::chrono::floor<std::chrono::seconds>(wish));
    }
    KTItemReplacement replacement(photo);
    std::ofstream(replacement.temporaryItem()) << "new";
    ASSERT_EQ(KTReplaceItem(photo, replacement.temporaryItem()), std::nullopt);
    EXPECT_EQ(contentOf(photo), "new");
    EXPECT_EQ(KTCreationDate(photo), date);
    ASSERT_EQ(KTCopyItem(photo, folder / "copy.jpg"), std::nullopt);
    EXPECT_EQ(KTCreationDate(folder / "copy.jpg"), date);
}

TEST_F(CreationDate, IsKeptAlsoWhereItIsThatOfTheFileSystemYet) {
    const auto born = KTCreationDate(fresh);
    if (!born)
        GTEST_SKIP() << "no birth time here";
    EXPECT_EQ(KTSetCreationDate(fresh, *born).kind, KTCreationDateOutcome::Kept);
    EXPECT_EQ(KTCreationDate(fresh), std::chrono::floor<std::chrono::seconds>(*born));
}

TEST_F(CreationDate, OfGarbageIsThatOfTheFileSystem) {
    const auto born = KTCreationDate(fresh);
    const KTFileDate limit = KTFileDate::clock::now() - 1h;
    for (const std::string text :
         {"", "garbage", "2014", "2014-05-13", "2014-05-13T16:53:20+02:00", "2014-05-13T16:53:20.5Z",
          "2014-05-13T16:53:20Z ", "2014-02-30T16:53:20Z", "9999-12-31T23:59:59Z", "0000-01-01T00:00:00Z"}) {
        setAttribute(text);
        const auto read = KTCreationDate(photo);
        EXPECT_EQ(read.has_value(), born.has_value()) << text;
        EXPECT_TRUE(!read || *read > limit) << text;
    }
    setAttribute(std::string(1000, '2'));
    EXPECT_NE(KTCreationDate(photo), date);
    EXPECT_EQ(KTSetCreationDate(photo, date).kind, KTCreationDateOutcome::Kept);
    EXPECT_EQ(KTCreationDate(photo), date);
}

TEST_F(CreationDate, ThatCannotBeKeptIsSaid) {
    const auto missing = KTSetCreationDate(folder / "missing.jpg", date);
    EXPECT_EQ(missing.kind, KTCreationDateOutcome::Failed);
    EXPECT_NE(missing.text.find((folder / "missing.jpg").string()), std::string::npos);
    EXPECT_EQ(KTCreationDate(folder / "missing.jpg"), std::nullopt);
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(fresh, fs::perms(0444));
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        const auto born = KTCreationDate(fresh);
        return KTSetCreationDate(fresh, date).kind == KTCreationDateOutcome::Failed &&
               (!born || KTSetCreationDate(fresh, *born).kind == KTCreationDateOutcome::Kept);
    }));
}

} // namespace
