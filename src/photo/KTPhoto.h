#pragma once
#include "photo/KTMetadataSource.h"
#include "photo/KTSaveTargets.h"
#include "platform/tracklibrary/KTGeoPoint.h"

#include <set>

/// The record of one image file: its metadata as properties, what was read from the image file and from the
/// XMP sidecar beside it, and what must still be written to them. Not for several threads at once.
class KTPhoto {
public:
    /// Reads the image and, where one exists, its sidecar through @p tool, and fills the properties. Writing
    /// later goes through the shared bridge. A file that cannot be read gives a record that is not valid,
    /// with the failed operation in its log; nothing is written.
    static std::shared_ptr<KTPhoto> initWithFile(const std::filesystem::path& file,
                                                 KTExifTool& tool = KTExifTool::sharedExifTool());

    const std::filesystem::path& fileURL() const { return imageURL; }
    std::filesystem::path xmpURL() const;
    bool hasXMPSidecar() const;
    /// True as soon as one read of the image or the sidecar succeeded.
    bool isValid() const { return valid; }
    const KTMetadataSource& imageSource() const { return image; }
    const KTMetadataSource& sidecarSource() const { return sidecar; }
    const std::vector<KTPhotoOperation>& photoOperations() const { return operations; }

    /// The property named by a catalogue field's key; absent when it has no value or no such field exists.
    KTValue valueForKey(std::string_view key) const { return values.valueForKey(key); }
    /// Sets a property and records what must be written. Unknown and read-only keys are ignored.
    void setValueForKey(std::string_view key, const KTValue& value);
    /// The value that the sources had when they were last read or written.
    KTValue savedPropertyWithKey(std::string_view key) const;

    /// Geotags the photo from @p point, under the location settings: position, datum, GPS version, the
    /// altitude where the point has an elevation, and the GPS time (cleared for a point without a date).
    void setLocationCreatedFromPoint(const KTGeoPoint& point);

    /// The moment of capture: the capture date's reading in its zone; nothing without a date.
    std::optional<KTInstant> dateTimeOriginal() const;
    bool isGeotagged() const;

    KTSaveTargets targets() const;
    bool hasUnsavedChanges() const;
    /// Writes everything pending, each file through a temporary copy on its volume that is read back before
    /// it replaces the file in one step. A backup of each existing file that is about to be replaced goes
    /// into
    /// @p backupFolder when one is given. Outcomes are in the log; what was not written stays pending.
    void saveWithBackupToFolder(const std::optional<std::filesystem::path>& backupFolder);

private:
    explicit KTPhoto(std::filesystem::path file) : imageURL(std::move(file)) {}

    void readSources(KTExifTool& tool);
    void fillProperties();
    void assign(std::string_view key, const KTValue& value);
    void recordEdit(const KTMetadataField& field);

    bool saveImage(const std::optional<std::filesystem::path>& backupFolder);
    bool saveSidecar(const std::optional<std::filesystem::path>& backupFolder);
    /// One file's write, proof and replacement; `source` is brought up to date when it succeeds.
    bool writeAndReplace(KTMetadataSource& source, const KTTagDictionary& changes,
                         const std::filesystem::path& target, const std::filesystem::path& contentFrom);
    KTTagDictionary seedsOfNewSidecar() const;
    void recordDivergentIPTCFields();
    void log(const std::filesystem::path& file, const char* description,
             const std::optional<std::string>& failure);

    std::filesystem::path imageURL;
    bool valid = false;
    KTTagDictionary values; // property key to value
    KTMetadataSource image;
    KTMetadataSource sidecar;
    std::map<std::string, std::set<std::string>, std::less<>>
        recordedKeys; // tag keys an edit of a field has touched
    std::vector<KTPhotoOperation> operations;
};
