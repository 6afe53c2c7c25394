#include "photo/KTPhoto.h"

#include "platform/defaults/KTUserDefaults.h"

void KTPhoto::setLocationCreatedFromPoint(const KTGeoPoint& point) {
    const KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    setValueForKey("latitude", point.latitude);
    setValueForKey("longitude", point.longitude);
    setValueForKey("gpsMapDatum", "WGS-84");
    setValueForKey("gpsVersionID", "2.2.0.0");
    // A point without elevation leaves the altitude alone.
    const bool mayReplace =
        !values.hasValue("altitude") || defaults.boolForKey("defaultShouldOverwriteAltitude");
    if (point.elevation && mayReplace && defaults.boolForKey("defaultShouldSaveAltitude"))
        setValueForKey("altitude", *point.elevation);
    setValueForKey("gpsDateTime", point.date);
}
