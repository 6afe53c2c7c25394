#include "photo/KTLinkablePointBubble.h"

#include "metadata/KTDateFormatters.h"
#include "photo/KTLinkablePoint.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTUnitConverter.h"

#include <cmath>
#include <cstdio>

namespace {

/// To 0.00001°, about a metre.
std::string degreesText(double degrees, const char* positive, const char* negative) {
    char text[40];
    std::snprintf(text, sizeof text, "%.5f° ", std::abs(degrees));
    return text + KTLocalizedString(std::signbit(degrees) ? negative : positive);
}

std::string positionText(const KTLinkablePoint& point) {
    if (!point.hasPosition())
        return {};
    std::string text = degreesText(point.latitude()->toDouble(), "N", "S") + ", " +
                       degreesText(point.longitude()->toDouble(), "E", "W");
    if (point.elevation())
        text += ", " + KTUnitConverter::sharedUnitConverter().heightDescriptionFromMeters(*point.elevation());
    return text;
}

} // namespace

KTLinkablePointBubble KTLinkablePointBubble::of(KTLinkablePoint& point) {
    return {.title = point.pointTitle(),
            .description = point.pointDescription(),
            .date = point.date() ? KTDateTimeFormatter().stringForObjectValue(*point.date()) : std::string(),
            .position = positionText(point),
            .caution = point.caution(),
            .place = point.locationDescription()};
}

std::vector<std::string> KTLinkablePointBubble::lines() const {
    std::vector<std::string> shown;
    for (const std::string& text : {description, caution, date, position, place})
        if (!text.empty())
            shown.push_back(text);
    return shown;
}
