#include "export/KTPhotoExportManagerOperation.h"

#include "export/KTExportedLibraryTrack.h"
#include "export/KTPhotoExportOption.h"
#include "export/KTPhotoExportPluginManager.h"
#include "export/KTPhotoFileExport.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTTypeIdentifiers.h"
#include "platform/pictures/PictureDecoder.h"

std::shared_ptr<KTPhotoExportManagerOperation> KTPhotoExportManagerOperation::make() {
    // A thread of the export queue may let go last, but plug-ins have views, which are for the main thread.
    return {new KTPhotoExportManagerOperation, [](KTPhotoExportManagerOperation* operation) {
                std::shared_ptr<KTPhotoExportManagerOperation> last(operation);
                if (!KTMainThread::isCurrent())
                    KTPerformOnMainThread([last = std::move(last)] {});
            }};
}

bool KTPhotoExportManagerOperation::excludesLocations() const {
    return KTOptionOr(requested, KTExcludeLocationOption, false);
}

void KTPhotoExportManagerOperation::setPhotos(std::vector<Photo> all,
                                              const std::vector<std::size_t>& exportedIndexes) {
    const auto liesInZone = [this](const KTPhoto& photo, const char* latitude, const char* longitude) {
        const auto north = photo.decimalForKey(latitude), east = photo.decimalForKey(longitude);
        return north && east && zones->contain(north->toDouble(), east->toDouble());
    };
    everyPhoto = std::move(all);
    for (const Photo& copy : everyPhoto) {
        const KTPhoto& photo = *copy->photo();
        if (excludesLocations() || zones->unreadable() || liesInZone(photo, "latitude", "longitude") ||
            liesInZone(photo, "latitudeShown", "longitudeShown"))
            copy->hideLocation();
    }
    for (std::size_t index : exportedIndexes)
        exportedPhotos.push_back(everyPhoto.at(index));
}

void KTPhotoExportManagerOperation::setTracks(std::vector<KTTrack> near, const KTTrackStore& library) {
    if (excludesLocations() || zones->unreadable())
        return;
    willChange("tracks");
    for (KTTrack& track : near)
        nearbyTracks.push_back(std::make_shared<KTExportedLibraryTrack>(std::move(track), library, zones));
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
    started = true; // before the question, so that either side sees what the other one does
    if (isCancelled())
        return;
    exportPlugin->performExport();
    if (exportPlugin->hasThrown())
        exportManagerShouldCancelExport();
}

std::vector<std::shared_ptr<const KTExportedPhoto>> KTPhotoExportManagerOperation::photos() const {
    return {exportedPhotos.begin(), exportedPhotos.end()};
}

void KTPhotoExportManagerOperation::allowReplacing(const std::vector<std::filesystem::path>& destinations) {
    const std::lock_guard guard(mutex);
    for (const auto& destination : destinations)
        replaceable.insert(destination.lexically_normal());
}

void KTPhotoExportManagerOperation::askAboutExistingFiles(
    const std::vector<std::filesystem::path>& destinations, std::function<void(KTExistingFiles)> answer) {
    std::vector<std::filesystem::path> existing;
    std::error_code error;
    std::ranges::copy_if(destinations, std::back_inserter(existing), [&](const auto& destination) {
        return std::filesystem::exists(std::filesystem::symlink_status(destination, error));
    });
    if (existing.empty())
        return answer(KTExistingFiles::Replace);
    auto receive = [self = shared_from_this(), existing, answer = std::move(answer)](KTExistingFiles chosen) {
        if (chosen == KTExistingFiles::Replace)
            self->allowReplacing(existing);
        answer(chosen);
    };
    if (const auto manager = controller.lock())
        manager->askAboutExistingFiles(existing, std::move(receive));
    else
        receive(KTExistingFiles::Cancel);
}

KTPhotoExportManagerOperation::Photo
KTPhotoExportManagerOperation::photoOf(const KTExportedPhoto& exported) const {
    const auto photo = std::ranges::find(
        exportedPhotos, &exported, [](const Photo& copy) -> const KTExportedPhoto* { return copy.get(); });
    return photo == exportedPhotos.end() ? nullptr : *photo;
}

bool KTPhotoExportManagerOperation::isFileOfCollection(const std::filesystem::path& file) const {
    std::error_code error;
    return std::ranges::any_of(everyPhoto, [&](const Photo& photo) {
        return std::filesystem::equivalent(file, photo->path(), error);
    });
}

/// Why nothing may be written there; else the place is this photo's, and @p mayReplace says whether a file
/// there may go.
std::optional<std::string> KTPhotoExportManagerOperation::reserve(const std::filesystem::path& destination,
                                                                  bool& mayReplace) {
    std::error_code error;
    const bool exists = std::filesystem::exists(std::filesystem::symlink_status(destination, error));
    if (exists && isFileOfCollection(destination))
        return KTLocalizedString("The file there is a photo of your collection.");
    const std::lock_guard guard(mutex);
    const auto place = destination.lexically_normal();
    mayReplace = replaceable.contains(place);
    if (exists && !mayReplace)
        return KTLocalizedString("A file of this name exists already.");
    if (!written.insert(place).second)
        return KTLocalizedString("Another photo of this export has the same name.");
    return std::nullopt;
}

KTPhotoExportResult KTPhotoExportManagerOperation::exportPhoto(const KTExportedPhoto& exported,
                                                               const std::filesystem::path& toPath,
                                                               const KTPhotoExportOptions& withOptions) {
    const auto failure = write(exported, toPath, withOptions);
    if (failure)
        someFailed = true;
    return {!failure, failure.value_or("")};
}

std::optional<std::string> KTPhotoExportManagerOperation::write(const KTExportedPhoto& exported,
                                                                const std::filesystem::path& toPath,
                                                                const KTPhotoExportOptions& options) {
    const Photo photo = photoOf(exported);
    if (!photo)
        return KTLocalizedString("This photo is not one of the export.");
    if (zones->unreadable())
        return KTStringWithFormat(KTLocalizedString("The privacy zone “%@” of the settings cannot be read."),
                                  {*zones->unreadable()});
    KTPhotoFileExport request = KTPhotoFileExport::withOptions(options);
    request.destination = toPath;
    request.excludesLocation |= photo->hidesLocation();
    if (auto reason = reserve(toPath, request.mayReplace))
        return reason;
    auto failure = request.exportPhoto(*photo->photo());
    if (failure) {
        const std::lock_guard guard(mutex);
        written.erase(toPath.lexically_normal());
    }
    return failure;
}

std::vector<std::string> KTPhotoExportManagerOperation::validExportFormats() const {
    return KTPhotoFileExport::validFormats();
}

std::string KTPhotoExportManagerOperation::fileExtensionForUTI(std::string_view uti) const {
    const KTTypeIdentifier* type = KTTypeWithIdentifier(uti);
    return type == nullptr ? std::string() : std::string(type->extension);
}

bool KTPhotoExportManagerOperation::isImageIOSupported(const std::filesystem::path& path) const {
    return canDecodePictures(path);
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
