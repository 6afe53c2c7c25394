#pragma once
#include "photo/KTPhoto.h"

/// What a date tool would make of one date of a photo. A value type.
struct KTDateChange {
    std::string key; ///< the photo's property: one of the capture dates' components, or "creationDate"
    KTValue oldDate, newDate;

    std::string name() const; ///< of the field, in the user's language
    /// For display, a capture date as far as its parts are set; empty for none.
    std::string oldText() const { return textOf(oldDate); }
    std::string newText() const { return textOf(newDate); }

private:
    std::string textOf(const KTValue& date) const;
};

/// What a date tool would make of a photo that is shown as an example for all. A value type.
struct KTDatePreview {
    enum class Place { Front, First, Last };

    Place place;
    std::shared_ptr<KTPhoto> photo;
    std::vector<KTDateChange> changes; ///< empty where the photo would stay as it is
};
