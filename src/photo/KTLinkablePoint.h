#pragma once
#include "platform/cartography/KTSpatialObject.h"
#include "platform/concurrency/KTLatch.h"
#include "platform/observing/KTObservable.h"
#include "platform/tracklibrary/KTGeoPoint.h"

#include <atomic>

class KTPhoto;

/// Where a candidate location comes from.
enum KTLinkablePointType : unsigned {
    KTLinkablePointTypeMapPoint = 0,     ///< the map, a waypoint, a drag, a photo's own position
    KTLinkablePointTypePreceding = 1,    ///< the last track point before the capture instant
    KTLinkablePointTypeNext = 2,         ///< the first track point at or after it
    KTLinkablePointTypeTimeWeighted = 3, ///< between these two
};

/// A candidate location for a photo, with texts that describe it relative to the photo and the place names of
/// its position, which are asked of the shared gazetteer when they are first read.
///
/// The place names and the texts that follow from distances are observable by key; answers are announced on
/// the gazetteer's thread, where an observer must not wait for a place. Position, type and distances are set
/// by the thread that makes the point, before it hands the point over; everything else may be used on any
/// thread. Texts that do not exist are empty.
class KTLinkablePoint final : public KTObservable,
                              public KTSpatialObject,
                              public std::enable_shared_from_this<KTLinkablePoint> {
public:
    /// How long a wait for the place names takes at most.
    static constexpr std::chrono::seconds kWaitLimit{60};

    /// A point with the date, elevation and position of @p point (all absent for none), described relative to
    /// @p photo, which may be null. A change of the reverse geocoder makes it ask again.
    static std::shared_ptr<KTLinkablePoint> initWithGeoPoint(const std::optional<KTGeoPoint>& point,
                                                             KTLinkablePointType forType,
                                                             std::shared_ptr<KTPhoto> photo);
    /// A plain point without photo and texts, whose place names stay as first answered.
    static std::shared_ptr<KTLinkablePoint> initWithGeoPoint(const KTGeoPoint& point,
                                                             KTLinkablePointType forType);

    KTLinkablePointType linkablePointType() const { return type; }
    void setLinkablePointType(KTLinkablePointType newType);
    /// The track point's instant; absent for an interpolated point.
    const std::optional<KTInstant>& date() const { return instant; }
    void setDate(const std::optional<KTInstant>& newDate) { instant = newDate; }
    // Degrees, WGS 84, and metres above sea level; not-a-number is stored as absent.
    const std::optional<KTDecimal>& latitude() const { return degreesNorth; }
    const std::optional<KTDecimal>& longitude() const { return degreesEast; }
    const std::optional<KTDecimal>& elevation() const { return metresHigh; }
    void setLatitude(const std::optional<KTDecimal>& degrees);
    void setLongitude(const std::optional<KTDecimal>& degrees);
    void setElevation(const std::optional<KTDecimal>& metres);
    bool hasPosition() const { return degreesNorth && degreesEast; }
    /// The photo that the point was made for; null for none.
    const std::shared_ptr<KTPhoto>& photo() const { return madeFor; }
    /// Its file name when the point was made.
    const std::string& photoName() const { return nameOfPhoto; }

    // Texts
    const std::string& pointTitle() const { return title; }
    /// "2 minutes before photo."
    std::string pointDescription() const;
    /// The same with the photo's name.
    std::string pointLongDescription() const;
    /// Metres from an interpolated point to the track points before and after it.
    double precedingDistance() const;
    double nextDistance() const;
    void setPrecedingDistance(double metres);
    void setNextDistance(double metres);
    /// What is to be said of an interpolated point whose neighbours lie on either side of the 180° meridian;
    /// empty for others.
    std::string caution() const;
    void setNeighboursSpanDateLine(bool span) { spansDateLine = span; }
    /// Describes an interpolated point by its distances, in the user's units; no effect on other points.
    void updateDescriptions();

    // Place names. Each asks the gazetteer if nobody has, and is a text that says so until the answer comes.
    std::string locationDescription();
    std::string city();
    std::string state();
    std::string country();
    /// The gazetteer's last answer; empty before.
    KTValue::Dictionary locationDictionary() const;
    bool requestMade() const;
    bool requestCompleted() const;
    /// Why the place names could not be found out; nothing when they could, or when nobody has asked.
    std::optional<std::string> requestFailure() const;
    /// Asks the gazetteer, once. A point without a position knows at once that it has no place names.
    void fetchLocationDescription();
    /// As above, and waits for the answer, kWaitLimit at most; a later answer is still taken. The main thread
    /// serves the calls of other threads meanwhile. Returns the answer, with "error" in place of names where
    /// there is none.
    KTValue::Dictionary waitUntilLocationDescriptionFetchIsCompleted();
    /// The answer, nothing while it is not there.
    std::optional<KTValue::Dictionary> answerIfCompleted() const;
    /// Ends the waits for the answer.
    void stopWaiting();
    /// Forgets the answer and, if it had been asked for, asks again.
    void clearLocationDictionaryCacheAndRefetch();

    // On the map
    /// "Preceding point" and the like; empty for a map point, which no map shows as a feature.
    std::string featureName() const override;
    std::string featureDescription() const override;
    std::string kind() const override;
    std::vector<std::string> propertiesByName() const override { return {"name", "kind"}; }
    bool allowsInteraction() const override { return false; }
    std::shared_ptr<const KTGeometry> geometry() const override;
    std::shared_ptr<const KTStyle> style() const override;
    KTFeatureValues featureValues() const override { return {.isProvisional = true, .pointType = type}; }
    KTSpatialObjectController* objectOwner() const override { return owner; }
    void setObjectOwner(KTSpatialObjectController* newOwner) override { owner = newOwner; }

private:
    KTLinkablePoint() = default;
    void copyGeoPoint(const KTGeoPoint& point);
    void describeRelativeToPhoto();
    void setDistance(double& distance, double metres);
    std::string placeText(std::string_view key, const char* placeholder);
    void changePlace(const std::function<std::shared_ptr<KTLatch>()>& change);
    /// The answer to the request of that number; one to an earlier request is dropped.
    void setRequestedLocationDictionary(const KTValue::Dictionary& answer, unsigned request);

    KTLinkablePointType type = KTLinkablePointTypeMapPoint;
    std::optional<KTInstant> instant;
    std::optional<KTDecimal> degreesNorth, degreesEast, metresHigh;
    std::shared_ptr<KTPhoto> madeFor;
    std::string nameOfPhoto, title;
    Observation units, reverseGeocoder;
    bool spansDateLine = false;
    std::atomic<KTSpatialObjectController*> owner = nullptr;

    mutable std::mutex mutex; // guards what follows; never held while announcing, asking or waiting
    double metresToPreceding = 0, metresToNext = 0;
    std::string shortText, longText;
    KTValue::Dictionary place;
    bool isRequested = false, isCompleted = false;
    unsigned requests = 0;               // made so far
    std::shared_ptr<KTLatch> completion; // of the latest request
    mutable std::shared_ptr<const KTGeometry> shape;
};
