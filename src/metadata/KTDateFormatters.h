#pragma once
#include "metadata/KTFormatter.h"

/// Dates in the user's locale: short date, time to the second.

/// An instant, in the zone of the shared time zone manager.
class KTDateTimeFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// A capture date as its clock read, whatever its zone; parts that are not set are left out.
class KTDateComponentsFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};
