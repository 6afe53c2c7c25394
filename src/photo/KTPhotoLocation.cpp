#include "photo/KTPhoto.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/defaults/KTUserDefaults.h"

void KTPhoto::setLocationCreatedFromPoint(const KTGeoPoint& point) {
    const KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    KTValue::Dictionary location{{"latitude", point.latitude},
                                 {"longitude", point.longitude},
                                 {"gpsMapDatum", "WGS-84"},
                                 {"gpsVersionID", "2.2.0.0"},
                                 {"gpsDateTime", point.date ? KTValue(*point.date) : KTValue::null()}};
    // A point without elevation leaves the altitude alone.
    const bool mayReplace =
        !decimalForKey("altitude") || defaults.boolForKey("defaultShouldOverwriteAltitude");
    if (point.elevation && mayReplace && defaults.boolForKey("defaultShouldSaveAltitude"))
        location.emplace("altitude", *point.elevation);
    setValuesForKeysWithDictionary(location, KTLocalizedString("Geotag Photos"));
}
