#include "platform/tracklibrary/KTSmartRecentImportsFile.h"
#include "platform/tracklibrary/KTTrackPickerController.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FakePresenter.h"

#include <sstream>

namespace {

const std::string kTwoParts =
    gpx(R"(<wpt lat="1.23456789012345678" lon="2"><name>Hut</name><desc>warm</desc></wpt>
<wpt lat="3" lon="4"><time>2014-06-01T10:00:00Z</time><name>Peak</name></wpt>
<trk><name>Morning</name><trkseg><trkpt lat="46.1234567890123456" lon="14"><ele>-12.5</ele>
<time>2014-06-01T10:00:00.025Z</time></trkpt><trkpt lat="46.2" lon="14"/></trkseg>
<trkseg><trkpt lat="47" lon="14"><time>2014-06-01T11:00:00Z</time></trkpt></trkseg></trk>
<trk><name>Evening</name><trkseg><trkpt lat="46" lon="14"><time>2014-06-01T18:00:00Z</time></trkpt>
</trkseg></trk>
)");

/// The work of a track library in the background, in a file (1) or in memory (0).
class TrackLibraryWorkTest : public testing::TestWithParam<bool> {
protected:
    void waitForWork() {
        int idleTurns = 0; // what is posted brings more
        EXPECT_TRUE(runEventLoopUntil([&] {
            const bool isIdle = manager.isIdle() && !picker.isFetching() && !manager.importInProgress();
            idleTurns = isIdle ? idleTurns + 1 : 0;
            return idleTurns > 5;
        }));
    }
    void import(const KTTrackManager::Paths& files) {
        bool hasEnded = false;
        manager.importFilesAtPaths(files, [&](const auto& done) {
            imports = done;
            hasEnded = true;
        });
        EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded; }));
        waitForWork();
    }
    std::string everything() {
        std::vector<std::int64_t> ids;
        std::ostringstream out;
        for (const KTTrack& track : manager.store().tracks()) {
            ids.push_back(track.id);
            out << track.id << ' ' << track.name << ' ' << track.source << ' ' << track.datedPointCount
                << '\n';
        }
        EXPECT_EQ(manager.store().exportGPX(ids, out), "");
        return out.str();
    }
    std::string rows() {
        std::string names;
        for (const KTTrackRecord& record : *picker.trackSourceList().tracksAndWaypoints())
            names += std::string(record.entityName()) + ' ' + record.name() + '\n';
        return names;
    }

    TemporaryFolder folder;
    KTTrackManager manager{openStore(GetParam() ? folder / "library" : ":memory:")};
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>();
    KTTrackPickerController picker{manager};
    FakePresenter presenter;
    std::vector<KTTrackManager::ImportOfFile> imports;
};

INSTANTIATE_TEST_SUITE_P(Stores, TrackLibraryWorkTest, testing::Bool());

} // namespace

TEST_P(TrackLibraryWorkTest, RemovedTracksComeBackAsTheyWere) {
    import({folder.file("a.gpx", kTwoParts)});
    const std::string before = everything();
    const auto tracks = manager.store().tracks();
    ASSERT_EQ(tracks.size(), 3u);
    const std::int64_t morning = tracks[1].id, evening = tracks[2].id, waypoints = tracks[0].id;

    manager.removeTracks({morning}, undo);
    manager.removeTracks({evening, waypoints}, undo);
    waitForWork();
    EXPECT_TRUE(manager.store().tracks().empty());
    EXPECT_EQ(undo->undoActionName(), "Remove Tracks");
    undo->undo();
    waitForWork();
    EXPECT_EQ(manager.store().tracks().size(), 2u);
    undo->undo();
    waitForWork();
    EXPECT_EQ(everything(), before);
    EXPECT_TRUE(manager.importFile(folder / "a.gpx").alreadyImported) << "all of it is there again";
    undo->redo();
    undo->redo();
    undo->undo();
    undo->undo();
    waitForWork();
    EXPECT_EQ(everything(), before);
    EXPECT_TRUE(manager.store().pointPrecedingTime(instant(1401616800026)));
}

TEST_P(TrackLibraryWorkTest, PointsComeBackBehindThoseThatTookTheirNumbers) {
    import({folder.file("a.gpx", kTwoParts)});
    const std::int64_t evening = manager.store().tracks().back().id;
    manager.removeTracks({evening}, undo);
    waitForWork();
    import({folder.file("b.gpx", gpxTrack(trackPoint("10", "20", "2015-01-01T00:00:00Z") +
                                          trackPoint("11", "21", "2015-01-01T00:01:00Z")))});
    undo->undo();
    waitForWork();
    ASSERT_EQ(manager.store().segments(evening).size(), 1u);
    EXPECT_EQ(manager.store().segments(evening)[0][0].latitude, decimal("46"));
    EXPECT_EQ(manager.store().segments(manager.store().tracks().back().id)[0].size(), 2u);
    EXPECT_EQ(
        manager.store().tracksWithPointsAt({instant(1401645600000), instant(1420070400000), instant(5)}),
        (std::vector<std::optional<std::int64_t>>{evening, manager.store().tracks().back().id, {}}));
}

TEST_P(TrackLibraryWorkTest, WhatWasImportedAgainMeanwhileDoesNotComeTwice) {
    const auto file = folder.file("a.gpx", kTwoParts);
    import({file});
    manager.removeTracks({manager.store().tracks()[1].id}, undo);
    waitForWork();
    import({file});
    const std::string before = everything();
    undo->undo();
    waitForWork();
    EXPECT_EQ(everything(), before);
    undo->redo(); // removes nothing any more
    waitForWork();
    EXPECT_EQ(everything(), before);
}

TEST_P(TrackLibraryWorkTest, ImportsInTheBackgroundAndSaysWhatFailed) {
    std::vector<std::string> lines;
    auto observation = manager.observe([&](const KTChange& change) {
        if (change.key == "importDescription" && !change.isPrior &&
            (lines.empty() || lines.back() != manager.importDescription()))
            lines.push_back(manager.importDescription());
    });
    picker.setPresenter(&presenter);
    bool hasEnded = false;
    auto end = manager.observe([&](const KTChange& change) {
        hasEnded |= change.key == "importInProgress" && !change.isPrior && !manager.importInProgress();
    });
    picker.importFilesAtPaths(
        {folder.file("a.gpx", kTwoParts), folder.file("b.gpx", "<gpx"), folder / "none.gpx"});
    EXPECT_TRUE(manager.importInProgress());
    EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded && !presenter.alerts.empty(); }));
    waitForWork();
    EXPECT_EQ(lines, (std::vector<std::string>{"Importing track file 1 of 3", "Importing track file 2 of 3",
                                               "Importing track file 3 of 3", ""}));
    EXPECT_EQ(presenter.alerts.at(0).message, "2 track files could not be imported.");
    EXPECT_NE(presenter.alerts[0].informativeText.find("none.gpx: there is no such file"), std::string::npos);
    EXPECT_EQ(rows(), "KTTrack Morning\nKTTrack Evening\nKTWaypoint Hut\nKTWaypoint Peak\n");

    const std::int64_t morning = manager.store().tracks()[1].id;
    EXPECT_TRUE(runEventLoopUntil([&] { return picker.trackSourceList().isLengthKnown(morning); }));
    EXPECT_NEAR(*picker.trackSourceList().lengthOfTrack(morning), 8512, 10)
        << "without the way between segments";
    EXPECT_FALSE(manager.store().lengthOfTrack(manager.store().tracks()[2].id)) << "a single point";
}

TEST_P(TrackLibraryWorkTest, AStoppedImportAddsNothing) {
    std::string points;
    for (int i = 0; i < 50'000; ++i)
        points += trackPoint("1", "2", "2014-06-01T10:00:00Z");
    const auto large = folder.file("large.gpx", gpxTrack(points)),
               small = folder.file("small.gpx", kTwoParts);
    std::stop_source stop;
    stop.request_stop();
    const auto result = manager.importFile(large, stop.get_token());
    EXPECT_NE(result.error.find("large.gpx: the import was stopped"), std::string::npos) << result.error;

    bool hasEnded = false;
    manager.importFilesAtPaths({large, small}, [&](const auto& done) {
        imports = done;
        hasEnded = true;
    });
    manager.cancelImport();
    EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded; }));
    EXPECT_TRUE(imports.empty());
    EXPECT_TRUE(manager.store().tracks().empty());
    import({small});
    EXPECT_EQ(manager.store().tracks().size(), 3u) << "a new import is not stopped by an earlier wish";
}

TEST_P(TrackLibraryWorkTest, RecentImportsAreThoseOfTheLastRun) {
    KTSmartRecentImportsFile recent(manager);
    const auto first = folder.file("a.gpx", kTwoParts);
    const auto second = folder.file("b.gpx", gpxTrack(trackPoint("1", "2", "2015-06-01T10:00:00Z")));
    import({first});
    import({second});
    EXPECT_EQ(recent.trackPredicate(), manager.recentImportsPredicate());
    ASSERT_EQ(manager.recentImports().size(), 1u);
    EXPECT_EQ(manager.recentImports()[0].name(), "b.gpx");
    import({first, second}); // both are there already
    EXPECT_EQ(manager.recentImports().size(), 5u);
    import({folder / "none.gpx"});
    EXPECT_EQ(manager.recentImports().size(), 5u) << "a run that brings nothing leaves them";

    const auto near = manager.nearbyPredicatesForDates({instant(1433152800000)}).trackPredicate;
    const KTTrackPredicate either = near | KTTrackPredicate{.sources = {manager.store().tracks()[0].source}};
    EXPECT_EQ(manager.tracksForPredicate(either).size(), 3u);
    EXPECT_EQ(manager.waypointsForPredicate(either).size(), 2u)
        << "each once, though one is found by its time";
    EXPECT_EQ(manager.waypointsForPredicate(near).size(), 0u);
    EXPECT_EQ(manager.tracksForPredicate(KTTrackPredicate::everything()).size(), 3u);

    if (!GetParam())
        return;
    KTTrackManager later(openStore(folder / "library"));
    EXPECT_EQ(later.recentImportsPredicate().sources.size(), 2u) << "at first those of the last hour";
}

TEST_P(TrackLibraryWorkTest, ThePickerShowsAndKeepsWhatIsSelected) {
    import({folder.file("a.gpx", kTwoParts)});
    auto waypointsOnly = std::make_shared<KTSmartFile>("Waypoints");
    waypointsOnly->setTrackPredicate(KTTrackPredicate{});
    picker.addSmartFile(waypointsOnly);
    picker.setSelectedSourceList(waypointsOnly);
    waitForWork();
    EXPECT_EQ(rows(), "KTWaypoint Hut\nKTWaypoint Peak\n");
    picker.trackSourceList().setSelectedIndexes({1, 7});
    EXPECT_EQ(picker.trackSourceList().selectedTracksAndWaypoints().size(), 1u);
    picker.setSelectedSourceList(picker.sourceLists().front());
    waitForWork();
    EXPECT_EQ(rows(), "KTTrack Morning\nKTTrack Evening\nKTWaypoint Hut\nKTWaypoint Peak\n");
    EXPECT_EQ(picker.trackSourceList().selectedIndexes(), std::vector<std::size_t>{3});

    picker.setUndoManager(undo);
    picker.removeSelectedAction(); // the waypoints of the file, as a whole
    waitForWork();
    EXPECT_EQ(rows(), "KTTrack Morning\nKTTrack Evening\n");
    EXPECT_TRUE(picker.trackSourceList().selectedTracksAndWaypoints().empty());
    undo->undo();
    waitForWork();

    picker.setPresenter(&presenter);
    picker.trackSourceList().setSelectedIndexes({0});
    picker.exportSelectedAction();
    ASSERT_EQ(presenter.panels.size(), 1u);
    EXPECT_EQ(presenter.panels[0].proposedName, "Morning.gpx");
    presenter.panels[0].completion({folder / "out.gpx"});
    EXPECT_TRUE(runEventLoopUntil([&] { return std::filesystem::exists(folder / "out.gpx"); }));
    EXPECT_NE(contentOf(folder / "out.gpx").find("46.1234567890123456"), std::string::npos);
    presenter.panels[0].completion({folder / "missing" / "out.gpx"});
    EXPECT_TRUE(runEventLoopUntil([&] { return !presenter.alerts.empty(); }));
    EXPECT_EQ(presenter.alerts[0].message, "The tracks could not be exported.");
}
