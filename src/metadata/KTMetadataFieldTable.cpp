#include "metadata/KTMetadataFieldTable.h"

#include "metadata/KTDateFormatters.h"
#include "metadata/KTMetadataCameraFields.h"
#include "metadata/KTMetadataDateFields.h"
#include "metadata/KTMetadataLocationShownFields.h"
#include "metadata/KTMetadataPositionFields.h"
#include "metadata/KTMetadataSimpleFields.h"
#include "metadata/KTMetadataTextFields.h"
#include "metadata/KTValueFormatters.h"

namespace {

using enum KTValueType;
using enum KTFieldEditing;

template<class Class>
std::shared_ptr<KTMetadataField> make(KTMetadataFieldDefinition definition) {
    return std::make_shared<Class>(std::move(definition));
}

template<class Formatter>
std::shared_ptr<const KTFormatter> formattedBy() {
    return std::make_shared<Formatter>();
}

constexpr std::shared_ptr<const KTFormatter> (*none)() = nullptr;

constexpr KTFieldTagKeys xmpOnly(const char* key) {
    return {nullptr, key, nullptr};
}

constexpr KTFieldTagKeys composite(const char* key) {
    return {nullptr, nullptr, key};
}

// key, class, name, type, formatter, editing, tags of simple and composite fields, notes
// clang-format off
constexpr KTMetadataFieldRow kCamera[] = {
    {"cameraMake", make<KTMetadataSimpleField>, "Camera Make", Text, none, ReadOnly, {"EXIF:Make", "XMP:Make"}},
    {"cameraModel", make<KTMetadataSimpleField>, "Camera Model", Text, none, ReadOnly, {"EXIF:Model", "XMP:Model"}},
    {"exifVersion", make<KTMetadataSimpleField>, "EXIF Version", Text, none, ReadOnly, {"EXIF:ExifVersion", "XMP:ExifVersion"}},
    {"lens", make<KTMetadataCompositeField>, "Lens", Text, none, ReadOnly, composite("Composite:LensID")},
    {"focalPlaneXSize", make<KTMetadataSensorWidthField>, "Sensor Width", Decimal, formattedBy<KTSensorSizeFormatter>, ReadOnly},
    {"focalPlaneYSize", make<KTMetadataSensorHeightField>, "Sensor Height", Decimal, formattedBy<KTSensorSizeFormatter>, ReadOnly},
    {"serialNumber", make<KTMetadataSerialNumberField>, "Serial Number", Text, none, ReadOnly},
};

constexpr KTMetadataFieldRow kDigitizationAttributes[] = {
    {"aperture", make<KTMetadataCompositeField>, "Aperture", Decimal, formattedBy<KTApertureFormatter>, ReadOnly, composite("Composite:Aperture")},
    {"dateTimeDigitizedComponents", make<KTMetadataDateTimeDigitizedField>, "Date Digitized", DateComponents, formattedBy<KTDateComponentsFormatter>, Tools, {}, {.secondaryName = "Time Digitized"}},
    {"exposureBias", make<KTMetadataSimpleField>, "Exposure Bias", Decimal, formattedBy<KTExposureBiasFormatter>, ReadOnly, {"EXIF:ExposureCompensation", "XMP:ExposureCompensation"}},
    {"exposureProgram", make<KTMetadataExposureProgramField>, "Exposure Program", Text, none, ReadOnly, {"EXIF:ExposureProgram", "XMP:ExposureProgram"}},
    {"fieldOfView", make<KTMetadataCompositeField>, "Field of View", Decimal, formattedBy<KTAngleFormatter>, ReadOnly, composite("Composite:FOV")},
    {"flash", make<KTMetadataFlashField>, "Flash", Text, none, ReadOnly},
    {"focalLength", make<KTMetadataSimpleField>, "Focal Length", Decimal, formattedBy<KTFocalLengthFormatter>, ReadOnly, {"EXIF:FocalLength", "XMP:FocalLength"}},
    {"focalLength35mmEquivalent", make<KTMetadataCompositeField>, "35mm Focal Length", Decimal, formattedBy<KTFocalLengthFormatter>, ReadOnly, composite("Composite:FocalLength35efl")},
    {"iso", make<KTMetadataISOField>, "ISO", Decimal, formattedBy<KTISOFormatter>, ReadOnly},
    {"meteringMode", make<KTMetadataMeteringModeField>, "Metering Mode", Text, none, ReadOnly, {"EXIF:MeteringMode", "XMP:MeteringMode"}},
    {"shutterSpeed", make<KTMetadataShutterSpeedField>, "Shutter Speed", Decimal, formattedBy<KTShutterSpeedFormatter>, ReadOnly},
};

constexpr KTMetadataFieldRow kDocument[] = {
    {"title", make<KTMetadataTitleField>, "Title", Text, none, Direct, {"IPTC:ObjectName", "XMP:Title"}},
    {"filename", make<KTMetadataField>, "File Name", Text, none, ReadOnly},
    {"fileType", make<KTMetadataSimpleField>, "File Type", Text, none, ReadOnly, {"File:FileType"}},
    {"fileSize", make<KTMetadataField>, "File Size", Decimal, formattedBy<KTBytesFormatter>, ReadOnly},
    {"imageSize", make<KTMetadataImageSizeField>, "Image Size", Text, none, ReadOnly},
    {"metadataDate", make<KTMetadataMetadataDateField>, "Metadata Date", Date, formattedBy<KTDateTimeFormatter>, Tools, {}, {.secondaryName = "Metadata Time"}},
    {"modifyDate", make<KTMetadataModifyDateField>, "Modify Date", Date, formattedBy<KTDateTimeFormatter>, Tools, {}, {.secondaryName = "Modify Time"}},
    {"creationDate", make<KTMetadataCreationDateField>, "Creation Date", Date, formattedBy<KTDateTimeFormatter>, Tools, {}, {.secondaryName = "Creation Time"}},
};

constexpr KTMetadataFieldRow kGPS[] = {
    {"gpsDateTime", make<KTMetadataGPSDateTimeField>, "GPS Date & Time", Date, formattedBy<KTDateTimeFormatter>, Tools},
    {"gpsDifferential", make<KTMetadataSimpleField>, "Differential", Decimal, formattedBy<KTGPSDifferentialFormatter>, ReadOnly, {"EXIF:GPSDifferential", "XMP:GPSDifferential"}},
    {"gpsDOP", make<KTMetadataSimpleField>, "DOP", Decimal, none, ReadOnly, {"EXIF:GPSDOP", "XMP:GPSDOP"}},
    {"gpsMeasurementMode", make<KTMetadataSimpleField>, "Measurement Mode", Decimal, formattedBy<KTGPSMeasurementModeFormatter>, ReadOnly, {"EXIF:GPSMeasureMode", "XMP:GPSMeasureMode"}},
    {"gpsSatellites", make<KTMetadataSimpleField>, "Satellites", Text, none, ReadOnly, {"EXIF:GPSSatellites", "XMP:GPSSatellites"}},
    {"gpsSpeed", make<KTMetadataGPSSpeedField>, "Speed", Decimal, none, ReadOnly},
    {"gpsStatus", make<KTMetadataSimpleField>, "Status", Text, formattedBy<KTGPSStatusFormatter>, ReadOnly, {"EXIF:GPSStatus", "XMP:GPSStatus"}},
    {"gpsTrackDirection", make<KTMetadataSimpleField>, "Track Direction", Decimal, none, ReadOnly, {"EXIF:GPSTrack", "XMP:GPSTrack"}},
    {"gpsVersionID", make<KTMetadataGPSVersionIDField>, "GPS Version ID", Text, none, Tools, {"EXIF:GPSVersionID", "XMP:GPSVersionID"}},
};

constexpr KTMetadataFieldRow kLocationCreated[] = {
    {"latitude", make<KTMetadataLatitudeField>, "Latitude", Decimal, formattedBy<KTLatLonFormatter>, Tools, {}, {.secondaryName = "Longitude"}},
    {"longitude", make<KTMetadataLongitudeField>, "Longitude", Decimal, formattedBy<KTLatLonFormatter>, Tools},
    {"altitude", make<KTMetadataAltitudeField>, "Altitude", Decimal, formattedBy<KTDefaultHeightFormatter>, Tools},
    {"imageDirection", make<KTMetadataImageDirectionField>, "Direction", Decimal, none, Tools},
    {"gpsMapDatum", make<KTMetadataSimpleField>, "Map Datum", Text, none, Tools, {"EXIF:GPSMapDatum", "XMP:GPSMapDatum"}},
    {"worldRegionCreated", make<KTMetadataSimpleField>, "World Region", Text, none, Direct, xmpOnly("XMP:LocationCreatedWorldRegion")},
    {"countryCodeCreated", make<KTMetadataSimpleField>, "Country Code", Text, none, Direct, xmpOnly("XMP:LocationCreatedCountryCode")},
    {"countryCreated", make<KTMetadataSimpleField>, "Country", Text, none, Direct, xmpOnly("XMP:LocationCreatedCountryName")},
    {"stateCreated", make<KTMetadataSimpleField>, "State", Text, none, Direct, xmpOnly("XMP:LocationCreatedProvinceState")},
    {"cityCreated", make<KTMetadataSimpleField>, "City", Text, none, Direct, xmpOnly("XMP:LocationCreatedCity")},
    {"locationCreated", make<KTMetadataSimpleField>, "Sublocation", Text, none, Direct, xmpOnly("XMP:LocationCreatedSublocation")},
};

constexpr KTMetadataFieldRow kLocationShown[] = {
    {"worldRegionShown", make<KTMetadataSimpleField>, "World Region", Text, none, Direct, xmpOnly("XMP:LocationShownWorldRegion"), {.writtenType = List}},
    {"countryCodeShown", make<KTMetadataCountryCodeShownField>, "Country Code", Text, none, Direct, {}, {.writtenType = List}},
    {"countryShown", make<KTMetadataCountryShownField>, "Country", Text, none, Direct, {}, {.writtenType = List}},
    {"stateShown", make<KTMetadataStateShownField>, "State", Text, none, Direct, {}, {.writtenType = List}},
    {"cityShown", make<KTMetadataCityShownField>, "City", Text, none, Direct, {}, {.writtenType = List}},
    {"locationShown", make<KTMetadataLocationShownField>, "Sublocation", Text, none, Direct, {}, {.writtenType = List}},
    {"latitudeShown", make<KTMetadataLatitudeShownField>, "Latitude", Decimal, formattedBy<KTLatLonFormatter>, Tools, {}, {.secondaryName = "Longitude"}},
    {"longitudeShown", make<KTMetadataLongitudeShownField>, "Longitude", Decimal, formattedBy<KTLatLonFormatter>, Tools},
};

constexpr KTMetadataFieldRow kNewscodes[] = {
    {"intellectualGenre", make<KTMetadataSimpleField>, "Intellectual Genre", Text, none, Direct, {"IPTC:ObjectAttributeReference", "XMP:IntellectualGenre"}},
    {"sceneCodes", make<KTMetadataSimpleField>, "IPTC Scene Codes", List, none, Direct, xmpOnly("XMP:Scene"), {.singularName = "Scene Code"}},
    {"subjectCodes", make<KTMetadataSimpleField>, "IPTC Subject Codes", List, none, Direct, {"IPTC:SubjectReference", "XMP:SubjectCode"}, {.singularName = "Subject Code"}},
    {"urgency", make<KTMetadataSimpleField>, "Urgency", Decimal, none, Tools, {"IPTC:Urgency", "XMP:Urgency"}},
    {"transmissionReference", make<KTMetadataSimpleField>, "Job Identifier", Text, none, Direct, {"IPTC:OriginalTransmissionReference", "XMP:TransmissionReference"}},
};

constexpr KTMetadataFieldRow kOrganization[] = {
    {"category", make<KTMetadataSimpleField>, "Category", Text, none, Direct, {"IPTC:Category", "XMP:Category"}},
    {"event", make<KTMetadataEventField>, "Event", Text, none, Direct},
    {"label", make<KTMetadataSimpleField>, "Label", Text, none, Direct, xmpOnly("XMP:Label")},
    {"rating", make<KTMetadataRatingField>, "Rating", Decimal, none, Direct, xmpOnly("XMP:Rating")},
    {"supplementalCategories", make<KTMetadataSimpleField>, "Other Categories", List, none, Direct, {"IPTC:SupplementalCategories", "XMP:SupplementalCategories"}, {.singularName = "Category"}},
};

constexpr KTMetadataFieldRow kPhotoDescription[] = {
    {"dateTimeOriginalComponents", make<KTMetadataDateTimeOriginalField>, "Original Date", DateComponents, formattedBy<KTDateComponentsFormatter>, Tools, {}, {.secondaryName = "Original Time"}},
    {"headline", make<KTMetadataSimpleField>, "Headline", Text, none, Direct, {"IPTC:Headline", "XMP:Headline"}},
    {"caption", make<KTMetadataCaptionField>, "Description", Text, none, Direct},
    {"captionWriter", make<KTMetadataSimpleField>, "Description Writer", Text, none, Direct, {"IPTC:Writer-Editor", "XMP:CaptionWriter"}},
    {"keywords", make<KTMetadataKeywordsField>, "Keywords", List, none, Direct, {"IPTC:Keywords", "XMP:Subject"}, {.singularName = "Keyword"}},
    {"people", make<KTMetadataPeopleField>, "People Shown", List, none, Direct, {}, {.singularName = "Person"}},
};

constexpr KTMetadataFieldRow kPhotographer[] = {
    {"creator", make<KTMetadataCreatorField>, "Creator", Text, none, Direct},
    {"creatorJobtitle", make<KTMetadataSimpleField>, "Creator's Jobtitle", Text, none, Direct, {"IPTC:By-lineTitle", "XMP:AuthorsPosition"}},
};

constexpr KTMetadataFieldRow kPhotographerContactInfo[] = {
    {"creatorAddress", make<KTMetadataSimpleField>, "Address", Text, none, Direct, xmpOnly("XMP:CreatorAddress")},
    {"creatorCity", make<KTMetadataSimpleField>, "City", Text, none, Direct, xmpOnly("XMP:CreatorCity")},
    {"creatorState", make<KTMetadataSimpleField>, "State/Province", Text, none, Direct, xmpOnly("XMP:CreatorRegion")},
    {"creatorPostalCode", make<KTMetadataSimpleField>, "Postal Code", Text, none, Direct, xmpOnly("XMP:CreatorPostalCode")},
    {"creatorCountry", make<KTMetadataSimpleField>, "Country", Text, none, Direct, xmpOnly("XMP:CreatorCountry")},
    {"creatorWorkTelephone", make<KTMetadataSimpleField>, "Telephone", Text, none, Direct, xmpOnly("XMP:CreatorWorkTelephone")},
    {"creatorWorkEmail", make<KTMetadataSimpleField>, "Email", Text, none, Direct, xmpOnly("XMP:CreatorWorkEmail")},
    {"creatorURL", make<KTMetadataSimpleField>, "Web URL", Text, none, Direct, xmpOnly("XMP:CreatorWorkURL")},
};

constexpr KTMetadataFieldRow kRights[] = {
    {"certificate", make<KTMetadataSimpleField>, "Certificate", Text, none, Direct, xmpOnly("XMP:Certificate")},
    {"copyrightNotice", make<KTMetadataCopyrightField>, "Copyright Notice", Text, none, Direct},
    {"copyrightURL", make<KTMetadataCopyrightURLField>, "Copright URL", Text, none, Direct},
    {"credit", make<KTMetadataSimpleField>, "Credit Line", Text, none, Direct, {"IPTC:Credit", "XMP:Credit"}},
    {"instructions", make<KTMetadataSimpleField>, "Instructions", Text, none, Direct, {"IPTC:SpecialInstructions", "XMP:Instructions"}},
    {"marked", make<KTMetadataMarkedField>, "Copyright Status", Text, none, Direct},
    {"owner", make<KTMetadataSimpleField>, "Owner", Text, none, Direct, xmpOnly("XMP:Owner")},
    {"source", make<KTMetadataSimpleField>, "Source", Text, none, Direct, {"IPTC:Source", "XMP:Source"}},
    {"usageTerms", make<KTMetadataSimpleField>, "Usage Terms", Text, none, Direct, xmpOnly("XMP:UsageTerms")},
};

constexpr KTMetadataGroupRow kGroups[] = {
    {"Camera", kCamera},
    {"Digitization Attributes", kDigitizationAttributes},
    {"Document", kDocument},
    {"GPS", kGPS},
    {"Location Created", kLocationCreated},
    {"Location Shown", kLocationShown},
    {"Newscodes", kNewscodes},
    {"Organization", kOrganization},
    {"Photo Description", kPhotoDescription},
    {"Photographer", kPhotographer},
    {"Photographer Contact Info", kPhotographerContactInfo},
    {"Rights", kRights},
};
// clang-format on

} // namespace

std::span<const KTMetadataGroupRow> KTMetadataFieldTable() {
    return kGroups;
}
