#pragma once
#include "metadata/KTPhotoOperation.h"
#include "metadata/KTTagDictionary.h"
#include "platform/desktop/KTMediaLibrary.h"

#include <atomic>
#include <mutex>
#include <stop_token>

/// The bridge to the libraries of iPhoto and Aperture: reads what a library says about a photo, and writes
/// changes through iPhoto. Where the platform has no such libraries, nothing is found and a write fails with
/// a reason that users can read. Any thread; the functions that wait are for worker threads.
class KTiPhotoTool {
public:
    static constexpr const char* kiPhotoIdentifier = "com.apple.iPhoto";
    static constexpr const char* kApertureIdentifier = "com.apple.Aperture";

    /// How long a function waits for a library.
    struct Waits {
        std::chrono::milliseconds limit = std::chrono::seconds(60);     ///< of one call
        std::chrono::milliseconds objectStep = std::chrono::seconds(3); ///< between two looks for an item
    };

    /// The application's. This platform has no photo libraries.
    static KTiPhotoTool& sharediPhotoTool();
    /// Begins to load the libraries of @p mediaPlatform, null for a platform without any.
    KTiPhotoTool(std::shared_ptr<KTMediaPlatform> mediaPlatform, Waits waitLimits);
    KTiPhotoTool(const KTiPhotoTool&) = delete;
    KTiPhotoTool& operator=(const KTiPhotoTool&) = delete;

    // Libraries
    /// Null when there is none.
    const std::shared_ptr<KTMediaLibrary>& mediaLibrary() const { return library; }
    /// Null until the library's sources are known, and when it lacks this one.
    std::shared_ptr<KTMediaSource> iPhotoSource() const;
    std::shared_ptr<KTMediaSource> apertureSource() const;
    bool mediaSourcesDidLoad() const;
    bool mediaiPhotoSourceDidLoad() const;
    bool mediaApertureSourceDidLoad() const;

    /// Waits until the source is loaded, the limit has passed or @p stop is requested; not at all when there
    /// is no library, or it lacks that source. Whether the source is loaded.
    bool waitUntilMediaSourceLoadsWithIdentifier(const std::string& sourceIdentifier,
                                                 const std::stop_token& stop = {});
    /// The item, once its source is loaded (waits as above); null when it is not there.
    std::shared_ptr<const KTMediaObject> mediaObjectFromSource(const std::string& sourceIdentifier,
                                                               const std::string& withObjectIdentifier,
                                                               const std::stop_token& stop = {});
    /// Looks for the item again and again until it is found; null when the limit has passed or @p stop is
    /// requested first, and at once where the wait for its source would be in vain.
    std::shared_ptr<const KTMediaObject> waitForMediaObjectFromSource(const std::string& sourceIdentifier,
                                                                      const std::string& withObjectIdentifier,
                                                                      const std::stop_token& stop = {});

    /// What the library says about an item, from its @p attributes, under the keys that the fields read
    /// (KTMetadataField::valueFromiPhotoDictionary). Each key is there only when its attribute is. The
    /// keywords are the attribute "Keywords"; where the setting defaultShouldInterpretLastKeywordAsEvent
    /// holds, the last of them is the event.
    static KTTagDictionary normalizeMediaObjectAttributes(const KTValue::Dictionary& attributes);

    // The program
    /// iPhoto itself, asked for when first needed; null when it cannot be had.
    std::shared_ptr<KTScriptingApplication> iPhoto();
    /// The number that its version begins with; 0 when it is not installed.
    int majorApplicationVersion() const;
    /// iPhoto's photo whose current file is @p file, else the last one whose original is; null for none, and,
    /// with a line in the log, when iPhoto cannot be had.
    std::shared_ptr<KTScriptingPhoto> photoFromFile(const std::filesystem::path& file);
    /// Writes @p changes (keys without source: "title", "date", ...; null markers clear) to iPhoto's photo of
    /// @p toMediaObject. Keywords are never written; a change of them alone succeeds. A date is written to
    /// iPhoto 8 as a reading of the computer's present offset, to iPhoto 9 as one of the application's zone,
    /// to others not at all.
    KTPhotoOperation setValuesForKeysWithDictionary(const KTTagDictionary& changes,
                                                    const KTMediaObject& toMediaObject);

    /// Set while many photos are being written to iPhoto. Of no effect on the tool.
    bool observationIsPaused() const { return isPaused; }
    void setObservationIsPaused(bool paused) { isPaused = paused; }

private:
    struct Sources;
    using Deadline = std::chrono::steady_clock::time_point;

    std::shared_ptr<KTMediaSource> loadedSource(const std::string& sourceIdentifier, Deadline deadline,
                                                const std::stop_token& stop) const;
    Deadline deadlineFromNow() const { return std::chrono::steady_clock::now() + waits.limit; }
    std::optional<KTInstant> dateForiPhoto(const KTValue& date) const;

    const std::shared_ptr<KTMediaPlatform> platform;
    const Waits waits;
    std::shared_ptr<KTMediaLibrary> library;
    const std::shared_ptr<Sources>
        sources; // shared with the library's calls back, which may outlive the tool
    std::mutex applicationMutex;
    std::shared_ptr<KTScriptingApplication> application;
    std::atomic<bool> isPaused = false;
};
