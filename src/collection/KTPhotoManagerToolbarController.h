#pragma once
#include "platform/common/KTValue.h"
#include "platform/observing/KTObservable.h"

class KTPhotoManager;

/// What the main window's toolbar tells of the collection, and its buttons. Observable under the names of its
/// properties. Main thread.
class KTPhotoManagerToolbarController : public KTObservable {
public:
    /// @p content must outlive the controller.
    explicit KTPhotoManagerToolbarController(KTPhotoManager& content);

    /// How many photos are unsaved and loaded.
    const std::string& unsavedPhotosDescription() const { return description; }
    std::string unsavedPhotosButtonTitle() const;
    bool isUnsavedPhotosButtonEnabled() const { return isEnabled; }
    /// The progress line of the running import.
    const std::string& importDescription() const { return importLine; }
    bool isSyncingWithIPhoto() const { return isSyncing; }
    /// That of a photo library's application, of which this platform has none.
    KTValue iPhotoApplicationIcon() const { return {}; }

    /// Saves every unsaved photo.
    void writeUnsavedChanges();
    void cancelImport();

private:
    void follow(const KTChange& change);
    void describe();
    template<class Property>
    void set(std::string_view key, Property& property, Property value);

    KTPhotoManager& manager;
    std::size_t loaded = 0, unsaved = 0; // photos
    std::string description, importLine;
    bool isEnabled = false, isSyncing = false;
    Observation observation;
};
