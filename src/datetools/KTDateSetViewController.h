#pragma once
#include "datetools/KTDateTool.h"

#include <array>

class KTTimeZoneManager;

/// Gives the selected photos one capture date, at a precision of the user's choice. Observable under the
/// names of its properties.
class KTDateSetViewController : public KTDateTool {
public:
    enum Precision : unsigned { Second, Minute, Day, Month, Year, Hour };

    /// Both must outlive the controller.
    KTDateSetViewController(KTPhotoManager& collection, KTTimeZoneManager& displayZone);

    void setup() override;
    void tearDown() override;

    /// The date chosen; at first now.
    KTInstant precisionVariableDate() const { return date; }
    void setPrecisionVariableDate(KTInstant newDate) { set("precisionVariableDate", date, newDate); }
    /// "pickerTimeZone": the zone in which it is shown and typed.
    KTTimeZone pickerTimeZone() const;
    unsigned selectedPrecision() const { return precision; }
    /// A Precision; others count as Second.
    void setSelectedPrecision(unsigned newPrecision) { set("selectedPrecision", precision, newPrecision); }
    /// Which of year, month, day, hour, minute and second the picker shows.
    std::array<bool, 6> visibleElements() const;
    /// Whether a selected photo has a capture date, as of the last selection or apply.
    bool hasDateTimeOriginalTag() const { return isDateThere; }

    /// Sets the original date to the reading of the chosen date in the picker's zone, the parts that are
    /// finer than the precision open; each photo keeps its own time zone. One undo step, "Original Date
    /// Change".
    void setDateTimeOriginalApply();

    std::vector<KTDateChange> changesOf(const KTPhoto& photo) const override;

protected:
    void selectionDidChange() override;

private:
    KTDateComponents chosenComponents() const;
    KTDateComponents componentsFor(const KTPhoto& photo) const;

    KTTimeZoneManager& timeZoneManager;
    KTInstant date = KTInstantNow();
    unsigned precision = Second;
    bool isDateThere = false;
    Observation zoneObservation;
};
