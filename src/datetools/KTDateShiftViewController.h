#pragma once
#include "datetools/KTDateTool.h"

#include <array>

class KTMetadataFieldManager;
class KTTimeZoneManager;

/// Corrects the clock of a camera: moves the capture dates of photos from what their files hold by one
/// difference. The shift is stored, not added: applying it twice does nothing more, applying 0 takes every
/// shift back. What cannot be shifted (KTShiftedDate) is left alone. Observable under the names of its
/// properties.
class KTDateShiftViewController : public KTDateTool {
public:
    enum Unit : std::size_t { Days, Hours, Minutes, Seconds };

    /// All must outlive the controller.
    KTDateShiftViewController(KTPhotoManager& collection, KTMetadataFieldManager& catalogue,
                              KTTimeZoneManager& displayZone);

    /// Also loads the shift of the photo in front into the fields.
    void setup() override;
    void tearDown() override;
    void setCurrentImageIndex(std::optional<std::size_t> index) override;

    // The difference
    bool isNegative() const { return negative; } ///< back in time
    void setIsNegative(bool goesBack);
    /// "days", "hours", "minutes", "seconds".
    std::int64_t magnitude(Unit unit) const { return magnitudes[unit]; }
    /// Nothing, an emptied field, is 0.
    void setMagnitude(Unit unit, std::optional<std::int64_t> value);
    /// The whole difference with its sign; held within what a date can be shifted by.
    std::int64_t shiftInSeconds() const;

    /// The last value of the up and down control.
    std::int64_t stepperValue() const { return stepper; }
    /// A press of the control: up when @p value is greater than the last one. Acts on the field that is being
    /// edited, on the days when none is. Fields go round, without carry; the days end at 0.
    void setStepperValue(std::int64_t value);
    void setEditedUnit(std::optional<Unit> unit) { editedUnit = unit; }

    bool shiftAllPhotos() const { return isForAll; } ///< all loaded ones instead of the selected
    void setShiftAllPhotos(bool forAll) { set("shiftAllPhotos", isForAll, forAll); }
    bool shouldShiftDigitizedDate() const { return isForDigitized; }
    void setShouldShiftDigitizedDate(bool alsoDigitized) {
        set("shouldShiftDigitizedDate", isForDigitized, alsoDigitized);
    }

    // The photo in front
    /// The instant of its saved original date in the assumed zone; nothing for a date that names none.
    std::optional<KTInstant> currentImageSavedDate() const;
    /// That, moved by the difference.
    std::optional<KTInstant> currentImageCorrectedDate() const;
    /// Makes the difference the one between the saved date and @p date, in whole seconds.
    void setCurrentImageCorrectedDate(KTInstant date);
    /// "displayTimeZone": the zone in which the two dates are shown and typed.
    KTTimeZone displayTimeZone() const;

    /// One undo step, "Original Date Change".
    void shiftDateTimeOriginalApply();
    /// Sets the difference to 0 and applies that.
    void shiftDateTimeOriginalRevert();

    Snapshot photosConcerned() const override;
    std::vector<KTDateChange> changesOf(const KTPhoto& photo) const override;

protected:
    void photosWereSaved() override;

private:
    using Which = KTPhotoDateFamily::Which;
    using Magnitudes = std::array<std::int64_t, 4>;

    std::optional<KTDateComponents> savedDate(const KTPhoto& photo, Which which) const;
    std::optional<KTDateComponents> shifted(const KTPhoto& photo, Which which) const;
    std::vector<Which> datesToShift() const;
    void setShift(std::int64_t seconds);
    void handleNewTimeZone();

    KTMetadataFieldManager& metadataFieldManager;
    KTTimeZoneManager& timeZoneManager;
    bool negative = false;
    Magnitudes magnitudes = {};
    std::int64_t stepper = 0;
    std::optional<Unit> editedUnit;
    bool isForAll = false, isForDigitized = true;
    Observation zoneObservation;
};
