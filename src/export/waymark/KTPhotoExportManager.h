#pragma once
#include "KTExportedTrack.h"
#include "KTPhotoExportInterface.h"

#include <functional>
#include <memory>

/// A field of a photo's metadata.
struct KTExportedField {
    std::string key;  ///< for KTExportedPhoto::valueForKey
    std::string name; ///< in the user's language
};

/// Fields that the user sees together.
struct KTExportedFieldGroup {
    std::string name; ///< in the user's language
    std::vector<KTExportedField> fields;
};

/// What the host does for the plug-in of one export. The object outlives the plug-in. Any thread, but never
/// between the plug-in's lockProgress and unlockProgress: a service may wait for the main thread, which may
/// be about to read the progress.
class KTPhotoExportManager {
public:
    virtual ~KTPhotoExportManager() = default;

    /// The fields and groups of the inspector, in its order, as they were when the export was chosen.
    virtual std::vector<KTExportedField> metadataFields() const = 0;
    virtual std::vector<KTExportedFieldGroup> metadataGroups() const = 0;
    /// The photos to export, in the user's order.
    virtual std::vector<std::shared_ptr<const KTExportedPhoto>> photos() const = 0;
    /// The tracks recorded within a day of these photos' capture dates.
    virtual std::vector<std::shared_ptr<const KTExportedTrack>> tracks() const = 0;
    /// The main window, for windows of the plug-in's own; null where there is none.
    virtual KTViewHandle window() const = 0;

    /// What the user has asked for elsewhere than in the plug-in's settings, which it goes before; empty for
    /// nothing. exportPhoto follows KTExcludeLocationOption of it in any case.
    virtual KTPhotoExportOptions requestedOptions() const = 0;
    /// Asks the user what to do about those of @p destinations that are there already, for
    /// shouldPrepareForExportToPath. @p answer is called once, on the main thread: at once, with Replace,
    /// when none is there. After Replace, exportPhoto may replace them. Main thread.
    virtual void askAboutExistingFiles(const std::vector<std::filesystem::path>& destinations,
                                       std::function<void(KTExistingFiles)> answer) = 0;

    /// Writes @p photo, which must be one of `photos`, with its metadata, edits that are not saved and those
    /// of its sidecar included, to the file @p toPath: the whole file or none, and none in the place of
    /// another file, unless the user has chosen that file or askAboutExistingFiles allows it. Nor are photos
    /// of the collection ever replaced. Pictures that are made anew are stored upright and keep their colour
    /// profile. A photo without location is read back; it is not exported where a trace of the place is left.
    ///
    /// Takes its time: for performExport. Several threads may export at once, each photo on one.
    virtual KTPhotoExportResult exportPhoto(const KTExportedPhoto& photo, const std::filesystem::path& toPath,
                                            const KTPhotoExportOptions& withOptions) = 0;
    /// The type identifiers of the pictures that exportPhoto can make ("public.jpeg" first).
    virtual std::vector<std::string> validExportFormats() const = 0;
    /// The usual file name extension of a type identifier, without dot; empty for an unknown one.
    virtual std::string fileExtensionForUTI(std::string_view uti) const = 0;

    /// The plug-in is prepared; performExport shall run.
    virtual void exportManagerShouldBeginExport() = 0;
    /// The export is over, before its end or at it. The host lets go of the plug-in soon after.
    virtual void exportManagerShouldCancelExport() = 0;
    virtual void exportManagerShouldFinishExport() = 0;

    /// This object, for every name.
    virtual KTPhotoExportManager* apiForProtocol(std::string_view protocol) = 0;
    /// True for every name and version.
    virtual bool conformsToProtocol(std::string_view protocol, int version) const = 0;
};
