#include "tests/geotagging/GeotaggingWorld.h"

#include "geotagging/KTMultipleSelectionLinkerViewController.h"
#include "geotagging/KTSingleSelectionLinkerViewController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/concurrency/KTLatch.h"
#include "platform/gazetteer/KTGazetteer.h"

#include <cmath>

namespace {

using Photo = KTPhotoManager::Photo;
using Photos = KTPhotoManager::Photos;

class Geotagger : public testing::Test, protected GeotaggingWorld {
protected:
    void SetUp() override {
        KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(KTTimeZone::utc());
        geotagger.setup();
        geotagger.setShouldActivelyGeotag(true);
    }

    /// Waits for a computation of exactly the selected photos with the points that are known in the end.
    KTGeotagger::Computation computed(const std::function<bool(const KTGeotaggingComputation&)>& isExpected =
                                          [](const auto&) { return true; }) {
        EXPECT_TRUE(runEventLoopUntil([&] {
            const auto computation = geotagger.computation();
            Photos judged;
            for (const KTGeotaggingFate& fate : computation->fates)
                judged.push_back(fate.photo);
            return judged == *manager.selectedPhotos() && computation->photosBeingLinked == 0 &&
                   isExpected(*computation);
        }));
        return geotagger.computation();
    }
    /// Waits for a computation with so many successes.
    KTGeotagger::Computation successes(std::size_t count) {
        return computed(
            [count](const auto& computation) { return computation.counters.totalSuccesses == count; });
    }
    void waitForCandidates(std::size_t count) {
        EXPECT_TRUE(runEventLoopUntil([&] { return geotagger.standardPointArray().size() == count; }));
    }
    void waitForBatch() {
        EXPECT_TRUE(runEventLoopUntil(
            [&] { return !geotagger.isBatchOperationInProgress() && !batches.batchSaveInProgress(); }));
    }
    static std::vector<std::optional<KTInstant>> datesOf(const KTGeotagger::Points& points) {
        std::vector<std::optional<KTInstant>> dates;
        for (const auto& point : points)
            dates.push_back(point->date());
        return dates;
    }
    using Dates = std::vector<std::optional<KTInstant>>;

    KTGeotagger geotagger{controller, {&tracks}, batches};
};

TEST_F(Geotagger, ProposesPointsForTheSelectionInItsOrder) {
    importTrack({-240, 600, 2000});
    const Photo late = add(1990), early = add(0), far = add(1200), undated = add(std::nullopt),
                tagged = add(0);
    tagged->setValuesForKeysWithDictionary({{"latitude", degrees(5)}, {"longitude", degrees(5)}}, "test");
    manager.setPhotoSortDescriptors({{"dateTimeOriginalComponents", true}});
    select({late, early});
    const auto two = successes(2);
    EXPECT_EQ(datesOf(geotagger.batchPointArray()), (Dates{at(-240), at(2000)}));
    EXPECT_EQ(geotagger.operationArray().size(), 2u);
    EXPECT_EQ(geotagger.totalPreceding(), 1u);
    EXPECT_EQ(geotagger.totalNext(), 1u);
    EXPECT_EQ(two->batchPointArray[0]->photo(), early);
    select({late, early, far, undated, tagged});
    const auto all = computed();
    EXPECT_EQ(all->counters, (KTGeotaggingCounters{.totalSuccesses = 2,
                                                   .totalPreceding = 1,
                                                   .totalNext = 1,
                                                   .previouslyGeotaggedFailures = 1,
                                                   .noDateTimeOriginalFailures = 1,
                                                   .timeCriteriaFailures = 1}));
    EXPECT_EQ(geotagger.totalFailures(), 3u);
    tagged->setDateTimeOriginal(std::nullopt);
    EXPECT_EQ(computed()->counters.previouslyGeotaggedFailures, 1u) << "whatever its date";
    geotagger.setShouldActivelyGeotag(false);
    runEventLoopUntil([turns = 0]() mutable { return turns++ > 5; }); // what is under way still ends
    select({far});
    runEventLoopUntil([turns = 0]() mutable { return turns++ > 5; });
    EXPECT_EQ(geotagger.computation()->fates.size(), 5u) << "nobody looks";
    geotagger.setShouldActivelyGeotag(true);
    EXPECT_EQ(computed()->counters.timeCriteriaFailures, 1u);
}

TEST_F(Geotagger, KeepsItsSettingsAndFollowsThem) {
    importTrack({-400, 300});
    select({add(0)});
    EXPECT_EQ(computed()->counters.timeCriteriaFailures, 1u) << "300 s are not less than 300 s";
    geotagger.setTimeRestriction(300.5);
    EXPECT_EQ(datesOf(successes(1)->batchPointArray), (Dates{at(300)}));
    geotagger.setShouldUseTimeWeightedAverage(true);
    const auto weighted = computed([](const auto& c) { return c.criteria.shouldUseTimeWeightedAverage; });
    EXPECT_EQ(weighted->batchPointArray.at(0)->linkablePointType(), KTLinkablePointTypeTimeWeighted);
    EXPECT_EQ(weighted->counters.totalPreceding + weighted->counters.totalNext, 0u);
    set("timeRestriction", 1); // as the preferences would
    successes(0);
    geotagger.setTimeRestriction(std::nan(""));
    geotagger.setDistanceRestriction(-1);
    EXPECT_EQ(geotagger.timeRestriction(), 0);
    EXPECT_EQ(geotagger.distanceRestriction(), 0);
    geotagger.setShouldUseTimeRestriction(false);
    successes(1);
    geotagger.setShouldUseDistanceRestriction(true);
    EXPECT_EQ(computed([](const auto& c) {
                  return c.counters.distanceCriteriaFailures == 1;
              })->counters.totalFailures(),
              1u);
    EXPECT_TRUE(geotagger.shouldAutoAdvanceToNextPhoto());
    EXPECT_FALSE(geotagger.shouldANDRestrictions());
}

TEST_F(Geotagger, MergesRequests) {
    const Photo photo = add(0);
    computed();
    KTLatch isComputing, goOn;
    std::atomic<int> computations = 0;
    const auto observation = geotagger.observe([&](const KTChange& change) {
        if (change.key != "batchPointArray" || change.isPrior || ++computations > 1)
            return;
        isComputing.signal();
        goOn.wait();
    });
    select({photo});
    isComputing.wait();
    for (int i = 0; i < 20; ++i)
        geotagger.setTimeRestriction(100 + i);
    goOn.signal();
    computed([](const auto& c) { return c.criteria.timeRestriction == 119; });
    runEventLoopUntil([turns = 0]() mutable { return turns++ > 5; });
    EXPECT_LE(computations, 3) << "one for the selection, one for the requests, one when it is linked";
}

TEST_F(Geotagger, JudgesPhotosAgainWhenTheyAreLinked) {
    const auto track = importTrack({-10});
    const Photo photo = add(0);
    EXPECT_TRUE(runEventLoopUntil([&] { return geotagger.hasLoadedValidTracks(); }));
    {
        HeldLibrary library(tracks.store());
        photo->setDateTimeOriginal(at(1));
        select({photo});
        EXPECT_TRUE(runEventLoopUntil([&] { return geotagger.computation()->photosBeingLinked == 1; }));
        EXPECT_EQ(geotagger.timeCriteriaFailures(), 1u);
        EXPECT_TRUE(geotagger.operationArray().empty());
    }
    successes(1);
    geotagger.setShouldUseTimeRestriction(false);
    tracks.deleteTracks(track);
    const auto none = computed(
        [](const auto& c) { return !c.criteria.shouldUseTimeRestriction && c.batchPointArray.empty(); });
    EXPECT_EQ(none->counters, KTGeotaggingCounters())
        << "accepted, and no point: neither success nor failure";
    EXPECT_TRUE(runEventLoopUntil([&] { return !geotagger.hasLoadedValidTracks(); }));
}

TEST_F(Geotagger, WritesWhatItProposesAsOneStep) {
    importTrack({-10, 90});
    const Photos photos = {add(0), add(100), add(9999)};
    select(photos);
    successes(2);
    std::atomic<std::size_t> writtenAtTheFirst = 0;
    std::atomic<int> computations = 0;
    const auto observation = geotagger.observe([&](const KTChange& change) {
        if (change.key == "batchPointArray" && !change.isPrior && computations++ == 0)
            writtenAtTheFirst = geotagger.previouslyGeotaggedFailures();
    });
    geotagger.batchSave();
    EXPECT_TRUE(geotagger.isBatchOperationInProgress());
    geotagger.batchSave(); // pressed twice
    waitForBatch();
    EXPECT_EQ(batches.batchProgressMax(), 2u);
    EXPECT_EQ(writtenAtTheFirst, 0u) << "the computation comes before the writing";
    EXPECT_EQ(photos[0]->decimalForKey("latitude"), degrees(0));
    EXPECT_EQ(photos[1]->decimalForKey("longitude"), degrees(1));
    EXPECT_FALSE(photos[2]->isGeotagged());
    EXPECT_EQ(successes(0)->counters.previouslyGeotaggedFailures, 2u);
    EXPECT_EQ(undo->undoActionName(), "Geotag Photos");
    undo->undo();
    EXPECT_FALSE(photos[0]->isGeotagged() || photos[1]->isGeotagged());
    successes(2); // the photos can be geotagged again
    undo->redo();
    EXPECT_EQ(successes(0)->counters.previouslyGeotaggedFailures, 2u);
    controller.removeLocationCreatedAction(photos);
    successes(2);
}

TEST_F(Geotagger, LeavesAlonePhotosThatWereEditedSince) {
    importTrack({-10, 90});
    const Photo moved = add(0), tagged = add(0), kept = add(0);
    select({moved, tagged, kept});
    const auto proposed = successes(3);
    moved->setDateTimeOriginal(at(95));
    tagged->setValuesForKeysWithDictionary({{"latitude", degrees(7)}, {"longitude", degrees(7)}}, "test");
    bool hasEnded = false;
    batches.batchProcessOperations(proposed->operations(), {}, [&] { hasEnded = true; });
    EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded; }));
    EXPECT_FALSE(moved->isGeotagged());
    EXPECT_EQ(tagged->decimalForKey("latitude"), degrees(7));
    EXPECT_EQ(kept->decimalForKey("latitude"), degrees(0));
    successes(1); // what was judged before the batch has three, too
    geotagger.setShouldIgnorePreviouslyTaggedPhotos(false);
    successes(3);
    geotagger.batchSave();
    waitForBatch();
    EXPECT_EQ(tagged->decimalForKey("latitude"), degrees(0));
    EXPECT_EQ(moved->decimalForKey("latitude"), degrees(1));
}

TEST_F(Geotagger, OffersTheCandidatesOfASinglePhoto) {
    importTrack({-10, 30});
    const Photo first = add(0), second = add(10), third = add(20);
    KTSingleSelectionLinkerViewController panel(geotagger);
    panel.setup();
    const Announcements changes(panel, "precedingPoint");
    select({first});
    waitForCandidates(3);
    EXPECT_EQ(geotagger.standardPointArray(),
              (KTGeotagger::Points{panel.precedingPoint(), panel.nextPoint(), panel.timeWeightedPoint()}));
    EXPECT_EQ(changes.count(), 1);
    panel.saveNextPointAction();
    EXPECT_EQ(first->decimalForKey("latitude"), degrees(1));
    EXPECT_EQ(*controller.selectedPhotos(), Photos{second}) << "advances";
    panel.savePrecedingPointAction(); // its candidates are not there yet
    EXPECT_FALSE(second->isGeotagged());
    EXPECT_TRUE(runEventLoopUntil([&] { return panel.nextPoint() && panel.nextPoint()->photo() == second; }));
    geotagger.setShouldAutoAdvanceToNextPhoto(false);
    panel.saveTimeWeightedPointAction();
    EXPECT_EQ(second->decimalForKey("latitude"), degrees(1) / KTDecimal::fromInteger(2));
    EXPECT_EQ(*controller.selectedPhotos(), Photos{second});
    select({third});
    EXPECT_TRUE(runEventLoopUntil([&] { return panel.nextPoint() && panel.nextPoint()->photo() == third; }));
    third->setDateTimeOriginal(at(25));
    panel.savePrecedingPointAction(); // of a former instant
    EXPECT_FALSE(third->isGeotagged());
    select({first, second});
    waitForCandidates(0);
    EXPECT_FALSE(panel.precedingPoint());
    panel.tearDown();
}

TEST_F(Geotagger, GeotagsPhotosToAGivenPoint) {
    const Photos photos = {add(0), add(std::nullopt)};
    select(photos);
    EXPECT_EQ(computed()->counters.noDateTimeOriginalFailures, 1u);
    const auto point = KTLinkablePoint::initWithGeoPoint(
        {.latitude = degrees(20000), .longitude = degrees(30000)}, KTLinkablePointTypeMapPoint);
    geotagger.geotagPhotos(photos, point);
    geotagger.geotagPhotosToLocationShown(photos, point);
    EXPECT_TRUE(runEventLoopUntil(
        [&] { return !batches.batchSaveInProgress() && photos[1]->hasLatitudeLongitudeShown(); }));
    EXPECT_EQ(photos[1]->decimalForKey("longitude"), degrees(30000));
    EXPECT_EQ(photos[0]->decimalForKey("latitudeShown"), degrees(20000));
    EXPECT_EQ(computed([](const auto& c) {
                  return c.counters.previouslyGeotaggedFailures == 2;
              })->counters.totalFailures(),
              2u)
        << "the proposals follow";
}

TEST_F(Geotagger, DescribesTheBatch) {
    importTrack({-10});
    const Photo undated = add(std::nullopt);
    KTMultipleSelectionLinkerViewController panel(geotagger);
    panel.setup();
    EXPECT_EQ(panel.summary().successButtonTitle, "Geotag Photos");
    select({add(0), add(1), undated});
    EXPECT_TRUE(runEventLoopUntil([&] { return panel.summary().hasSuccesses; }));
    EXPECT_EQ(panel.summary().successDescription, "2 photos can be geotagged");
    EXPECT_EQ(panel.summary().failureDescription, "1 photo does not have a time stamp.");
    EXPECT_FALSE(panel.shouldShowCircleFlag());
    geotagger.setShouldUseTimeWeightedAverage(true);
    EXPECT_TRUE(runEventLoopUntil([&] { return panel.shouldShowCircleFlag(); }));
    std::vector<std::string> lines;
    const auto progress = batches.observe([&](const KTChange& change) {
        if (change.key == "batchProgressDescription" && !change.isPrior)
            lines.push_back(batches.batchProgressDescription());
    });
    panel.batchSaveAction();
    EXPECT_TRUE(runEventLoopUntil([&] { return panel.summary().hasAlreadyGeotagged; }));
    EXPECT_EQ(panel.summary().alreadyGeotaggedDescription, "2 photos already geotagged.");
    const std::string geocoder = KTGazetteer::sharedGazetteer().selectedReverseGeocoder()->name();
    EXPECT_EQ(lines.front(),
              "Geotagging photo 0 of 2. Fetching the location description from " + geocoder + "…");
    waitForBatch();
    panel.tearDown();
}

} // namespace
