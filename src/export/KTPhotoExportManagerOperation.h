#pragma once
#include "export/KTExportedPhotoCopy.h"
#include "export/KTGuardedExportPlugin.h"
#include "export/KTPrivacyZones.h"
#include "export/waymark/KTPhotoExportManager.h"
#include "platform/concurrency/KTOperation.h"
#include "platform/tracklibrary/KTTrackManager.h"

#include <set>

class KTPhotoExportPluginClass;
class KTPhotoExportPluginManager;

/// One export: what may be exported, the plug-in that does it, and the host's services for that plug-in. Runs
/// on the export queue or on the main thread.
///
/// Set up on the main thread before the plug-in is made, read on any thread afterwards; destroyed, with the
/// plug-in, on the main thread. "tracks" and "waypoints" are announced.
///
/// What no export may tell (the user's privacy zones) plug-ins do not learn: photos taken or shown there come
/// without location and are written so, tracks without their points there.
class KTPhotoExportManagerOperation final
    : public KTOperation,
      public KTPhotoExportManager,
      public std::enable_shared_from_this<KTPhotoExportManagerOperation> {
public:
    using Photo = std::shared_ptr<KTExportedPhotoCopy>;

    static std::shared_ptr<KTPhotoExportManagerOperation> make();

    /// Before the photos and tracks.
    void setRequestedOptions(KTPhotoExportOptions options) { requested = std::move(options); }

    /// Copies of all loaded photos, in the user's order, and those of them to export.
    const std::vector<Photo>& allPhotos() const { return everyPhoto; }
    void setPhotos(std::vector<Photo> all, const std::vector<std::size_t>& exportedIndexes);
    /// Tracks and waypoints near the photos' dates. @p library outlives the operation.
    void setTracks(std::vector<KTTrack> near, const KTTrackStore& library);
    const std::vector<KTWaypoint>& waypoints() const { return nearbyWaypoints; }
    void setWaypoints(std::vector<KTWaypoint> near);
    void setMetadata(std::vector<KTExportedField> fields, std::vector<KTExportedFieldGroup> groups);
    void setWindow(KTViewHandle handle) { mainWindow = handle; }
    /// Receives what the plug-in asks for by the three calls at the end.
    void setController(std::weak_ptr<KTPhotoExportPluginManager> receiver) {
        controller = std::move(receiver);
    }
    /// The class that the plug-in is of.
    void setPluginClass(std::shared_ptr<KTPhotoExportPluginClass> made) { madeOf = std::move(made); }
    const std::shared_ptr<KTPhotoExportPluginClass>& pluginClass() const { return madeOf; }
    void setPlugin(std::unique_ptr<KTGuardedExportPlugin> owned) { exportPlugin = std::move(owned); }
    KTGuardedExportPlugin* plugin() const { return exportPlugin.get(); } ///< null before it is made

    /// Lets exportPhoto replace the files @p destinations.
    void allowReplacing(const std::vector<std::filesystem::path>& destinations);

    /// Whether any photo could not be exported.
    bool hasFailures() const { return someFailed; }

    /// Lets the plug-in export, now and on this thread, unless it was cancelled.
    void main() override;
    /// Once this is false for a cancelled operation, its plug-in's export never begins.
    bool hasStarted() const { return started; }

    std::vector<KTExportedField> metadataFields() const override { return fieldList; }
    std::vector<KTExportedFieldGroup> metadataGroups() const override { return groupList; }
    std::vector<std::shared_ptr<const KTExportedPhoto>> photos() const override;
    std::vector<std::shared_ptr<const KTExportedTrack>> tracks() const override { return nearbyTracks; }
    KTViewHandle window() const override { return mainWindow; }
    KTPhotoExportOptions requestedOptions() const override { return requested; }
    void askAboutExistingFiles(const std::vector<std::filesystem::path>& destinations,
                               std::function<void(KTExistingFiles)> answer) override;
    KTPhotoExportResult exportPhoto(const KTExportedPhoto& photo, const std::filesystem::path& toPath,
                                    const KTPhotoExportOptions& withOptions) override;
    std::vector<std::string> validExportFormats() const override;
    std::string fileExtensionForUTI(std::string_view uti) const override;
    /// Whether a file called so can be exported in another size or type.
    bool isImageIOSupported(const std::filesystem::path& path) const;
    // Never wait: from another thread they are posted to the main thread.
    void exportManagerShouldBeginExport() override;
    void exportManagerShouldCancelExport() override;
    void exportManagerShouldFinishExport() override;
    KTPhotoExportManager* apiForProtocol(std::string_view) override { return this; }
    bool conformsToProtocol(std::string_view, int) const override { return true; }

private:
    using Request =
        void (KTPhotoExportPluginManager::*)(const std::shared_ptr<KTPhotoExportManagerOperation>& operation);

    KTPhotoExportManagerOperation() = default;
    void forward(Request request);
    bool excludesLocations() const;
    Photo photoOf(const KTExportedPhoto& exported) const;
    bool isFileOfCollection(const std::filesystem::path& file) const;
    std::optional<std::string> write(const KTExportedPhoto& exported, const std::filesystem::path& toPath,
                                     const KTPhotoExportOptions& options);
    std::optional<std::string> reserve(const std::filesystem::path& destination, bool& mayReplace);

    std::vector<KTExportedField> fieldList;
    std::vector<KTExportedFieldGroup> groupList;
    std::vector<Photo> everyPhoto, exportedPhotos;
    std::vector<std::shared_ptr<const KTExportedTrack>> nearbyTracks;
    std::vector<KTWaypoint> nearbyWaypoints;
    KTViewHandle mainWindow = nullptr;
    std::weak_ptr<KTPhotoExportPluginManager> controller;
    std::shared_ptr<KTPhotoExportPluginClass> madeOf;
    KTPhotoExportOptions requested;
    std::shared_ptr<const KTPrivacyZones> zones =
        std::make_shared<const KTPrivacyZones>(KTPrivacyZones::ofUser());
    std::atomic<bool> someFailed = false, started = false;
    std::mutex mutex; // guards what follows
    std::set<std::filesystem::path> replaceable, written;
    std::unique_ptr<KTGuardedExportPlugin> exportPlugin; // last, so that it goes first
};
