#include "app/thumbnails/KTThumbnailService.h"
#include "tests/support/EventLoop.h"
#include "tests/support/TestPhotos.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

class ThumbnailServiceTest : public testing::Test {
protected:
    std::filesystem::path photo(const std::string& name, int width = 300) {
        const std::filesystem::path file = folder / name;
        QImage image(width, width * 2 / 3, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        image.save(QString::fromStdString(file.string()));
        return file;
    }
    bool waitFor(KTThumbnailService& service, const std::filesystem::path& file, int edge = 100) {
        return runEventLoopUntil([&] {
            const auto thumbnail = service.thumbnail(file, edge);
            return !thumbnail.image.isNull() || !thumbnail.problem.empty();
        });
    }
    std::filesystem::path onlyFileIn(const std::filesystem::path& place) {
        std::filesystem::directory_iterator entry(place);
        return entry == std::filesystem::directory_iterator() ? std::filesystem::path() : entry->path();
    }

    TemporaryFolder folder;
    ThumbnailFileCache cache{folder / "cache"};
};

TEST_F(ThumbnailServiceTest, MakesWhatIsWantedOnceHoweverManyWantIt) {
    const auto file = photo("a.jpg");
    KTThumbnailService service(cache);
    EXPECT_TRUE(service.thumbnail(file, 100).image.isNull());
    int clients[2];
    service.setWishes(&clients[0], {{file, 100}, {file, 90}});
    service.setWishes(&clients[1], {{file, 110}});
    ASSERT_TRUE(waitFor(service, file));
    EXPECT_EQ(service.thumbnail(file, 100).image.width(), 128);
    EXPECT_EQ(service.picturesMade(), 1U);
}

TEST_F(ThumbnailServiceTest, DropsWhatIsNoLongerWanted) {
    KTThumbnailService service(cache, {.threads = 1});
    std::vector<KTThumbnailService::Wish> many;
    for (int i = 0; i < 60; ++i)
        many.push_back({photo("p" + std::to_string(i) + ".png", 1200), 500});
    const auto last = photo("last.jpg");
    service.setWishes(this, many);
    service.setWishes(this, {{last, 100}});
    ASSERT_TRUE(waitFor(service, last));
    EXPECT_LE(service.picturesMade(), 3U);
}

TEST_F(ThumbnailServiceTest, KeepsWithinItsMemoryAndWhatWasUsedLast) {
    KTThumbnailService service(cache, {.memory = 300'000, .threads = 1}); // some 8 pictures of 128 × 85
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < 20; ++i) {
        files.push_back(photo("p" + std::to_string(i) + ".jpg"));
        service.setWishes(this, {{files.back(), 100}});
        ASSERT_TRUE(waitFor(service, files.back()));
        EXPECT_FALSE(service.thumbnail(files.front(), 100).image.isNull());
        EXPECT_LE(service.bytesInMemory(), 300'000U);
    }
    EXPECT_TRUE(service.thumbnail(files[1], 100).image.isNull());
}

TEST_F(ThumbnailServiceTest, SharesWithOtherProgramsWhatIsValid) {
    const auto file = photo("bäh & 100%.jpg");
    {
        KTThumbnailService service(cache);
        service.setWishes(this, {{file, 200}});
        ASSERT_TRUE(waitFor(service, file, 200));
    }
    const auto shared = onlyFileIn(folder / "cache/large");
    ASSERT_FALSE(shared.empty());
    EXPECT_EQ(std::filesystem::status(shared).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    const QImage stored(QString::fromStdString(shared.string()));
    EXPECT_EQ(stored.text("Thumb::URI").toStdString(),
              "file://" + folder.path().string() + "/b%C3%A4h%20&%20100%25.jpg");
    EXPECT_FALSE(stored.text("Thumb::MTime").isEmpty());

    EXPECT_EQ(cache.load(file, ThumbnailSize::Large).width(), 256);
    EXPECT_EQ(cache.load(file, ThumbnailSize::Normal).width(), 128); // from the larger one
    EXPECT_TRUE(cache.load(file, ThumbnailSize::ExtraLarge).isNull());
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + std::chrono::hours(1));
    EXPECT_TRUE(cache.load(file, ThumbnailSize::Large).isNull()); // the photo has changed
}

TEST_F(ThumbnailServiceTest, AreTurnedByASidecarBehindTheSharedCache) {
    const auto file = photo("a.jpg");
    folder.file("a.xmp", "<rdf:Description tiff:Orientation='8'/>");
    for (int round = 0; round < 2; ++round) { // made, then from the cache
        KTThumbnailService service(cache);
        service.setWishes(this, {{file, 100}});
        ASSERT_TRUE(waitFor(service, file));
        EXPECT_EQ(service.thumbnail(file, 100).image.height(), 128);
        EXPECT_LT(service.thumbnail(file, 100).image.width(), 128);
    }
    EXPECT_EQ(cache.load(file, ThumbnailSize::Normal).width(), 128);
}

TEST_F(ThumbnailServiceTest, ABrokenFileIsNotTriedAgainUntilItChanges) {
    const auto broken = folder.file("a.jpg", "no picture");
    {
        KTThumbnailService service(cache);
        service.setWishes(this, {{broken, 100}});
        ASSERT_TRUE(waitFor(service, broken));
        EXPECT_FALSE(service.thumbnail(broken, 100).problem.empty());
        service.setWishes(this, {{broken, 300}});
        const auto good = photo("b.jpg");
        service.setWishes(this, {{broken, 300}, {good, 100}});
        ASSERT_TRUE(waitFor(service, good));
        EXPECT_EQ(service.picturesMade(), 2U);

        photo("a.jpg");
        service.forget(broken);
        ASSERT_TRUE(runEventLoopUntil([&] { return !service.thumbnail(broken, 100).image.isNull(); }));
    }
    const auto other = folder.file("c.jpg", "no picture");
    cache.noteFailure(other);
    EXPECT_TRUE(cache.hasFailed(other));
    std::filesystem::last_write_time(other, std::filesystem::last_write_time(other) + std::chrono::hours(1));
    EXPECT_FALSE(cache.hasFailed(other));
}

TEST_F(ThumbnailServiceTest, EndsWhileItIsAtWork) {
    std::vector<KTThumbnailService::Wish> many;
    for (int i = 0; i < 20; ++i)
        many.push_back({photo("p" + std::to_string(i) + ".jpg"), 100});
    for (int i = 0; i < 5; ++i) {
        KTThumbnailService service(ThumbnailFileCache(folder / std::to_string(i)));
        service.setWishes(this, many);
        if (i > 2)
            waitFor(service, many.front().file);
    }
}

} // namespace
