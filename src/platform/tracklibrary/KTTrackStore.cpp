#include "platform/tracklibrary/KTTrackStore.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/geodesy/KTGeodesy.h"
#include "platform/tracklibrary/TrackEventQueue.h"
#include "platform/tracklibrary/TrackQueries.h"
#include "platform/tracklibrary/TrackRemoval.h"
#include "platform/tracklibrary/TrackRestoring.h"
#include "platform/tracklibrary/TrackStoreImport.h"

#include <ostream>
#include <thread>

namespace {

constexpr const char* kInMemory = ":memory:";

std::string libraryError(const std::exception& error) {
    return KTStringWithFormat(KTLocalizedString("The track library cannot be used: %@"), {error.what()});
}

/// A transaction that blocks other writers from its start, undone unless committed.
class WriteTransaction {
public:
    explicit WriteTransaction(TrackDatabase& target)
        : transaction(target.connection, SQLite::TransactionBehavior::IMMEDIATE) {}
    void commit() { transaction.commit(); }

private:
    SQLite::Transaction transaction;
};

std::string messageFor(const std::filesystem::path& file, const TrackFileProblem& problem) {
    std::string name = KTValidUTF8(file.string());
    if (problem.line <= 0)
        return name + ": " + problem.text;
    return KTStringWithFormat(KTLocalizedString("%@, line %@: %@"),
                              {name, std::to_string(problem.line), problem.text});
}

/// Runs @p read on a thread of its own while the calling thread passes what it reads to @p sink.
TrackFileContent readBeside(const KTTrackStore::Read& read, TrackFileSink& sink) {
    TrackEventQueue queue;
    TrackFileContent content;
    std::jthread reader([&] {
        TrackEventQueue::Writer writer(queue);
        try {
            content = read(writer);
        } catch (const std::exception& error) {
            content.problem = TrackFileProblem{0, error.what()};
        }
    });
    queue.drainInto(sink);
    reader.join();
    return content;
}

} // namespace

struct KTTrackStore::Connections {
    explicit Connections(const std::string& name)
        : file(name), writer(name, TrackDatabase::Access::ReadWrite),
          reader(name == kInMemory ? nullptr
                                   : std::make_unique<TrackDatabase>(name, TrackDatabase::Access::ReadOnly)) {
    }

    /// The value of @p query, run on the reading connection; @p fallback after an error, logged as one of @p
    /// action.
    template<class Value, class Query>
    Value read(std::string_view action, Value fallback, const Query& query) {
        TrackDatabase& database = reader ? *reader : writer;
        std::lock_guard lock(database.mutex);
        try {
            return query(database);
        } catch (const SQLite::Exception& error) {
            KTLog(KTStringWithFormat("Error occurred in %@: %@", {std::string(action), error.what()}));
            return fallback;
        }
    }
    /// Runs @p query, which takes long, on a connection of its own, so that searches do not wait for it.
    template<class Query>
    void readLong(std::string_view action, const Query& query) {
        try {
            std::unique_ptr<TrackDatabase> own;
            if (reader)
                own = std::make_unique<TrackDatabase>(file, TrackDatabase::Access::ReadOnly);
            TrackDatabase& database = own ? *own : writer;
            std::lock_guard lock(database.mutex);
            query(database);
        } catch (const SQLite::Exception& error) {
            KTLog(KTStringWithFormat("Error occurred in %@: %@", {std::string(action), error.what()}));
        }
    }
    Deletion remove(const std::vector<std::int64_t>& ids, std::optional<std::int64_t> removal) {
        Deletion result;
        std::lock_guard lock(writer.mutex);
        try {
            if (removal)
                prepareRestoring(writer);
            WriteTransaction transaction(writer);
            if (removal)
                forgetKeptTracks(writer, *removal);
            for (std::int64_t id : ids) {
                if (removal)
                    keepTrack(writer, id, *removal);
                (removeTrack(writer, id) ? result.deleted : result.unknown).push_back(id);
            }
            transaction.commit();
        } catch (const SQLite::Exception& error) {
            result = {{}, {}, libraryError(error)};
        }
        return result;
    }
    std::optional<KTGeoPoint> search(std::string_view action, const char* sql, KTInstant time) {
        return read<std::optional<KTGeoPoint>>(
            action, {}, [&](TrackDatabase& database) -> std::optional<KTGeoPoint> {
                auto find = database.statement(sql);
                find->bind(1, static_cast<std::int64_t>(time.time_since_epoch().count()));
                return find->executeStep() ? std::optional(geoPointFromRow(*find, 0)) : std::nullopt;
            });
    }

    std::string file;
    TrackDatabase writer;
    std::unique_ptr<TrackDatabase>
        reader; // none in memory, where a second connection would see another database
};

KTTrackStore::KTTrackStore(std::unique_ptr<Connections> opened) : connections(std::move(opened)) {}

KTTrackStore::~KTTrackStore() = default;

KTTrackStore::Opened KTTrackStore::open(const std::filesystem::path& file) {
    Opened result;
    try {
        if (file != kInMemory && file.has_parent_path())
            std::filesystem::create_directories(file.parent_path());
        // A relative path that begins with a colon or a scheme would mean something else to SQLite.
        std::string name = file == kInMemory ? kInMemory : std::filesystem::absolute(file).string();
        result.store.reset(new KTTrackStore(std::make_unique<Connections>(name)));
    } catch (const std::exception& error) {
        result.error = KTStringWithFormat(KTLocalizedString("The track library %@ cannot be opened: %@"),
                                          {KTValidUTF8(file.string()), error.what()});
    }
    return result;
}

std::optional<KTGeoPoint> KTTrackStore::pointPrecedingTime(KTInstant time) const {
    return connections->search("pointPrecedingTime",
                               "SELECT date, latitude, longitude, elevation FROM point "
                               "WHERE date < ? AND latitude IS NOT NULL ORDER BY date DESC, id DESC LIMIT 1",
                               time);
}

std::optional<KTGeoPoint> KTTrackStore::pointFollowingTime(KTInstant time) const {
    return connections->search("pointFollowingTime",
                               "SELECT date, latitude, longitude, elevation FROM point "
                               "WHERE date >= ? AND latitude IS NOT NULL ORDER BY date, id LIMIT 1",
                               time);
}

std::int64_t KTTrackStore::countOfDatedPoints(std::int64_t limit) const {
    return connections->read("countOfDatedPoints", std::int64_t{0}, [&](TrackDatabase& database) {
        auto count = database.statement("SELECT COALESCE(SUM(dated_points), 0) FROM track");
        count->executeStep();
        return std::min(limit, count->getColumn(0).getInt64());
    });
}

std::vector<KTTrack> KTTrackStore::tracks() const {
    return connections->read("tracks", std::vector<KTTrack>(), listTracks);
}

std::vector<KTWaypoint> KTTrackStore::waypoints(std::int64_t track) const {
    return connections->read("waypoints", std::vector<KTWaypoint>(),
                             [&](TrackDatabase& database) { return waypointsOfTrack(database, track); });
}

std::vector<KTWaypoint> KTTrackStore::waypointsBetween(KTInstant first, KTInstant last) const {
    return connections->read("waypointsBetween", std::vector<KTWaypoint>(),
                             [&](TrackDatabase& database) { return waypointsOfTime(database, first, last); });
}

std::vector<std::vector<KTGeoPoint>> KTTrackStore::segments(std::int64_t track) const {
    return connections->read("segments", std::vector<std::vector<KTGeoPoint>>(),
                             [&](TrackDatabase& database) { return segmentsOfTrack(database, track); });
}

std::vector<std::vector<KTTrackPosition>> KTTrackStore::positions(std::int64_t track) const {
    std::vector<std::vector<KTTrackPosition>> segments;
    connections->readLong("positions",
                          [&](TrackDatabase& database) { segments = positionsOfTrack(database, track); });
    return segments;
}

std::string KTTrackStore::exportGPX(const std::vector<std::int64_t>& ids, std::ostream& out) const {
    try {
        // An export takes long; a connection of its own leaves the searches alone.
        std::unique_ptr<TrackDatabase> own;
        if (connections->reader)
            own = std::make_unique<TrackDatabase>(connections->file, TrackDatabase::Access::ReadOnly);
        TrackDatabase& database = own ? *own : connections->writer;
        std::lock_guard lock(database.mutex);
        if (auto unknown = writeGPX(database, ids, out))
            return KTStringWithFormat(KTLocalizedString("There is no track %@."), {std::to_string(*unknown)});
        out.flush();
        return out ? std::string() : KTLocalizedString("The tracks could not be written.");
    } catch (const SQLite::Exception& error) {
        return libraryError(error);
    }
}

KTTrackStore::Deletion KTTrackStore::deleteTracks(const std::vector<std::int64_t>& ids) {
    return connections->remove(ids, {});
}

KTTrackStore::Deletion KTTrackStore::deleteTracks(const std::vector<std::int64_t>& ids,
                                                  std::int64_t removal) {
    return connections->remove(ids, removal);
}

KTTrackStore::Restoration KTTrackStore::restoreTracks(std::int64_t removal) {
    Restoration result;
    std::lock_guard lock(connections->writer.mutex);
    try {
        prepareRestoring(connections->writer);
        WriteTransaction transaction(connections->writer);
        result.restored = restoreKeptTracks(connections->writer, removal);
        transaction.commit();
    } catch (const SQLite::Exception& error) {
        result = {{}, libraryError(error)};
    }
    return result;
}

void KTTrackStore::visitPositions(
    std::int64_t track,
    const std::function<void(double longitude, double latitude, bool beginsSegment)>& visit) const {
    connections->readLong("visitPositions",
                          [&](TrackDatabase& database) { visitPositionsOfTrack(database, track, visit); });
}

std::optional<double> KTTrackStore::lengthOfTrack(std::int64_t track) const {
    struct Position {
        double longitude, latitude;
    };
    std::optional<Position> last;
    std::optional<double> metres;
    visitPositions(track, [&](double longitude, double latitude, bool beginsSegment) {
        if (last && !beginsSegment)
            metres =
                metres.value_or(0) + KTEarthDistance(last->longitude, last->latitude, longitude, latitude);
        last = {longitude, latitude};
    });
    return metres;
}

std::vector<std::optional<std::int64_t>>
KTTrackStore::tracksWithPointsAt(const std::vector<KTInstant>& times) const {
    std::vector<std::optional<std::int64_t>> found;
    connections->readLong("tracksWithPointsAt",
                          [&](TrackDatabase& database) { found = tracksOfPointsAt(database, times); });
    found.resize(times.size());
    return found;
}

std::vector<std::int64_t> KTTrackStore::recentSources() const {
    return connections->read("recentSources", std::vector<std::int64_t>(), listRecentSources);
}

KTTrackImportResult KTTrackStore::importTracks(const std::filesystem::path& file, const Read& read,
                                               const std::stop_token& stop) {
    TrackDatabase& database = connections->writer;
    std::lock_guard lock(database.mutex);
    KTTrackImportResult failed;
    try {
        WriteTransaction transaction(database);
        TrackStoreImport import(database, file, stop);
        TrackFileContent content = readBeside(read, import);
        if (content.problem) {
            failed.error = messageFor(file, *content.problem);
            return failed;
        }
        if (auto earlier = trackSourceWithHash(database, content.hash); earlier && earlier->isComplete)
            return existingImport(database, earlier->source);
        if (import.finish(content.size, content.hash))
            transaction.commit();
        return import.result();
    } catch (const TrackImportStopped&) {
        failed.error = messageFor(file, {0, KTLocalizedString("the import was stopped")});
        return failed;
    } catch (const std::exception& error) {
        failed.error = libraryError(error);
        return failed;
    }
}

std::optional<KTTrackImportResult> KTTrackStore::importedContent(const std::string& hash) const {
    using Result = std::optional<KTTrackImportResult>;
    return connections->read("importedContent", Result(), [&](TrackDatabase& database) {
        auto earlier = trackSourceWithHash(database, hash);
        return earlier && earlier->isComplete ? Result(existingImport(database, earlier->source)) : Result();
    });
}

bool KTTrackStore::hasImportOfSize(std::int64_t size) const {
    return connections->read("hasImportOfSize", false, [&](TrackDatabase& database) {
        auto find = database.statement("SELECT 1 FROM source WHERE size = ?");
        find->bind(1, size);
        return find->executeStep();
    });
}
