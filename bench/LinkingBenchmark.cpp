// Links 10,000 photos against a library of a million points, judges them as when all are selected, then
// changes the assumed time zone, which links and judges all of them again. Prints the times, their ratio to a
// walk over all points for each photo, and the longest time for which the main thread answered nobody.
#include "collection/KTBatchOperationController.h"
#include "geotagging/KTGeotagger.h"
#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhoto.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"

#include <QCoreApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPoints = 1'000'000, kPhotos = 10'000;
constexpr int kWalkedPhotos = 200;                 // the walk takes long; its time is multiplied
constexpr std::int64_t kStart = 1'401'616'800'000; // 2014-06-01T10:00:00Z, one point a second from then on

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Asks the main thread for an answer again and again, and keeps the longest time that it took.
class MainThreadWatch {
public:
    MainThreadWatch() : asking([this](const std::stop_token& stop) { ask(stop); }) {}
    double longestMilliseconds() const { return longest * 1000; }

private:
    void ask(const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            const auto asked = Clock::now();
            KTPerformOnMainThread([this, asked] {
                longest = std::max(longest, secondsSince(asked));
                isAnswered = true;
            });
            while (!isAnswered.exchange(false) && !stop.stop_requested())
                std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    }

    double longest = 0; // for the main thread
    std::atomic<bool> isAnswered = false;
    std::jthread asking;
};

bool fillLibrary(KTTrackStore& store) {
    return store
        .importTracks(
            "million.gpx",
            [](TrackFileSink& sink) {
                sink.beginTrack(KTTrack::Kind::Track);
                for (std::int64_t i = 0; i < kPoints; ++i) {
                    char latitude[32], longitude[32], elevation[32];
                    std::snprintf(latitude, sizeof latitude, "%.7f", 46 + double(i) * 1.3e-6);
                    std::snprintf(longitude, sizeof longitude, "%.7f", 14 + double(i * 7919 % 10007) * 1e-6);
                    std::snprintf(elevation, sizeof elevation, "%.1f", 300 + double(i % 977) * 0.7);
                    sink.addPoint({KTInstantFromMilliseconds(kStart + i * 1000),
                                   *TrackNumber::fromText(latitude), *TrackNumber::fromText(longitude),
                                   *TrackNumber::fromText(elevation)});
                }
                sink.endTrack("Million");
                return TrackFileContent{{}, "million", kPoints};
            })
        .succeeded();
}

/// The neighbours of a photo as one finds them without an index.
std::int64_t walk(const std::vector<std::int64_t>& points, std::int64_t instant) {
    std::int64_t preceding = INT64_MIN, next = INT64_MAX;
    for (const std::int64_t point : points)
        if (point < instant)
            preceding = std::max(preceding, point);
        else
            next = std::min(next, point);
    return preceding ^ next;
}

double secondsOfWalks() {
    std::vector<std::int64_t> points(kPoints);
    for (int i = 0; i < kPoints; ++i)
        points[std::size_t(i)] = kStart + i * std::int64_t(1000);
    volatile std::int64_t result = 0;
    const auto start = Clock::now();
    for (int i = 0; i < kWalkedPhotos; ++i)
        result = result + walk(points, kStart + i * 7919 % kPoints * std::int64_t(1000) + 500);
    return secondsSince(start) * kPhotos / kWalkedPhotos;
}

class Benchmark {
public:
    explicit Benchmark(KTTrackManager& library) : geotagger(controller, {&library}, batches) {
        manager.setUndoManager(undo, queue);
        controller.setup();
        for (int i = 0; i < kPhotos; ++i) {
            const auto photo = KTPhoto::init();
            photo->setDateTimeOriginal(
                KTInstantFromMilliseconds(kStart + 7'200'000 + i * 90'000 + i % 7 * 100));
            manager.insertObject(photo, manager.numberOfPhotos());
        }
        geotagger.setShouldActivelyGeotag(true);
    }
    ~Benchmark() { controller.tearDown(); }

    void run(double secondsOfReference) {
        std::printf("%d photos, %d points; a walk over all points for each photo takes %.1f s\n", kPhotos,
                    kPoints, secondsOfReference);
        report(
            "linking all", secondsOfReference, [&] { geotagger.setup(); }, [&] { return isLinked(); });
        report(
            "selecting and judging all", secondsOfReference,
            [&] { manager.setSelectedPhotos(*manager.photos()); }, [&] { return isJudged(); });
        const auto before = geotagger.computation();
        report(
            "another time zone: linking and judging all", secondsOfReference,
            [&] {
                KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(
                    KTTimeZone::fixed(3600));
            },
            [&] { return isJudged() && isOfAnotherInstant(*before); });
        std::printf("%zu can be geotagged\n", geotagger.totalSuccesses());
    }

private:
    static void report(const char* what, double secondsOfReference, const std::function<void()>& begin,
                       const std::function<bool()>& hasEnded) {
        MainThreadWatch watch;
        QTimer waking;
        waking.start(1);
        const auto start = Clock::now();
        begin();
        while (!hasEnded())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const double seconds = secondsSince(start);
        std::printf("%s: %.2f s (aim 2), ratio %.3f; main thread blocked for %.0f ms at most (aim 50)\n",
                    what, seconds, seconds / secondsOfReference, watch.longestMilliseconds());
    }

    /// Photos are linked in their order.
    bool isLinked() const {
        return geotagger.asynchronousWaymark()->linkedPointsForPhoto(manager.photos()->back()) != nullptr;
    }
    bool isJudged() const {
        const auto now = geotagger.computation();
        return now->fates.size() == kPhotos && now->photosBeingLinked == 0;
    }
    bool isOfAnotherInstant(const KTGeotaggingComputation& before) const {
        const auto now = geotagger.computation();
        return before.fates.back().links->instant != now->fates.back().links->instant &&
               before.fates.front().links->instant != now->fates.front().links->instant;
    }

    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>(queue);
    KTBatchOperationController batches{undo};
    KTPhotoManager manager;
    KTPhotoController controller{manager};
    KTGeotagger geotagger;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(KTTimeZone::utc());
    std::string folder = (std::filesystem::temp_directory_path() / "waymark-bench-XXXXXX").string();
    if (!mkdtemp(folder.data())) {
        std::perror("waymark-bench");
        return 1;
    }
    {
        auto opened = KTTrackStore::open(std::filesystem::path(folder) / "library");
        if (!opened.store || !fillLibrary(*opened.store)) {
            std::printf("no library: %s\n", opened.error.c_str());
            return 1;
        }
        KTTrackManager library(std::move(opened.store));
        Benchmark(library).run(secondsOfWalks());
    }
    std::filesystem::remove_all(folder);
}
