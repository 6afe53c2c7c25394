#pragma once
#include "geotagging/KTPhotoMatchTexts.h"
#include "platform/concurrency/KTOperationQueue.h"

#include <condition_variable>
#include <stop_token>
#include <unordered_map>

class KTGeotaggingController;

/// What came of every loaded photo's search for track points, selected or not,
/// for the photo table; and how many photos match which track, for the track
/// library. Follows photos, edits, tracks, criteria and zones.
///
/// Looks at all photos on another thread, again and again as long as something
/// changes. "matches" is announced when something did, on the main thread, for
/// which all of this is.
class KTPhotoMatchController : public KTObservable {
public:
    using Photo = KTPhotoManager::Photo;

    /// @p owner must be set up before and torn down after the controller, and
    /// outlive it.
    explicit KTPhotoMatchController(KTGeotaggingController& owner);
    ~KTPhotoMatchController() override; ///< as tearDown()
    void setup();
    void tearDown();

    /// As of the last look; null for a photo that has come since.
    const KTGeotaggingFate* fateOfPhoto(const Photo& photo) const;
    /// Texts about it; empty ones where it is not known.
    KTPhotoMatchTexts textsOfPhoto(const Photo& photo) const;
    /// Whether a photo with a capture date has no track point within the time
    /// restriction, or none at all; asked whether or not the criteria want that
    /// restriction.
    bool isFarFromTracks(const Photo& photo) const;
    /// How many photos would take their place from the track or route of that
    /// number.
    std::size_t matchedPhotosOfTrack(std::int64_t track) const;
    const KTGeotaggingCounters& counters() const { return known->counters; }

private:
    struct Look {
        KTGeotaggingCriteria criteria;
        KTGeotaggingCounters counters;
        std::unordered_map<const KTPhoto*, KTGeotaggingFate> fates;
        std::unordered_map<std::int64_t, std::size_t> matches; // by track
        bool isComplete = true;                                // no photo was being linked

        bool isSameAs(const Look& other) const;
    };

    void lookSoon(bool mustAnnounce = false);
    void look(bool afterAWhile);
    void take(const std::shared_ptr<const Look>& found);
    std::shared_ptr<const Look> lookAtPhotos() const;

    KTGeotaggingController& geotagging;
    std::shared_ptr<const Look> known = std::make_shared<const Look>();
    bool isLooking = false, mustLookAgain = false, mustAnnounceNext = false, isSetUp = false;
    int trackHandler = 0;
    std::vector<Observation> observations;
    std::stop_source stop;
    const std::shared_ptr<KTPhotoMatchController*> self; // for what is posted
    KTOperationQueue queue;                              // last: its end is waited for first
};
