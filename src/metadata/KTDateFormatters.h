#pragma once
#include "metadata/KTFormatter.h"

/// Dates in the user's locale: short date, time to the second.

/// An instant, in the zone of the shared time zone manager.
class KTDateTimeFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// A capture date as its clock read, whatever its zone. Parts that are not set are left out, together with
/// those behind them (only an hour without minutes shows as the full hour). A reading that no calendar has
/// (30 February) shows as image files hold it.
class KTDateComponentsFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};
