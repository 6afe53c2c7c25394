#pragma once
#include "photo/KTMetadataSource.h"
#include "photo/KTPhotoDateFamily.h"
#include "photo/KTPhotoOpening.h"
#include "photo/KTPhotoSaving.h"
#include "photo/KTSaveTargets.h"
#include "platform/cartography/KTSpatialObject.h"
#include "platform/desktop/KTFileDates.h"
#include "platform/desktop/KTFilePresenter.h"

#include <array>

class KTLinkablePoint;
class KTMultiPointGeometry;
struct KTMapPoint;
class KTPhotoSidecar;
class KTUndoManager;
struct KTMediaObject;

/// The record of one image file: its metadata as observable properties, what was read from the image file,
/// the sidecar beside it and the photo library's item, and what must still be written to each.
///
/// Properties go by key (the catalogue's fields and those of KTPhotoPropertyTable) and may be read and set on
/// any thread; each set is announced before and after, with the old value, on the setting thread. What must
/// be written follows from the announcements: a KTPhotoChangeTracker, the collection's or one's own, enters
/// each edit into the three dictionaries of changes. Changes of these dictionaries and of "hasUnsavedChanges"
/// are announced on the main thread alone, while the editing thread waits.
class KTPhoto final : public KTObservable,
                      public KTSpatialObject,
                      public KTFilePresenter,
                      public std::enable_shared_from_this<KTPhoto> {
public:
    /// A record without file and values.
    static std::shared_ptr<KTPhoto> init();
    /// Reads the image and, where one exists, its sidecar and the library's item, and fills the properties.
    /// Null when the image, or its existing sidecar, cannot be opened. A file that can be opened but says
    /// nothing gives a record that is not valid, with the failed operation in its log. @p thumbnail is the
    /// user interface's and not kept. Nothing is announced meanwhile; any thread.
    static std::shared_ptr<KTPhoto> initWithFile(const std::filesystem::path& file,
                                                 const std::filesystem::path& thumbnail = {},
                                                 std::shared_ptr<const KTMediaObject> mediaObject = nullptr,
                                                 const KTPhotoOpening& opening = {});
    /// A new record with the same files, values and dictionaries of the image and the sidecar, both shifts 0;
    /// without log, undo context and library item.
    std::shared_ptr<KTPhoto> copyWithZone() const;
    ~KTPhoto() override;

    // Files
    const std::filesystem::path& fileURL() const { return imageURL; }
    std::string path() const { return imageURL.string(); }
    std::string filename() const { return imageURL.filename().string(); }
    std::filesystem::path xmpURL() const;
    /// Asked of the file system at each call; true also where it does not answer.
    bool hasXMPSidecar() const;
    /// The uniform type identifier by the file's extension; absent for an unknown one.
    KTValue uti() const;
    /// The text for logs.
    std::string description() const;
    std::filesystem::path presentedItemURL() const override { return imageURL; }
    KTOperationQueue& presentedItemOperationQueue() override { return presenterQueue; }

    // State
    /// True as soon as one read of the image or the sidecar succeeded.
    bool isValid() const;
    const std::shared_ptr<const KTMediaObject>& mediaObject() const { return libraryItem; }
    bool shouldUseMediaObjectProperties() const { return libraryItem != nullptr; }
    bool shouldUseIPhotoProperties() const;
    bool isSyncingWithAperture() const { return false; }
    /// A copy of the source as it is now.
    KTMetadataSource source(KTMetadataSource::Kind kind) const;
    std::vector<KTPhotoOperation> photoOperations() const;
    std::optional<KTPhotoOperation> lastPhotoOperation() const;
    /// Appends to the log; nothing is ignored.
    void addPhotoOperation(const std::optional<KTPhotoOperation>& operation);

    // Properties
    /// Absent when the property has no value or does not exist.
    KTValue valueForKey(std::string_view key) const;
    /// Sets a property; the null marker clears it. A property that does not exist, or that follows from
    /// others, is left alone.
    void setValueForKey(std::string_view key, const KTValue& value);
    /// A decimal property; nothing when it is absent.
    std::optional<KTDecimal> decimalForKey(std::string_view key) const;
    /// The value that the key had in the sources when they were last read or written, with the precedence of
    /// reading: library, sidecar where a save writes to it, image.
    KTValue savedPropertyWithKey(std::string_view key) const;
    /// What differs from savedPropertyWithKey, of all fields that can be written but the file's own dates;
    /// the null marker for a value that was cleared.
    KTValue::Dictionary modifiedKeyValues() const;
    /// Whether both coordinates are there; never at odds with them.
    bool isGeotagged() const;
    bool hasLatitudeLongitudeCreated() const { return isGeotagged(); }
    bool hasLatitudeLongitudeShown() const;
    /// Clears position, altitude, GPS time, datum and version, each through its setter.
    void removeAllGPSValues();

    // Geotagging (KTPhotoLocation.cpp), under the location settings. Each is one undo step and holds the undo
    // queue, as setValuesForKeysWithDictionary does. A point without a position changes nothing.
    //
    // Where place names are to be written they are waited for. The main thread never waits: there the edit is
    // made later, from its event loop, as soon as they are known, in the order of the calls, unless the
    // photo's location or capture date was edited meanwhile. Why there are no names, or no edit, is a warning
    // in the log.
    /// "Geotag Photos": the place where the picture was taken, with position, datum, GPS version, altitude
    /// where the point has an elevation, GPS time (cleared unless the point is a track point of a date), and
    /// the names of the place, for the place shown as well.
    void setLocationCreatedFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point);
    /// "Set Location Shown": the place that the picture shows, its names, and the image direction, the
    /// bearing from the photo's own position (0, 0 for none) to that place.
    void setLocationShownFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point);
    /// "Reverse Geocode": only the names of the place created or shown.
    void reverseGeocodeLocationCreatedFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point);
    void reverseGeocodeLocationShownFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point);
    /// The place names that the settings and the photo's present ones let be written, by key. Waits for those
    /// of @p point if any is; the main thread takes what is known.
    KTValue::Dictionary locationCreatedDictionaryFromLinkablePoint(KTLinkablePoint& point) const;
    KTValue::Dictionary locationShownDictionaryFromLinkablePoint(KTLinkablePoint& point) const;
    /// Whether geotagging would write any place name.
    bool geotaggingWantsPlaceNames() const;
    /// Whether an edit waits for place names. Main thread.
    bool isWaitingForPlaceNames() const { return locationEditsPutOff != 0; }

    // Capture dates. The instant is the components' reading in their zone, nothing without date, calendar or
    // zone. The shift is in seconds, counted from the date saved in the file. Each setter but that of the
    // zone is one undo step. Not from a task of the same family's queue.
    std::optional<KTInstant> dateTimeOriginal() const { return instantOf(KTPhotoDateFamily::Original); }
    std::optional<KTInstant> dateTimeDigitized() const { return instantOf(KTPhotoDateFamily::Digitized); }
    KTPhotoDateFamily::Reading readingOf(KTPhotoDateFamily::Which which) const {
        return dates[which].reading();
    }
    std::optional<KTInstant> instantOf(KTPhotoDateFamily::Which which) const;
    /// Sets components and shift. A date without zone given to a photo that had no date is taken in the
    /// assumed zone; a later one has no instant and cannot be shifted.
    void setDateComponents(KTPhotoDateFamily::Which which, std::optional<KTDateComponents> components,
                           double shift = 0);
    /// The reading of @p instant in the zone in which the application shows dates; clears the date for
    /// nothing.
    void setDate(KTPhotoDateFamily::Which which, const std::optional<KTInstant>& instant);
    /// The date saved in the file, moved by @p seconds; keeps the present zone. No effect without a saved
    /// date.
    void setDateShift(KTPhotoDateFamily::Which which, std::optional<double> seconds);
    /// Keeps the reading of the clock. No effect without a date; no undo step.
    void setDateTimeZone(KTPhotoDateFamily::Which which, const KTTimeZone& zone);
    void setDateTimeOriginalComponents(std::optional<KTDateComponents> components, double shift = 0) {
        setDateComponents(KTPhotoDateFamily::Original, std::move(components), shift);
    }
    void setDateTimeDigitizedComponents(std::optional<KTDateComponents> components, double shift = 0) {
        setDateComponents(KTPhotoDateFamily::Digitized, std::move(components), shift);
    }
    void setDateTimeOriginal(const std::optional<KTInstant>& date) {
        setDate(KTPhotoDateFamily::Original, date);
    }
    void setDateTimeDigitized(const std::optional<KTInstant>& date) {
        setDate(KTPhotoDateFamily::Digitized, date);
    }
    void setDateTimeOriginalShift(std::optional<double> seconds) {
        setDateShift(KTPhotoDateFamily::Original, seconds);
    }
    void setDateTimeDigitizedShift(std::optional<double> seconds) {
        setDateShift(KTPhotoDateFamily::Digitized, seconds);
    }
    void setDateTimeOriginalTimeZone(const KTTimeZone& zone) {
        setDateTimeZone(KTPhotoDateFamily::Original, zone);
    }
    void setDateTimeDigitizedTimeZone(const KTTimeZone& zone) {
        setDateTimeZone(KTPhotoDateFamily::Digitized, zone);
    }
    /// The calling thread's calendar of that kind; its zone is whatever its last user set.
    static KTCalendar& sharedCalendarWithIdentifier(KTCalendarIdentifier identifier);

    // Edits and undo
    /// The undo manager and its queue, shared with the collection; null for none.
    void setUndoManager(std::shared_ptr<KTUndoManager> manager);
    std::shared_ptr<KTUndoManager> undoManager() const;
    void setUndoQueue(std::shared_ptr<KTSerialQueue> queue);
    std::shared_ptr<KTSerialQueue> undoQueue() const;
    /// Sets all values as one undo step. Holds the undo queue: not from a task of that queue, nor from code
    /// run by an announcement.
    void setValuesForKeysWithDictionary(const KTValue::Dictionary& newValues, const std::string& actionName);
    /// Marks for writing every source that differs from the present values. As above.
    void synchronizeMetadataSources();
    /// Sets a value and registers the way back, for undo and redo.
    void undoManagerChangeKeyPath(const std::string& key, const KTValue& toValue);
    /// The key whose edit was registered last, within the last second: further edits of it join that step.
    KTValue lastRecordedUndoKey() const;
    void invalidateLastRecordedUndoKey();
    /// How many guards keep this logical call's edits from registering undo; KTCallMark(&photo) is such a
    /// guard.
    int doNotTrackChangesStack() const;

    /// What an observer does about an edit: enters the change of @p key into the three dictionaries, brings
    /// what follows from it up to date and registers it for undo. For KTPhotoChangeTracker.
    void recordEdit(std::string_view key, const KTValue& oldValue);
    void addTracker(int count) { trackers += count; }

    // Saving
    bool writingToImageFile() const { return targets().imageFile; }
    bool writingToXMPSidecar() const { return targets().xmpSidecar; }
    bool unsavedFile() const;
    bool unsavedSidecar() const;
    bool unsavedIPhoto() const;
    bool hasUnsavedChanges() const;
    /// Brings hasUnsavedChanges up to date.
    void checkForUnsavedChanges();
    /// Writes everything pending, each file through a temporary copy on its volume that is read back before
    /// it replaces the file in one step. A copy of each file that is about to be replaced goes into
    /// @p backupFolder when one is given. A file that another program has changed since it was read keeps
    /// what that program wrote; only the pending tags go into it, and a warning says so. Outcomes are in the
    /// log; what was not written stays pending. Any thread, one save of a photo at a time.
    void saveWithBackupToFolder(const std::optional<std::filesystem::path>& backupFolder,
                                const KTPhotoSaving& saving = {});
    /// First step of every save: hands the edits of a picture that a library keeps in an edited version on to
    /// the original beside it.
    void saveToIPhotoOriginalIfNecessaryWithBackupToFolder(
        const std::optional<std::filesystem::path>& backupFolder);

    // What browser and map show
    std::string imageSubtitle() const;
    std::string featureName() const override { return filename(); }
    std::string featureDescription() const override;
    std::string kind() const override;
    std::vector<std::string> propertiesByName() const override { return {"name", "kind"}; }
    bool allowsInteraction() const override { return true; }
    /// A point at (longitude, latitude), or an empty geometry; made when first asked for and after each edit
    /// of a coordinate.
    std::shared_ptr<const KTGeometry> geometry() const override;
    void setGeometry(std::shared_ptr<const KTGeometry> newGeometry);
    std::shared_ptr<const KTStyle> style() const override;
    /// The place is provisional while a coordinate of it is still to be written.
    KTFeatureValues featureValues() const override;
    KTSpatialObjectController* objectOwner() const override { return owner; }
    void setObjectOwner(KTSpatialObjectController* newOwner) override { owner = newOwner; }
    /// The geodesic from the place of the camera to the place shown, a point each kilometre; null without
    /// either. Made when first asked for.
    std::shared_ptr<const KTMultiPointGeometry> geodesicToLocationShown() const;
    void setGeodesicToLocationShown(std::shared_ptr<const KTMultiPointGeometry> geodesic);

private:
    /// What the edits of a field have entered into the dictionaries of changes.
    using Revisions = std::array<unsigned, 3>;
    struct FieldEdits {
        std::vector<KTTagKey> keys;
        Revisions revisions = {}; ///< of the sources, when the first that a save would write was entered
    };
    /// Keeps a value that is being set from being taken for one that nobody has edited.
    class EditUnderWay {
    public:
        EditUnderWay(KTPhoto& edited, std::string_view editedKey);
        ~EditUnderWay();
        EditUnderWay(const EditUnderWay&) = delete;
        EditUnderWay& operator=(const EditUnderWay&) = delete;

    private:
        KTPhoto& photo;
        const std::string_view key;
    };
    /// What a look at a file brought before a save writes it.
    struct Refresh {
        std::optional<std::string> warning, failure;
    };
    /// Values and dates that are set together; its own inverse.
    struct GroupedEdit;
    struct WriteRequest;
    using Sources = std::array<KTMetadataSource, 3>;

    explicit KTPhoto(std::filesystem::path file, std::shared_ptr<const KTMediaObject> item);

    // Values (KTPhoto.cpp)
    void setStoredValue(const struct KTPhotoProperty& property, const KTValue& value);
    void storeAndAnnounce(const KTPhotoProperty& property, KTValue value, bool unlessEdited);
    bool isBeingEdited(std::string_view key) const; // the mutex must be held
    KTValue storedValue(std::size_t place) const;

    // Reading (KTPhotoReading.cpp)
    bool readSources(const KTPhotoOpening& opening);
    void createSidecarOfRawFile(KTExifTool& tool);
    bool readFile(KTMetadataSource::Kind kind, KTExifTool& tool);
    void readFileAttributes();
    void readLibraryItem();
    void fillProperties();
    KTValue valueAsRead(const KTMetadataField& field, const Sources& from, const KTSaveTargets& where) const;

    // Presentation (KTPhotoPresentation.cpp)
    std::optional<KTMapPoint> positionOf(std::string_view longitude, std::string_view latitude) const;
    bool isPositionPending() const; // the mutex must be held

    // Geotagging (KTPhotoLocation.cpp)
    struct PlaceName;
    struct PlaceNames;
    struct LocationEdit;
    struct LocationEditPutOff;
    using Names = std::vector<const PlaceName*>;
    using Places = std::vector<const PlaceNames*>;
    static const PlaceNames kPlaceCreated, kPlaceShown;
    static const LocationEdit kLocationCreated, kLocationShown, kNamesCreated, kNamesShown;
    void editLocation(const std::shared_ptr<KTLinkablePoint>& point, const LocationEdit& edit);
    void putOffLocation(const std::shared_ptr<KTLinkablePoint>& point, const LocationEdit& edit);
    void applyLocation(const KTLinkablePoint& point, const LocationEdit& edit,
                       const KTValue::Dictionary& answer);
    KTValue::Dictionary positionCreatedFrom(const KTLinkablePoint& point) const;
    KTValue::Dictionary positionShownFrom(const KTLinkablePoint& point) const;
    KTValue::Dictionary namesFrom(KTLinkablePoint& point, const PlaceNames& place) const;
    Places placesToName(const LocationEdit& edit) const;
    Names wantedNames(const PlaceNames& place) const;
    KTValue::Dictionary namesToWrite(const PlaceNames& place, const KTValue::Dictionary& answer) const;

    // Dates (KTPhotoDates.cpp)
    void changeDates(KTPhotoDateFamily::Which which, std::initializer_list<std::string_view> keys,
                     const std::function<KTPhotoDateFamily::Reading(KTPhotoDateFamily&)>& store);
    void registerDatesForUndo(KTPhotoDateFamily::Which which);

    // Changes (KTPhotoChanges.cpp)
    void changeRecords(const std::function<void()>& change);
    void recordField(const KTMetadataField& field, const KTValue& value, bool evenAsSaved);
    bool isAsSaved(const KTMetadataField& field, const KTValue& value, const KTSaveTargets& where) const;
    void updateGeotagState();
    bool computeHasUnsavedChanges(const KTSaveTargets& where) const;
    bool isUnsaved(KTMetadataSource::Kind kind, const KTSaveTargets& where) const; // the mutex must be held
    void setMainThreadHasUnsavedChanges(bool unsaved);
    void recordInto(KTMetadataSource& source, const KTMetadataField& field, const KTValue& value);
    Revisions revisions() const; // the mutex must be held
    bool hasPendingKeys(const KTMetadataField& field, const KTTagDictionary& changes) const;
    bool isPendingInTargets(const KTMetadataField& field, const KTSaveTargets& where) const;

    // Undo (KTPhotoUndo.cpp)
    void registerEditForUndo(const KTMetadataField& field, const KTValue& oldValue);
    void registerWayBack(const std::string& key, const KTValue& before);
    void apply(const GroupedEdit& edit, const std::string& actionName);
    GroupedEdit inverseOf(const GroupedEdit& edit) const;

    // Saving (KTPhotoSaving.cpp, KTPhotoFileWriting.cpp, KTPhotoRefreshing.cpp, KTPhotoLibrarySaving.cpp)
    enum class WriteResult { Written, Failed, Stopped, ChangedMeanwhile };
    using BackupFolder = std::optional<std::filesystem::path>;
    KTSaveTargets targets() const;
    bool saveFiles(const BackupFolder& backupFolder, const KTPhotoSaving& saving);
    WriteResult saveFile(KTMetadataSource::Kind kind, const BackupFolder& backupFolder,
                         const KTPhotoSaving& saving);
    void stampWithDate(std::string_view key, const KTValue& date);
    bool backUpImage(const BackupFolder& folder, std::filesystem::path& backup);
    WriteRequest imageRequest() const;
    WriteRequest sidecarRequest() const;
    KTTagDictionary valuesOfDivergentIPTCFields(const KTMetadataSource& image) const;
    WriteResult writeAndReplace(const WriteRequest& request);
    bool beginSidecar(const WriteRequest& request, const std::filesystem::path& temporary);
    void keepFileDates(const std::optional<KTFileDate>& modified);
    void finishWrite(const WriteRequest& request, const KTMetadataSource& written,
                     const KTTagDictionary& notWritten);
    Refresh refreshIfChanged(KTMetadataSource::Kind kind);
    void adopt(const KTMetadataSource& read, const KTTagDictionary& pending,
               const std::function<bool(const KTTagKey&)>& isEdited);
    enum class Pending { InTargets, Anywhere };
    void showUneditedValues(Pending pending);
    void showAsRead(const KTMetadataField& field, const KTValue& value);
    std::vector<const KTMetadataField*> fieldsToWrite() const;
    void followFiles(const std::vector<const KTMetadataField*>& written);
    void saveLibraryItem();
    void log(const std::filesystem::path& file, const char* description,
             const std::optional<std::string>& failure, const std::optional<std::string>& warning = {});

    const std::filesystem::path imageURL;
    const std::shared_ptr<const KTMediaObject> libraryItem;
    std::array<KTPhotoDateFamily, 2> dates;

    mutable std::mutex mutex; // guards what follows; never held while announcing or waiting
    std::vector<KTValue> values;
    Sources sources;
    std::map<const KTMetadataField*, FieldEdits> recordedEdits;
    std::vector<std::string_view> editsUnderWay; // keys that a thread is setting
    std::vector<KTPhotoOperation> operations;
    bool valid = false;
    bool unsaved = false;
    std::optional<KTInstant> knownCreationDate; // as read or last set on the file
    std::shared_ptr<KTUndoManager> manager;
    std::shared_ptr<KTSerialQueue> queue;
    std::string lastUndoKey;
    std::chrono::steady_clock::time_point lastUndoTime;
    mutable std::shared_ptr<const KTGeometry> shape;
    mutable std::shared_ptr<const KTMultiPointGeometry> geodesicLine;

    std::string_view followedKey;             // shown as read at present; for the main thread
    std::atomic<bool> checkIsDue = false;     // put off to the end of a grouped edit
    std::atomic<bool> sidecarOfGroup = false; // whether there was one at its beginning
    std::atomic<int> trackers = 0;
    int locationEditsPutOff = 0; // for the main thread
    std::atomic<KTSpatialObjectController*> owner = nullptr;
    std::unique_ptr<KTPhotoSidecar> photoSidecar;
    KTOperationQueue presenterQueue;
};
