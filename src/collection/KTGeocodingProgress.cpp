#include "collection/KTGeocodingProgress.h"

#include "collection/KTBatchOperationController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/gazetteer/KTGazetteer.h"

std::string KTGeocodingProgressDescription(std::string_view step) {
    const std::string geocoder = KTGazetteer::sharedGazetteer().selectedReverseGeocoder()->name();
    const std::string fetching = KTStringWithFormat(
        KTLocalizedString("Fetching the location description from %@…"), {KTEscapedForFormat(geocoder)});
    return KTStringWithFormat("%@. %@", {KTLocalizedString(step), fetching});
}
