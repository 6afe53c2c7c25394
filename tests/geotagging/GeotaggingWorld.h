#pragma once
#include "collection/KTBatchOperationController.h"
#include "geotagging/KTGeotagger.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"
#include "tests/support/EventLoop.h"

#include <cmath>
#include <condition_variable>
#include <thread>

/// A collection of photos without files, and a track library in memory. Seconds count from noon, UTC, of some
/// day; point number n stands at n ten-thousandths of a degree north and east.
struct GeotaggingWorld {
    using Photo = KTPhotoManager::Photo;

    GeotaggingWorld() {
        KTUserDefaults::useThrowAwayDomain();
        for (const char* place : {"Created", "Shown"})
            set("defaultLatLonCreatedShouldReverseGeocodeLocation" + std::string(place), false);
        set("defaultLatLonShownShouldReverseGeocodeLocationShown", false);
        KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::utc());
        manager.setUndoManager(undo, queue);
        manager.setBatchOperationController(&batches);
        controller.setup();
    }
    ~GeotaggingWorld() {
        controller.tearDown();
        KTUserDefaults::useThrowAwayDomain();
    }

    static void set(std::string_view key, const KTValue& value) {
        KTUserDefaults::standardUserDefaults().setValue(key, value);
    }
    static KTInstant at(double seconds) {
        return KTInstantFromMilliseconds(1'401'624'000'000 + std::llround(seconds * 1000));
    }
    static KTDecimal degrees(int number) {
        return KTDecimal::fromInteger(number) / KTDecimal::fromInteger(10000);
    }

    static Photo photoTaken(std::optional<double> seconds) {
        Photo photo = KTPhoto::init();
        if (seconds)
            photo->setDateTimeOriginal(at(*seconds));
        return photo;
    }
    Photo add(std::optional<double> seconds) {
        Photo photo = photoTaken(seconds);
        manager.insertObject(photo, manager.numberOfPhotos());
        return photo;
    }
    void select(const KTPhotoManager::Photos& photos) { manager.setSelectedPhotos(photos); }

    /// Imports a track of points at these seconds, numbered from @p firstNumber on; its identifiers.
    std::vector<std::int64_t> importTrack(const std::vector<int>& seconds, int firstNumber = 0) {
        std::string points;
        for (const int second : seconds) {
            const std::string degree = degrees(firstNumber++).toText();
            points += trackPoint(degree, degree, KTISO8601Text(at(second)));
        }
        const auto file = folder.file("track" + std::to_string(++files) + ".gpx", gpxTrack(points));
        const auto result = tracks.importFile(file);
        EXPECT_EQ(result.error, "");
        return result.trackIDs;
    }

    TemporaryFolder folder;
    int files = 0;
    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>(queue);
    KTBatchOperationController batches{undo};
    KTTrackManager tracks{openStore()};
    KTPhotoManager manager;
    KTPhotoController controller{manager};
};

/// Keeps every search of a track library in memory waiting, from its making until it is opened.
class HeldLibrary {
public:
    explicit HeldLibrary(KTTrackStore& store)
        : importing([this, &store] {
              store.importTracks("held.gpx", [this](TrackFileSink&) {
                  std::unique_lock lock(mutex);
                  isHeld = true;
                  changed.notify_all();
                  changed.wait(lock, [this] { return isOpen; });
                  return TrackFileContent{{}, "held", 1};
              });
          }) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isHeld; });
    }
    ~HeldLibrary() { open(); }
    void open() {
        std::lock_guard guard(mutex);
        isOpen = true;
        changed.notify_all();
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    bool isHeld = false, isOpen = false;
    std::jthread importing; // last, so that it ends first
};

/// How often an object has announced a key, after the change. Any thread.
class Announcements {
public:
    Announcements(KTObservable& object, std::string_view wanted)
        : observation(object.observe([this, wanted](const KTChange& change) {
              if (change.key == wanted && !change.isPrior)
                  ++made;
          })) {}
    int count() const { return made; }

private:
    std::atomic<int> made = 0;
    KTObservable::Observation observation;
};
