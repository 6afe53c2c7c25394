#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/tracklibrary/KTTrackManager.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>
#include <iterator>

/// The files of one call.
struct KTTrackManager::ImportRun {
    Paths files;
    DidImport didImport;
    std::stop_token stop;
    std::vector<ImportOfFile> imports = {};
};

/// What one command removes. Its number is that under which the store keeps it aside.
struct KTTrackManager::Removal {
    std::vector<std::int64_t> ids;
    std::weak_ptr<KTUndoManager> undo; // which keeps the removal
    bool isKept;                       // for being undone
    std::function<void(const std::string& error)> didRemove;
    std::int64_t number;
};

template<class Property>
void KTTrackManager::set(std::string_view key, Property& property, Property value) {
    willChange(key);
    property = std::move(value);
    didChange(key);
}

void KTTrackManager::onMainThread(std::function<void(KTTrackManager&)> call) {
    KTPerformOnMainThread([alive = std::weak_ptr(self), call = std::move(call)] {
        if (const auto manager = alive.lock())
            call(**manager);
    });
}

void KTTrackManager::importFilesAtPaths(const Paths& files, DidImport didImport) {
    if (importStop.stop_requested())
        importStop = {};
    const auto run =
        std::make_shared<ImportRun>(ImportRun{files, std::move(didImport), importStop.get_token()});
    ++runs;
    set("importMax", filesToImport, filesToImport + files.size());
    setImportProgress(filesImported);
    if (!isImporting)
        set("importInProgress", isImporting, true);
    work.addOperationWithBlock([this, run] { importRun(run); });
}

void KTTrackManager::importRun(const std::shared_ptr<ImportRun>& run) {
    for (const auto& file : run->files) {
        if (run->stop.stop_requested())
            break;
        KTTrackImportResult result = importFile(file, run->stop);
        if (!run->stop.stop_requested() || result.succeeded())
            run->imports.push_back({file, std::move(result)});
        onMainThread([](KTTrackManager& manager) { manager.setImportProgress(manager.filesImported + 1); });
    }
    onMainThread([run](KTTrackManager& manager) { manager.finishRun(*run); });
}

void KTTrackManager::setImportProgress(std::size_t value) {
    set("importValue", filesImported, std::min(value, filesToImport));
    const std::size_t current = std::min(filesImported + 1, filesToImport);
    set("importDescription", importLine,
        KTStringWithFormat(KTLocalizedString("Importing track file %lu of %lu"),
                           {std::to_string(current), std::to_string(filesToImport)}));
}

void KTTrackManager::finishRun(const ImportRun& run) {
    if (--runs == 0) {
        set("importInProgress", isImporting, false);
        set("importMax", filesToImport, std::size_t(0));
        set("importValue", filesImported, std::size_t(0));
        set("importDescription", importLine, std::string());
    }
    KTTrackPredicate brought;
    for (const ImportOfFile& import : run.imports)
        if (import.result.source != 0)
            brought.sources.push_back(import.result.source);
    if (!brought.sources.empty()) {
        std::ranges::sort(brought.sources);
        brought.sources.erase(std::ranges::unique(brought.sources).begin(), brought.sources.end());
        willChange("recentImportsPredicate");
        {
            std::lock_guard lock(recentMutex);
            recent = brought;
        }
        didChange("recentImportsPredicate");
    }
    if (run.didImport)
        run.didImport(run.imports);
}

void KTTrackManager::cancelImport() {
    importStop.request_stop();
}

KTTrackPredicate KTTrackManager::recentImportsPredicate() const {
    std::lock_guard lock(recentMutex);
    if (!recent)
        recent = KTTrackPredicate{.sources = trackStore->recentSources()};
    return *recent;
}

std::vector<KTTrackRecord> KTTrackManager::recentImports() const {
    const KTTrackPredicate predicate = recentImportsPredicate();
    std::vector<KTTrackRecord> records;
    for (KTTrack& track : tracksForPredicate(predicate))
        records.push_back({std::move(track)});
    for (KTWaypoint& waypoint : waypointsForPredicate(predicate))
        records.push_back({std::move(waypoint)});
    return records;
}

void KTTrackManager::removeTracks(const std::vector<std::int64_t>& ids,
                                  const std::shared_ptr<KTUndoManager>& undo,
                                  std::function<void(const std::string& error)> didRemove) {
    if (!ids.empty())
        remove(std::make_shared<Removal>(
            Removal{ids, undo, undo != nullptr, std::move(didRemove), ++lastRemoval}));
}

/// Registers at once, so that the order of undo is that of the commands; the queue keeps the order of the
/// work.
void KTTrackManager::remove(const std::shared_ptr<Removal>& removal) {
    if (const auto undo = removal->undo.lock())
        undo->registerUndoWithTarget(this, KTLocalizedString("Remove Tracks"),
                                     [removal, alive = std::weak_ptr(self)] {
                                         if (const auto manager = alive.lock())
                                             (*manager)->bringBack(removal);
                                     });
    work.addOperationWithBlock([this, removal] {
        KTTrackStore::Deletion result = removal->isKept
                                            ? trackStore->deleteTracks(removal->ids, removal->number)
                                            : trackStore->deleteTracks(removal->ids);
        if (!result.deleted.empty())
            post({KTTrackManagerDidDeleteObjects, result.deleted});
        onMainThread([removal, error = result.error](KTTrackManager&) {
            if (removal->didRemove)
                removal->didRemove(error);
        });
    });
}

void KTTrackManager::bringBack(const std::shared_ptr<Removal>& removal) {
    if (const auto undo = removal->undo.lock())
        undo->registerUndoWithTarget(this, KTLocalizedString("Remove Tracks"),
                                     [removal, alive = std::weak_ptr(self)] {
                                         if (const auto manager = alive.lock())
                                             (*manager)->remove(removal);
                                     });
    work.addOperationWithBlock([this, removal] {
        KTTrackStore::Restoration result = trackStore->restoreTracks(removal->number);
        if (!result.restored.empty())
            post({KTTrackManagerDidAddNewImportSource, result.restored});
        onMainThread([removal, error = result.error](KTTrackManager&) {
            if (removal->didRemove)
                removal->didRemove(error);
        });
    });
}
