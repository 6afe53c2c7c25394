#include "tests/geotagging/GeotaggingWorld.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/geodesy/KTGeodesy.h"

#include <random>
#include <rapidcheck.h>
#include <set>

namespace {

using Photo = KTPhotoManager::Photo;
using Links = KTLinkingOperation::Result;

struct LinkerWorld : GeotaggingWorld {
    ~LinkerWorld() { linker->tearDown(); }

    /// Waits until the photo is linked.
    Links linked(const Photo& photo) {
        EXPECT_TRUE(runEventLoopUntil([&] { return linker->linkedPointsForPhoto(photo) != nullptr; }));
        return linker->linkedPointsForPhoto(photo);
    }
    bool isLinking(const Photo& photo) const { return !linker->linkedPointsForPhoto(photo); }

    const std::shared_ptr<KTAsynchronousWaymark> linker =
        std::make_shared<KTAsynchronousWaymark>(controller, KTAsynchronousWaymark::TrackManagers{&tracks});
};

class Linker : public testing::Test, protected LinkerWorld {};

KTGeoPoint point(double seconds, const char* latitude, const char* longitude, const char* elevation = "") {
    return {GeotaggingWorld::at(seconds), KTDecimal::fromText(latitude), KTDecimal::fromText(longitude),
            KTDecimal::fromText(elevation)};
}

std::string text(const std::optional<KTDecimal>& number) {
    return number ? number->toText() : "-";
}

/// Latitude, longitude and elevation of the three points of a photo taken at noon.
std::vector<std::string> found(const std::vector<KTGeoPoint>& points) {
    LinkerWorld world;
    importPoints(world.tracks.store(), points);
    const Photo photo = world.add(0);
    world.linker->setup();
    const Links links = world.linked(photo);
    std::vector<std::string> texts;
    for (const auto& linkable : {links->preceding, links->next, links->interpolated})
        texts.push_back(linkable ? text(linkable->latitude()) + " " + text(linkable->longitude()) + " " +
                                       text(linkable->elevation())
                                 : "none");
    return texts;
}

using Texts = std::vector<std::string>;

TEST(LinkingOperation, FindsThePointsAroundTheCaptureInstant) {
    EXPECT_EQ(found({}), (Texts{"none", "none", "none"}));
    EXPECT_EQ(found({point(1, "1", "2", "3")}), (Texts{"none", "1 2 3", "none"}));
    EXPECT_EQ(found({point(-1, "1", "2", "3")}), (Texts{"1 2 3", "none", "none"}));
    EXPECT_EQ(found({point(-10, "1", "2", "4"), point(0, "3", "6", "8"), point(5, "9", "9", "9")}),
              (Texts{"1 2 4", "3 6 8", "3 6 8"}))
        << "at the instant itself";
    EXPECT_EQ(found({point(-30, "1", "2", "4"),
                     {GeotaggingWorld::at(-1)},
                     {GeotaggingWorld::at(1)},
                     point(10, "3", "6", "8")}),
              (Texts{"1 2 4", "3 6 8", "2.5 5 7"}))
        << "without a position";
    EXPECT_EQ(found({point(-10, "0", "179"), point(10, "0", "-179", "5")}),
              (Texts{"0 179 -", "0 -179 5", "0 0 -"}))
        << "on both sides of the antimeridian; one elevation";
}

TEST_F(Linker, DescribesWhatItFinds) {
    importPoints(tracks.store(), {point(-90.6, "47", "8"), point(30, "47.001", "8")});
    const Photo photo = add(0);
    linker->setup();
    const Links links = linked(photo);
    EXPECT_EQ(links->instant, at(0));
    EXPECT_EQ(linker->precedingPointForPhoto(photo)->linkablePointType(), KTLinkablePointTypePreceding);
    EXPECT_EQ(linker->precedingPointForPhoto(photo)->date(), at(-90.6));
    EXPECT_EQ(linker->nextPointForPhoto(photo)->linkablePointType(), KTLinkablePointTypeNext);
    const auto between = linker->interpolatedPointForPhoto(photo);
    EXPECT_EQ(between->linkablePointType(), KTLinkablePointTypeTimeWeighted);
    EXPECT_FALSE(between->date());
    EXPECT_EQ(between->photo(), photo);
    const double whole = KTEarthDistance(8, 47, 8, 47.001);
    EXPECT_NEAR(between->precedingDistance(), whole * 90.6 / 120.6, 0.01);
    EXPECT_NEAR(between->nextDistance(), whole * 30 / 120.6, 0.01);
    EXPECT_EQ(between->pointLongDescription(), between->pointDescription() + " for " + photo->filename());

    const Photo undated = add(std::nullopt);
    EXPECT_FALSE(linked(undated)->preceding || linked(undated)->next || linked(undated)->interpolated);
}

TEST_F(Linker, FollowsTracksThatComeAndGo) {
    const Announcements changes(*linker, "hasLoadedValidTracks");
    const Photo early = add(0), late = add(100);
    linker->setup();
    EXPECT_FALSE(linked(early)->next);
    EXPECT_FALSE(linker->hasLoadedValidTracks());
    const auto first = importTrack({10, 90}), second = importTrack({50, 120}, 10);
    EXPECT_TRUE(runEventLoopUntil([&] { return linker->hasLoadedValidTracks(); }));
    EXPECT_EQ(linked(early)->next->date(), at(10));
    EXPECT_EQ(linked(late)->preceding->date(), at(90));
    tracks.deleteTracks(first);
    EXPECT_EQ(linked(early)->next->date(), at(50));
    EXPECT_EQ(linked(late)->preceding->latitude(), degrees(10));
    tracks.deleteTracks(second);
    EXPECT_TRUE(runEventLoopUntil([&] { return !linker->hasLoadedValidTracks(); }));
    EXPECT_FALSE(linked(early)->next);
    EXPECT_EQ(changes.count(), 2);
    linker->tearDown();
    EXPECT_TRUE(isLinking(early)) << "nothing is known of it any more";
    importTrack({10});
    EXPECT_TRUE(isLinking(early));
}

TEST_F(Linker, NeverShowsPointsOfAFormerInstant) {
    importTrack({-10, 10, 90, 110});
    const Photo photo = add(0), other = add(0);
    linker->setup();
    EXPECT_EQ(linked(photo)->next->date(), at(10));
    select({photo});
    HeldLibrary library(tracks.store());
    photo->setDateTimeOriginal(at(50)); // its operation runs, and is held
    EXPECT_TRUE(isLinking(photo));
    EXPECT_FALSE(linker->precedingPointForPhoto(photo));
    EXPECT_FALSE(isLinking(other));
    photo->setDateTimeOriginal(at(60)); // this one is queued
    photo->setDateTimeOriginal(at(100));
    library.open();
    EXPECT_EQ(linked(photo)->instant, at(100)) << "the first result that is shown";
    EXPECT_EQ(linked(photo)->preceding->date(), at(90));
    photo->setDateTimeOriginal(std::nullopt);
    EXPECT_FALSE(linked(photo)->preceding);
    undo->undo();
    EXPECT_EQ(linked(photo)->preceding->date(), at(90));
}

TEST_F(Linker, ForgetsPhotosThatLeave) {
    importTrack({-10, 10});
    const Photo staying = add(0), linkedOne = add(1), heldOne = add(2);
    linker->setup();
    linked(linkedOne);
    HeldLibrary library(tracks.store());
    heldOne->setDateTimeOriginal(at(3));
    select({heldOne});
    EXPECT_FALSE(linker->didProcessSelectedPhotos());
    manager.removePhotos({linkedOne, heldOne});
    EXPECT_FALSE(linker->nextPointForPhoto(linkedOne));
    EXPECT_TRUE(linker->didProcessSelectedPhotos()) << "nothing is selected";
    library.open();
    linkedOne->setDateTimeOriginal(at(4)); // nobody follows it any more
    staying->setDateTimeOriginal(at(4));
    linked(staying);
    EXPECT_TRUE(isLinking(heldOne) && isLinking(linkedOne));
    manager.insertObject(heldOne, 0);
    EXPECT_EQ(linked(heldOne)->instant, at(3));
    manager.setPhotoSortDescriptors({{"path", true}});
    const Photo sortedIn = add(5);
    EXPECT_EQ(linked(sortedIn)->instant, at(5));
}

TEST_F(Linker, TellsWhenTheSelectionIsProcessed) {
    const Photo first = add(0), second = add(1);
    const Announcements changes(*linker, "didProcessSelectedPhotos");
    linker->setup();
    linked(first), linked(second);
    EXPECT_TRUE(linker->didProcessSelectedPhotos());
    EXPECT_EQ(changes.count(), 1);
    select({first});
    EXPECT_EQ(changes.count(), 1);
    HeldLibrary library(tracks.store());
    second->setDateTimeOriginal(at(2));
    EXPECT_TRUE(linker->didProcessSelectedPhotos()) << "only the other one is linked";
    select({first, second});
    EXPECT_FALSE(linker->didProcessSelectedPhotos());
    first->setDateTimeOriginal(at(3));
    second->setDateTimeOriginal(at(4));
    EXPECT_EQ(changes.count(), 2);
    library.open();
    EXPECT_TRUE(runEventLoopUntil([&] { return changes.count() == 3; }));
    EXPECT_TRUE(linker->didProcessSelectedPhotos());
    EXPECT_FALSE(isLinking(first) || isLinking(second));
}

TEST_F(Linker, RelinksEveryPhotoForAnotherZone) {
    importTrack({-3600, -3500, 0, 100});
    std::vector<Photo> photos;
    for (int second = 1; second <= 50; ++second)
        photos.push_back(add(second));
    linker->setup();
    EXPECT_EQ(linked(photos[9])->preceding->date(), at(0));
    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    catalogue.setAssumedTimeZone(KTTimeZone::fixed(3600));
    manager.finishZoneChange();
    for (const Photo& photo : photos)
        EXPECT_EQ(linked(photo)->preceding->date(), at(-3600));
    EXPECT_EQ(linked(photos[9])->instant, at(10 - 3600));
    catalogue.setAssumedTimeZone(KTTimeZone::utc());
}

int anyUpTo(std::size_t limit) {
    return *rc::gen::inRange(0, int(limit));
}

/// The photos and tracks of a model, and what must be found for them.
class LinkerModel {
public:
    void begin() { world.linker->setup(); }

    void step() {
        const int kind = anyUpTo(9);
        if (kind <= 1 || photos.empty())
            photos.push_back(world.add(instantOrNone()));
        else if (kind <= 3)
            changeDate(*anyPhoto());
        else if (kind == 4)
            removeAPhoto();
        else if (kind <= 6 || imported.empty())
            importTracks();
        else if (kind == 7)
            deleteATrack();
        else
            world.select({*anyPhoto(), *anyPhoto()});
        for (const Photo& photo : photos)
            if (const Links links = world.linker->linkedPointsForPhoto(photo))
                RC_ASSERT(links->instant == photo->dateTimeOriginal());
    }

    void check() {
        for (const Photo& photo : photos) {
            const Links links = world.linked(photo);
            std::optional<int> preceding, next;
            const auto instant = photo->dateTimeOriginal();
            for (const auto& [id, second] : imported) {
                if (instant && GeotaggingWorld::at(second) < *instant)
                    preceding = std::max(preceding.value_or(second), second);
                if (instant && GeotaggingWorld::at(second) >= *instant)
                    next = std::min(next.value_or(second), second);
            }
            RC_ASSERT(isPointOf(links->preceding, preceding));
            RC_ASSERT(isPointOf(links->next, next));
            RC_ASSERT((links->interpolated != nullptr) == (preceding && next));
        }
        RC_ASSERT(world.linker->didProcessSelectedPhotos());
    }

private:
    static bool isPointOf(const KTLinkedPoints::Point& found, std::optional<int> second) {
        return found ? second && found->date() == GeotaggingWorld::at(*second) &&
                           found->latitude() == GeotaggingWorld::degrees(*second)
                     : !second;
    }
    static std::optional<double> instantOrNone() {
        const int half = anyUpTo(60);
        return half == 0 ? std::nullopt : std::optional(half / 2.0);
    }
    std::vector<Photo>::iterator anyPhoto() { return photos.begin() + anyUpTo(photos.size()); }
    static void changeDate(const Photo& photo) {
        const auto seconds = instantOrNone();
        photo->setDateTimeOriginal(seconds ? std::optional(GeotaggingWorld::at(*seconds)) : std::nullopt);
    }
    void removeAPhoto() {
        const auto leaving = anyPhoto();
        world.manager.removePhotos({*leaving});
        photos.erase(leaving);
    }
    /// Tracks of one point each, numbered by its second.
    void importTracks() {
        const int first = 1 + anyUpTo(25), last = first + anyUpTo(6);
        for (int second = first; second <= last; ++second)
            if (taken.insert(second).second)
                imported[world.importTrack({second}, second).at(0)] = second;
    }
    void deleteATrack() {
        const auto track = std::next(imported.begin(), anyUpTo(imported.size()));
        world.tracks.deleteTracks({track->first});
        taken.erase(track->second);
        imported.erase(track);
    }

    LinkerWorld world;
    std::vector<Photo> photos;
    std::map<std::int64_t, int> imported;
    std::set<int> taken;
};

TEST(LinkerModel, EndsWithThePointsThatTheTracksHold) {
    EXPECT_TRUE(rc::check("after edits, imports and deletions in any order", [] {
        LinkerModel model;
        const int before = anyUpTo(4), steps = anyUpTo(20);
        for (int i = 0; i < before; ++i)
            model.step();
        model.begin();
        for (int i = 0; i < steps; ++i)
            model.step();
        model.check();
    }));
}

TEST_F(Linker, ManyThreadsEditImportAndAsk) {
    std::vector<Photo> photos;
    for (int second = 0; second < 12; ++second)
        photos.push_back(add(second));
    importTrack({-10, 5, 30});
    linker->setup();
    std::atomic<bool> isStale = false;
    std::atomic<int> rounds = 0;
    const auto edit = [&](unsigned seed) {
        for (std::mt19937 random(seed); rounds.fetch_add(1) < 600;) {
            const Photo& photo = photos[random() % photos.size()];
            if (random() % 3 == 0)
                photo->setDateTimeZone(KTPhotoDateFamily::Original, KTTimeZone::fixed(int(random() % 30)));
            const Links links = linker->linkedPointsForPhoto(photo);
            isStale = isStale || (links && links->next && *links->next->date() < *links->instant);
        }
    };
    KTOperationQueue threads(3);
    threads.addOperationWithBlock([&] { edit(1); });
    threads.addOperationWithBlock([&] { edit(2); });
    threads.addOperationWithBlock([&] {
        while (rounds < 600)
            tracks.deleteTracks(importTrack({1, 7, 20}, rounds));
    });
    std::mt19937 random(3);
    while (threads.operationCount() > 0) {
        const Photo& photo = photos[random() % photos.size()];
        manager.removePhotos({photo});
        manager.insertObject(photo, random() % 12);
        select({photo, photos.front()});
        runEventLoopUntil([turns = 0]() mutable { return turns++ > 0; });
    }
    threads.waitUntilAllOperationsAreFinished();
    EXPECT_FALSE(isStale);
    EXPECT_TRUE(runEventLoopUntil([&] { return linker->didProcessSelectedPhotos(); }));
    for (const Photo& photo : photos)
        EXPECT_EQ(linked(photo)->instant, photo->dateTimeOriginal());
}

} // namespace
