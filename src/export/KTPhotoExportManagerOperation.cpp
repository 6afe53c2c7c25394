#include "export/KTPhotoExportManagerOperation.h"

#include "export/KTExportedLibraryTrack.h"
#include "export/KTPhotoExportPluginManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTTypeIdentifiers.h"

std::shared_ptr<KTPhotoExportManagerOperation> KTPhotoExportManagerOperation::make() {
    // A thread of the export queue may let go last, but plug-ins have views, which are for the main thread.
    return {new KTPhotoExportManagerOperation, [](KTPhotoExportManagerOperation* operation) {
                std::shared_ptr<KTPhotoExportManagerOperation> last(operation);
                if (!KTMainThread::isCurrent())
                    KTPerformOnMainThread([last = std::move(last)] {});
            }};
}

void KTPhotoExportManagerOperation::setPhotos(std::vector<Photo> all,
                                              const std::vector<std::size_t>& exportedIndexes) {
    everyPhoto = std::move(all);
    for (std::size_t index : exportedIndexes)
        exportedPhotos.push_back(everyPhoto.at(index));
}

void KTPhotoExportManagerOperation::setTracks(std::vector<KTTrack> near, const KTTrackStore& library) {
    willChange("tracks");
    for (KTTrack& track : near)
        nearbyTracks.push_back(std::make_shared<KTExportedLibraryTrack>(std::move(track), library));
    didChange("tracks");
}

void KTPhotoExportManagerOperation::setWaypoints(std::vector<KTWaypoint> near) {
    willChange("waypoints");
    nearbyWaypoints = std::move(near);
    didChange("waypoints");
}

void KTPhotoExportManagerOperation::setMetadata(std::vector<KTExportedField> fields,
                                                std::vector<KTExportedFieldGroup> groups) {
    fieldList = std::move(fields);
    groupList = std::move(groups);
}

void KTPhotoExportManagerOperation::main() {
    exportPlugin->performExport();
    if (exportPlugin->hasThrown())
        exportManagerShouldCancelExport();
}

std::vector<std::shared_ptr<const KTExportedPhoto>> KTPhotoExportManagerOperation::photos() const {
    return {exportedPhotos.begin(), exportedPhotos.end()};
}

KTPhotoExportResult KTPhotoExportManagerOperation::exportPhoto(const KTExportedPhoto&,
                                                               const std::filesystem::path&,
                                                               const KTPhotoExportOptions&) {
    return {false, KTLocalizedString("This version of Waymark cannot export photos yet.")};
}

std::string KTPhotoExportManagerOperation::fileExtensionForUTI(std::string_view uti) const {
    const auto types = KTTypeIdentifiers();
    const auto type = std::ranges::find(types, uti, &KTTypeIdentifier::identifier);
    return type == types.end() ? std::string() : std::string(type->extension);
}

void KTPhotoExportManagerOperation::exportManagerShouldBeginExport() {
    forward(&KTPhotoExportPluginManager::shouldBeginExportForManager);
}

void KTPhotoExportManagerOperation::exportManagerShouldCancelExport() {
    forward(&KTPhotoExportPluginManager::shouldCancelExportForManager);
}

void KTPhotoExportManagerOperation::exportManagerShouldFinishExport() {
    forward(&KTPhotoExportPluginManager::shouldFinishExportForManager);
}

void KTPhotoExportManagerOperation::forward(Request request) {
    auto send = [weakSelf = weak_from_this(), receiver = controller, request] {
        const auto self = weakSelf.lock();
        const auto manager = receiver.lock();
        if (self && manager)
            (manager.get()->*request)(self);
    };
    if (KTMainThread::isCurrent())
        send();
    else
        KTPerformOnMainThread(send);
}
