#include "metadata/KTMetadataHelpTable.h"

namespace {

constexpr KTMetadataHelpRow kRows[] = {
    // Location Created
    {"latitude",
     "Latitude of the camera when the image was shot, in decimal degrees. North of the equator is positive, "
     "south of it negative.",
     {"47.05 °", "-33.8568 °"},
     "EXIF: GPSLatitude & GPSLatitudeRef"},
    {"longitude",
     "Longitude of the camera when the image was shot, in decimal degrees. East of Greenwich is positive, "
     "west of it negative.",
     {"8.3064 °", "-122.4783 °"},
     "EXIF: GPSLongitude & GPSLongitudeRef"},
    {"altitude",
     "Height of the camera above sea level, in the unit chosen for heights; negative below sea level. The "
     "file holds it in meters.",
     {"436 m", "1,430 ft"},
     "EXIF: GPSAltitude & GPSAltitudeRef"},
    {"imageDirection",
     "Direction in which the camera pointed, in degrees clockwise from true north: 0 is north, 90 east, 180 "
     "south and 270 west.",
     {"225"},
     "EXIF: GPSImgDirection & GPSImgDirectionRef",
     "Note: Only those values given in True North will be visible in this application."},
    {"gpsMapDatum",
     "Geodetic datum, the model of the earth's shape that latitude and longitude refer to. GPS receivers and "
     "web maps use WGS-84.",
     {"WGS-84"},
     "EXIF: GPSMapDatum"},
    {"worldRegionCreated",
     "Region of the world in which the image was shot, usually the continent.",
     {"Europe"},
     "XMP: LocationCreatedWorldRegion"},
    {"countryCodeCreated",
     "ISO 3166-1 code, of two or three capital letters, of the country in which the image was shot.",
     {"CH", "CHE"},
     "XMP: LocationCreatedCountryCode"},
    {"countryCreated",
     "Full name of the country in which the image was shot, in the language of your other texts.",
     {"Switzerland"},
     "XMP: LocationCreatedCountryName"},
    {"stateCreated",
     "State, province, canton or other part of the country in which the image was shot.",
     {"Valais", "California"},
     "XMP: LocationCreatedProvinceState"},
    {"cityCreated",
     "City, town or village in which the image was shot. Leave it empty out in the country and name the "
     "place in the sublocation.",
     {"Zermatt"},
     "XMP: LocationCreatedCity"},
    {"locationCreated",
     "Exact place where the camera stood, within the city or outside of one: a quarter, a square, a building "
     "or a natural feature.",
     {"Gornergrat", "Golden Gate Park"},
     "XMP: LocationCreatedSublocation"},

    // Location Shown
    {"worldRegionShown",
     "Region of the world that the image shows, usually a continent. Separate several with a vertical bar.",
     {"Europe", "Europe | Africa"},
     "XMP: LocationShownWorldRegion"},
    {"countryCodeShown",
     "ISO 3166-1 code of the country that the image shows. Prefer the code of three letters: IPTC takes no "
     "other. Separate several with a vertical bar.",
     {"ITA", "CHE | ITA"},
     "IPTC: Country-PrimaryLocationCode; XMP: CountryCode & LocationShownCountryCode"},
    {"countryShown",
     "Full name of the country that the image shows; it differs from the one where the camera stood for a "
     "view across a border. Separate several with a vertical bar.",
     {"Italy", "Switzerland | Italy"},
     "IPTC: Country-PrimaryLocationName; XMP: Country & LocationShownCountryName"},
    {"stateShown",
     "State, province or other part of a country that the image shows. Separate several with a vertical bar.",
     {"Aosta Valley"},
     "IPTC: Province-State; XMP: State & LocationShownProvinceState"},
    {"cityShown",
     "City, town or village that the image shows. Picture agencies search this field first when they look "
     "for a place. Separate several with a vertical bar.",
     {"Paris"},
     "IPTC: City; XMP: City & LocationShownCity"},
    {"locationShown",
     "Exact place that the image shows, such as a building, a landmark or a mountain. Separate several with "
     "a vertical bar.",
     {"Eiffel Tower", "Matterhorn | Dent d'Hérens"},
     "IPTC: Sub-location; XMP: Location & LocationShownSublocation"},
    {"latitudeShown",
     "Latitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. "
     "North is positive, south negative.",
     {"45.9764 °"},
     "EXIF: GPSDestLatitude & GPSDestLatitudeRef"},
    {"longitudeShown",
     "Longitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. "
     "East is positive, west negative.",
     {"7.6586 °"},
     "EXIF: GPSDestLongitude & GPSDestLongitudeRef"},
};

} // namespace

std::span<const KTMetadataHelpRow> KTMetadataHelpRowsOfPlaces() {
    return kRows;
}
