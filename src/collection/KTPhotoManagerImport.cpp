#include "collection/KTImportRecord.h"
#include "collection/KTPhotoFileList.h"
#include "collection/KTPhotoManager.h"
#include "photo/KTPhotoReadAhead.h"
#include "photo/KTiPhotoTool.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"

#include <algorithm>

namespace {

namespace fs = std::filesystem;
using Records = std::vector<KTImportRecord>;

} // namespace

/// One import. It lives as long as its reading, or a photo on its way to the main thread, and then tells that
/// it has ended.
class KTPhotoManager::ImportRun {
public:
    explicit ImportRun(ImportHandlers importHandlers) : handlers(std::move(importHandlers)) {}
    ~ImportRun() {
        if (handlers.didEnd)
            KTPerformOnMainThread(std::move(handlers.didEnd));
    }

    ImportHandlers handlers;
};

namespace {

/// Reads the photos of one import. It lives as long as an operation of it, no longer: photos on their way to
/// the main thread may wait to the end of the program, when nothing may be read any more.
class ImportReading {
public:
    /// @p importRun ends after the reading.
    explicit ImportReading(std::shared_ptr<void> importRun) : run(std::move(importRun)) {}

    /// The next photo; in the order of the records.
    KTPhotoReadAhead::Result read(const KTImportRecord& record);

    std::vector<fs::path> filesToRead; ///< of the records that may be read ahead

private:
    const std::shared_ptr<void> run;
    std::optional<KTPhotoReadAhead> readAhead; // begins with the first operation, waits for its threads
};

KTPhotoReadAhead::Result ImportReading::read(const KTImportRecord& record) {
    if (record.mayBeReadAhead()) {
        if (!readAhead)
            readAhead.emplace(std::move(filesToRead));
        return readAhead->next();
    }
    KTPhotoReadAhead::Result result;
    result.photo =
        KTPhoto::initWithFile(record.photoURL, record.thumbnailURL, record.mediaObject,
                              {.createsSidecarOfRawFile = record.createsSidecar, .log = &result.failure});
    return result;
}

fs::path resolved(const fs::path& file) {
    std::error_code error;
    fs::path real = fs::canonical(file, error);
    return error ? fs::absolute(file, error) : real; // what is not there is reported by its reading
}

Records recordsOfFiles(const std::vector<fs::path>& files, const std::stop_token& stop,
                       std::vector<std::string>& problems) {
    KTPhotoFileList list = KTPhotoFileList::fromPaths(files, stop);
    problems = std::move(list.problems);
    Records records;
    for (const fs::path& file : list.files)
        records.push_back({.photoURL = resolved(file), .listedURL = file});
    return records;
}

struct LibraryItem {
    std::string source, identifier;
};

/// What the drag of a photo library carries, by the first type that it holds.
std::vector<LibraryItem> libraryItems(const KTPasteboard& pasteboard) {
    std::vector<LibraryItem> items;
    auto list = [&](std::string_view type) -> const KTValue::Dictionary* {
        const auto found = pasteboard.propertyLists.find(type);
        return found == pasteboard.propertyLists.end() ? nullptr : found->second.dictionary();
    };
    if (auto sources = list("com.apple.MediaLibrary.PBoardType.MediaObjectIdentifiersPlist")) {
        for (const auto& [source, identifiers] : *sources)
            for (const std::string& identifier : identifiers.texts())
                items.push_back({source, identifier});
        return items;
    }
    struct Kind {
        const char* type;
        const char* key;
        const char* source;
    };
    for (const Kind& kind : {Kind{"ImageDataListPboardType", "GUID", KTiPhotoTool::kiPhotoIdentifier},
                             Kind{"ApertureImageDataPboardType", "ID", KTiPhotoTool::kApertureIdentifier}})
        if (auto images = list(kind.type)) {
            for (const auto& [number, image] : *images)
                if (const auto* entries = image.dictionary())
                    if (const auto found = entries->find(kind.key); found != entries->end())
                        items.push_back({kind.source, found->second.description()});
            return items;
        }
    return items;
}

/// An item that its library does not give stands for a photo without file.
Records recordsOfItems(const std::vector<LibraryItem>& items, const std::stop_token& stop) {
    Records records;
    for (const LibraryItem& item : items) {
        if (stop.stop_requested())
            break;
        const auto object =
            KTiPhotoTool::sharediPhotoTool().waitForMediaObjectFromSource(item.source, item.identifier, stop);
        if (object)
            records.push_back({resolved(object->URL), object->URL, object->thumbnailURL, object});
        else
            records.push_back({});
    }
    std::ranges::stable_sort(records, [](const KTImportRecord& left, const KTImportRecord& right) {
        return KTLowercase(left.photoURL.string()) < KTLowercase(right.photoURL.string());
    });
    return records;
}

} // namespace

void KTPhotoManager::importPhotosAtPaths(std::vector<std::string> paths, ImportHandlers handlers) {
    importPhotosAtURLs({paths.begin(), paths.end()}, std::move(handlers));
}

void KTPhotoManager::importPhotosAtURLs(std::vector<fs::path> files, ImportHandlers handlers) {
    beginImport(
        [files = std::move(files)](const std::stop_token& stop, std::vector<std::string>& problems) {
            return recordsOfFiles(files, stop, problems);
        },
        std::move(handlers));
}

void KTPhotoManager::importPhotosFromPasteboard(KTPasteboard pasteboard, ImportHandlers handlers) {
    beginImport(
        [pasteboard = std::move(pasteboard)](const std::stop_token& stop,
                                             std::vector<std::string>& problems) {
            const auto items = libraryItems(pasteboard);
            return items.empty() ? recordsOfFiles(pasteboard.files, stop, problems)
                                 : recordsOfItems(items, stop);
        },
        std::move(handlers));
}

void KTPhotoManager::beginImport(Listing listing, ImportHandlers handlers) {
    KTRunOnThreadPool([listing = std::move(listing), weak = std::weak_ptr(self),
                       stop = importStop.get_token(),
                       run = std::make_shared<ImportRun>(std::move(handlers))] {
        std::vector<std::string> problems;
        Records records = listing(stop, problems);
        KTPerformOnMainThread(
            [weak, run, stop, problems = std::move(problems), records = std::move(records)]() mutable {
                const auto alive = weak.lock();
                if (!alive || stop.stop_requested())
                    return;
                if (run->handlers.didList)
                    run->handlers.didList(records.size(), problems);
                (*alive)->queueImport(run, std::move(records));
            });
    });
}

/// Files that are loaded already are left out; overlapping imports are looked at again when a photo is added.
void KTPhotoManager::queueImport(const std::shared_ptr<ImportRun>& run, Records records) {
    std::erase_if(records, [this](const KTImportRecord& record) { return isLoaded(record.photoURL); });
    if (records.empty())
        return;
    std::vector<std::shared_ptr<KTOperation>> toRun;
    const auto reading = std::make_shared<ImportReading>(run);
    for (KTImportRecord& record : records) {
        record.createsSidecar =
            createsSidecars && KTEqualIgnoringCase(record.photoURL.extension().native(), ".crw");
        if (record.mayBeReadAhead())
            reading->filesToRead.push_back(record.photoURL);
        toRun.push_back(std::make_shared<KTOperation>(
            [weak = std::weak_ptr(self), run, reading, record = std::move(record)] {
                KTPhotoReadAhead::Result result = reading->read(record);
                KTPerformOnMainThread([weak, run, file = record.listedURL, result = std::move(result)] {
                    if (const auto alive = weak.lock())
                        (*alive)->finishReading(*run, file, result);
                });
            }));
    }
    if (!importObservation.isObserving())
        importObservation = importQueue.observe([weak = std::weak_ptr(self)](const KTChange& change) {
            if (!change.isPrior)
                KTPerformOnMainThread([weak] {
                    if (const auto alive = weak.lock())
                        (*alive)->updateImportProgress();
                });
        });
    set("importMax", importCount, importCount + toRun.size());
    importQueue.addOperations(std::move(toRun));
}

void KTPhotoManager::finishReading(const ImportRun& run, const fs::path& file,
                                   const KTPhotoReadAhead::Result& result) {
    Photo photo = result.photo;
    if (photo)
        addNewPhoto(photo);
    else
        addPhotoOperations(result.failure);
    if (run.handlers.didRead)
        run.handlers.didRead(file, photo, photo ? photo->photoOperations() : result.failure);
}

/// Asks for the count as it is by now: another import may have been queued since the change that is told of.
void KTPhotoManager::updateImportProgress() {
    const std::size_t unfinished = importQueue.operationCount();
    if (unfinished != 0) {
        set("importDescription", importLine,
            KTStringWithFormat(KTLocalizedString("Loading image %lu of %lu"),
                               {std::to_string(importCount - unfinished), std::to_string(importCount)}));
        return set("importInProgress", isImporting, true);
    }
    set("importInProgress", isImporting, false);
    set("importMax", importCount, std::size_t(0));
}

template<class Property>
void KTPhotoManager::set(std::string_view key, Property& property, Property value) {
    willChange(key);
    property = std::move(value);
    didChange(key);
}

void KTPhotoManager::setShouldCancelImport(bool) {
    importStop.request_stop();
    importStop = std::stop_source();
    importQueue.cancelAllOperations();
}
