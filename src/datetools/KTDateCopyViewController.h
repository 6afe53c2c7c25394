#pragma once
#include "datetools/KTDateTool.h"

#include <array>

class KTMetadataFieldManager;

/// Copies one of the dates of each selected photo to others of it. Observable under the names of its
/// properties.
class KTDateCopyViewController : public KTDateTool {
public:
    enum Date : unsigned { Original, Digitized, Creation };

    /// Both must outlive the controller.
    KTDateCopyViewController(KTPhotoManager& collection, KTMetadataFieldManager& catalogue);

    unsigned selectedCopyFromDate() const { return source; } ///< a Date
    /// Others are not taken.
    void setSelectedCopyFromDate(unsigned date);
    /// "shouldCopyToOriginalDate", "shouldCopyToDigitizationDate", "shouldCopyToCreationDate". The source
    /// itself is never a target.
    bool shouldCopyTo(Date date) const { return targets[date]; }
    void setShouldCopyTo(Date date, bool isTarget);

    /// One undo step, called after the source. A photo without the source value is left alone, and so is the
    /// creation date, an instant, where the source names none.
    void copyDateTimeApply();

    std::vector<KTDateChange> changesOf(const KTPhoto& photo) const override;

private:
    KTValue sourceValue(const KTPhoto& photo, Date forTarget) const;

    KTMetadataFieldManager& metadataFieldManager;
    unsigned source = Original;
    std::array<bool, 3> targets = {};
};
