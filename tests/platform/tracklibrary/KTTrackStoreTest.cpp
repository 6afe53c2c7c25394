#include "platform/tracklibrary/KTTrackStore.h"

#include "platform/tracklibrary/KTTrackPointSearch.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <fstream>
#include <future>
#include <random>
#include <rapidcheck/gtest.h>
#include <sstream>

namespace {

KTGeoPoint pointAt(std::int64_t milliseconds, const char* latitude = "46.05") {
    return {instant(milliseconds), decimal(latitude), decimal("14.5"), {}};
}

std::vector<KTGeoPoint> randomPoints(std::mt19937& random, std::size_t count) {
    std::vector<KTGeoPoint> points;
    auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    for (std::size_t i = 0; i < count; ++i) {
        KTGeoPoint point;
        if (below(8) > 0)
            point.date = instant(1'400'000'000'000 + below(60));
        if (below(5) > 0) {
            point.latitude = decimal(std::to_string(below(90)));
            point.longitude = decimal("-0.5");
        }
        if (below(2) > 0)
            point.elevation = decimal("-1.25");
        points.push_back(point);
    }
    return points;
}

/// The two searches, as plain loops.
struct Model {
    std::vector<KTGeoPoint> points;

    std::optional<KTGeoPoint> preceding(KTInstant time) const {
        std::optional<KTGeoPoint> best;
        for (const auto& point : points) {
            if (point.date && point.latitude && *point.date < time && (!best || *point.date >= *best->date))
                best = point;
        }
        return best;
    }
    std::optional<KTGeoPoint> following(KTInstant time) const {
        std::optional<KTGeoPoint> best;
        for (const auto& point : points) {
            if (point.date && point.latitude && *point.date >= time && (!best || *point.date < *best->date))
                best = point;
        }
        return best;
    }
};

void damage(const std::filesystem::path& file, std::mt19937& random) {
    std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
    auto size = static_cast<unsigned>(std::filesystem::file_size(file));
    for (int i = 0; i < 40; ++i) {
        stream.seekp(100 + random() % (size - 100)); // the header, which would end it all at once, stays
        stream.put(static_cast<char>(random()));
    }
}

} // namespace

TEST(KTTrackStore, SearchesAgreeWithPlainLoops) {
    std::mt19937 random(7);
    TemporaryFolder folder;
    for (const std::filesystem::path& file : {std::filesystem::path(":memory:"), folder / "library"}) {
        auto store = openStore(file);
        Model model;
        for (int import = 0; import < 4; ++import) {
            auto points = randomPoints(random, 50);
            ASSERT_EQ(importPoints(*store, points, "hash" + std::to_string(import)).error, "");
            model.points.insert(model.points.end(), points.begin(), points.end());
            for (std::int64_t offset = -2; offset < 63; ++offset) {
                KTInstant time = instant(1'400'000'000'000 + offset);
                EXPECT_EQ(store->pointPrecedingTime(time), model.preceding(time)) << offset;
                EXPECT_EQ(store->pointFollowingTime(time), model.following(time)) << offset;
            }
        }
        auto dated = std::ranges::count_if(model.points,
                                           [](const KTGeoPoint& point) { return point.date.has_value(); });
        EXPECT_EQ(store->countOfDatedPoints(), dated);
        EXPECT_EQ(store->countOfDatedPoints(1), 1);
    }
}

TEST(KTTrackStore, APointAtTheInstantIsTheNextOneAndNeverThePreceding) {
    auto store = openStore();
    EXPECT_EQ(store->countOfDatedPoints(1), 0);
    EXPECT_FALSE(store->pointFollowingTime(instant(0)));
    importPoints(*store, {pointAt(5000), {instant(5001), {}, {}, {}}});
    EXPECT_FALSE(store->pointPrecedingTime(instant(5000)));
    EXPECT_EQ(store->pointFollowingTime(instant(5000)), pointAt(5000));
    EXPECT_EQ(store->pointPrecedingTime(instant(5001)), pointAt(5000));
    EXPECT_FALSE(store->pointFollowingTime(instant(5001))) << "a point without position is passed over";
    EXPECT_EQ(store->countOfDatedPoints(), 2) << "but counts";
}

TEST(KTTrackStore, KeepsDigitsAndMillisecondsAcrossReopening) {
    TemporaryFolder folder;
    KTGeoPoint point{instant(-1'500'000'000'001), decimal("-46.12345678901234567890123"), decimal("0.1"),
                     decimal("-0.000000012")};
    importPoints(*openStore(folder / "new" / "library"), {point});
    EXPECT_EQ(openStore(folder / "new" / "library")->pointFollowingTime(instant(-1'500'000'000'001)), point);
}

TEST(KTTrackPointSearch, FindsTheNearestOfAllStores) {
    std::mt19937 random(3);
    auto first = openStore(), second = openStore(), empty = openStore();
    Model model;
    for (KTTrackStore* store : {first.get(), second.get()}) {
        std::vector<KTGeoPoint> points;
        for (int i = 0; i < 30; ++i) // dates of the two stores differ
            points.push_back(
                pointAt(static_cast<std::int64_t>(random() % 1000) * 2 + (store == second.get())));
        importPoints(*store, points);
        model.points.insert(model.points.end(), points.begin(), points.end());
    }
    KTTrackPointSearch search({empty.get(), first.get(), second.get()});
    for (std::int64_t time = -5; time < 2005; ++time) {
        ASSERT_EQ(search.pointPrecedingTime(instant(time)), model.preceding(instant(time))) << time;
        ASSERT_EQ(search.pointFollowingTime(instant(time)), model.following(instant(time))) << time;
    }
    EXPECT_EQ(search.countOfDatedPoints(), 60);
    EXPECT_EQ(search.countOfDatedPoints(40), 40);

    auto user = openStore(), run = openStore();
    importPoints(*user, {pointAt(0, "1")});
    importPoints(*run, {pointAt(0, "2")});
    EXPECT_EQ(KTTrackPointSearch({run.get(), user.get()}).pointFollowingTime(instant(0)), pointAt(0, "2"));
    EXPECT_EQ(KTTrackPointSearch({run.get(), user.get()}).pointPrecedingTime(instant(1)), pointAt(0, "2"));
}

TEST(KTTrackStore, SearchesGoOnDuringAnImportAndSeeNothingOfItBeforeItsEnd) {
    TemporaryFolder folder;
    auto store = openStore(folder / "library");
    importPoints(*store, {pointAt(0)}, "first");
    std::promise<void> isHalfWay, mayFinish;
    auto import = std::async(std::launch::async, [&] {
        return store->importTracks("second.gpx", [&](TrackFileSink& sink) {
            sink.beginTrack(KTTrack::Kind::Track);
            for (int i = 1; i <= 200000; ++i) // enough to spill into the file
                sink.addPoint({instant(i), *TrackNumber::fromText("1"), *TrackNumber::fromText("2"), {}});
            isHalfWay.set_value();
            mayFinish.get_future().wait();
            sink.endTrack("second");
            return TrackFileContent{{}, "second", 2};
        });
    });
    isHalfWay.get_future().wait();
    auto searcher = [&] {
        int found = 0;
        for (int i = 0; i < 200; ++i)
            found += store->pointPrecedingTime(instant(100 + i)) == pointAt(0);
        return found;
    };
    auto other = std::async(std::launch::async, searcher);
    EXPECT_EQ(searcher(), 200);
    EXPECT_EQ(other.get(), 200);
    EXPECT_EQ(store->tracks().size(), 1u);
    std::ostringstream exported;
    EXPECT_EQ(store->exportGPX({1}, exported), "");
    mayFinish.set_value();
    EXPECT_EQ(import.get().pointCount, 200000);
    EXPECT_EQ(store->pointPrecedingTime(instant(101))->date, instant(100));
}

TEST(KTTrackStore, AFailedReadLeavesNothing) {
    auto store = openStore();
    for (int kind = 0; kind < 2; ++kind) {
        auto result = store->importTracks("bad.gpx", [&](TrackFileSink& sink) -> TrackFileContent {
            sink.beginTrack(KTTrack::Kind::Track);
            for (int i = 0; i < 50000; ++i)
                sink.addPoint({instant(i), *TrackNumber::fromText("1"), *TrackNumber::fromText("2"), {}});
            if (kind == 0)
                throw std::runtime_error("out of paper");
            return {TrackFileProblem{12, "out of paper"}, "", 0};
        });
        EXPECT_EQ(result.error, kind == 0 ? "bad.gpx: out of paper" : "bad.gpx, line 12: out of paper");
    }
    EXPECT_EQ(store->countOfDatedPoints(), 0);
    EXPECT_TRUE(store->tracks().empty());
}

TEST(KTTrackStore, AnImportThatCannotBeWrittenEndsItsReader) {
    TemporaryFolder folder;
    auto store = openStore(folder / "library");
    {
        SQLite::Database other((folder / "library").string(), SQLite::OPEN_READWRITE);
        other.exec("DROP TABLE segment");
    }
    auto result = store->importTracks("a.gpx", [](TrackFileSink& sink) {
        while (!sink.isClosed()) {
            sink.beginTrack(KTTrack::Kind::Track);
            sink.addPoint({});
            sink.endTrack("");
        }
        return TrackFileContent{};
    });
    EXPECT_NE(result.error.find("track library cannot be used"), std::string::npos) << result.error;
}

TEST(KTTrackStore, RefusesDatabasesThatAreNoTrackLibraryAndLeavesThemAlone) {
    TemporaryFolder folder;
    auto foreign = folder / "foreign", newer = folder / "newer";
    SQLite::Database(foreign.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE t(x)");
    openStore(newer);
    SQLite::Database(newer.string(), SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 99");
    const std::pair<std::filesystem::path, const char*> files[] = {
        {folder.file("text", std::string(5000, 'x')), "not a database"},
        {foreign, "another program"},
        {newer, "newer version"},
        {folder.path(), "cannot be opened"},
        {folder / "text" / "below", "cannot be opened"},
    };
    for (const auto& [file, words] : files) {
        auto before = std::filesystem::is_regular_file(file) ? contentOf(file) : "";
        auto opened = KTTrackStore::open(file);
        EXPECT_FALSE(opened.store) << words;
        EXPECT_NE(opened.error.find(words), std::string::npos) << opened.error;
        EXPECT_NE(opened.error.find(file.string()), std::string::npos) << opened.error;
        EXPECT_EQ(std::filesystem::is_regular_file(file) ? contentOf(file) : "", before) << words;
    }
}

TEST(KTTrackStore, ADamagedLibraryGivesErrorsAndNeverACrash) {
    TemporaryFolder folder;
    std::mt19937 random(11);
    importPoints(*openStore(folder / "whole"), randomPoints(random, 5000));
    int refused = 0;
    for (int round = 0; round < 60; ++round) {
        auto file = folder / ("damaged" + std::to_string(round));
        std::filesystem::copy_file(folder / "whole", file);
        if (round % 4 == 0)
            std::filesystem::resize_file(file, 4096u * (1 + static_cast<unsigned>(round) / 4));
        else
            damage(file, random);
        auto opened = KTTrackStore::open(file);
        refused += !opened.store;
        if (!opened.store)
            continue;
        for (std::int64_t offset = 0; offset < 60; offset += 20) {
            opened.store->pointPrecedingTime(instant(1'400'000'000'000 + offset));
            opened.store->pointFollowingTime(instant(1'400'000'000'000 + offset));
        }
        std::ostringstream out;
        opened.store->exportGPX({1}, out);
        opened.store->segments(1);
        importPoints(*opened.store, {pointAt(0)}, "more");
        opened.store->deleteTracks({1, 2});
    }
    EXPECT_GT(refused, 0);
}
