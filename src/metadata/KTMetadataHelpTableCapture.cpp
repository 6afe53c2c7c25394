#include "metadata/KTMetadataHelpTable.h"

namespace {

constexpr KTMetadataHelpRow kRows[] = {
    // Camera
    {"cameraMake", "Manufacturer of the equipment that generated the image.", {"Canon"}, "EXIF: Make"},
    {"cameraModel",
     "Model name of the camera, scanner or phone that generated the image, as its maker writes it.",
     {"Canon EOS 5D Mark III"},
     "EXIF: Model"},
    {"exifVersion",
     "Version of the EXIF standard that the camera followed, in four digits: 0232 stands for EXIF 2.32.",
     {"0232"},
     "EXIF: ExifVersion"},
    {"lens",
     "Lens that was on the camera, worked out from the lens data that the camera recorded. Lenses that share "
     "an identification number may be mistaken for each other.",
     {"Canon EF 24-70mm f/2.8L II USM"},
     "Composite: LensID"},
    {"focalPlaneXSize",
     "Width of the camera's sensor in millimeters, as recorded by the camera or calculated from the pixel "
     "density on the sensor.",
     {"36.0 mm"},
     "EXIF: FocalPlaneXResolution & FocalPlaneResolutionUnit; MakerNotes: FocalPlaneXSize"},
    {"focalPlaneYSize",
     "Height of the camera's sensor in millimeters. Together with the width it shows the sensor's format, "
     "such as full frame (36 by 24 mm) or APS-C (about 23 by 15 mm).",
     {"24.0 mm"},
     "EXIF: FocalPlaneYResolution & FocalPlaneResolutionUnit; MakerNotes: FocalPlaneYSize"},
    {"serialNumber",
     "Serial number of the camera body. It tells two bodies of the same model apart, for example when their "
     "clocks differ.",
     {"032012001234"},
     "EXIF: CameraSerialNumber; MakerNotes: SerialNumber"},

    // Digitization Attributes
    {"aperture",
     "Aperture at which the image was shot, as f-number. A smaller number means a wider opening, more light "
     "and less depth of field.",
     {"ƒ/2.8", "ƒ/8"},
     "Composite: Aperture"},
    {"dateTimeDigitizedComponents",
     "Date and time at which the image became digital. The same as the original date for a digital camera; "
     "for a scanned print, slide or negative, the time of the scan.",
     {"7/4/12 10:00:00 AM"},
     "EXIF: CreateDate; IPTC: DigitalCreationDate & DigitalCreationTime; XMP: CreateDate"},
    {"exposureBias",
     "Exposure compensation that was dialed in, in steps of exposure value (EV). Negative values make the "
     "image darker, positive ones brighter.",
     {"-0.7 EV", "1.0 EV"},
     "EXIF: ExposureCompensation"},
    {"exposureProgram",
     "Program that the camera used to set the exposure; it tells which of aperture and shutter speed the "
     "photographer chose.",
     {"Aperture priority", "Manual"},
     "EXIF: ExposureProgram"},
    {"fieldOfView",
     "Horizontal angle of the scene that the image covers, in degrees, calculated from the focal length and "
     "the size of the sensor.",
     {"40 °"},
     "Composite: FOV"},
    {"flash",
     "Indicates the status of flash when the image was shot.",
     {"Flash did not fire, auto mode"},
     "EXIF: Flash"},
    {"focalLength",
     "Actual focal length of the lens when the image was shot, in millimeters. For a zoom lens it is the "
     "setting in use.",
     {"50.0 mm"},
     "EXIF: FocalLength"},
    {"focalLength35mmEquivalent",
     "Focal length that gives the same field of view on 35mm film, in millimeters. Use it to compare images "
     "from cameras with sensors of different size.",
     {"80.0 mm"},
     "Composite: FocalLength35efl"},
    {"iso",
     "Sensitivity to which the camera was set, on the ISO scale. Doubling the number halves the light that "
     "is needed and adds noise.",
     {"400"},
     "EXIF: ISO"},
    {"meteringMode",
     "Way in which the camera measured the light: over the whole frame, around its center or at a single "
     "spot.",
     {"Center Weighted Average", "Spot"},
     "EXIF: MeteringMode"},
    {"shutterSpeed",
     "Time for which the sensor or film was exposed to light.",
     {"1/250 of a second", "2.0 seconds"},
     "EXIF: ShutterSpeedValue"},

    // Document
    {"title",
     "Short name by which the image can be referred to, such as a file number or the name of a work. It "
     "identifies the image; use the description to tell what it shows.",
     {"Matterhorn at Dawn"},
     "IPTC: ObjectName; XMP: Title"},
    {"filename", "Name of the image file, with its extension, as it stands in the folder.", {"IMG_4711.CR2"}},
    {"fileType",
     "Format of the file, recognized by its content and not by its extension.",
     {"JPEG", "CR2"},
     "File: FileType"},
    {"fileSize",
     "Space that the image file takes, in decimal units: a megabyte (MB) is a million bytes.",
     {"5.3 MB"}},
    {"imageSize",
     "Width and height of the image in pixels, as it is stored, before any rotation for display.",
     {"5760 x 3840"},
     "EXIF: ExifImageWidth & ExifImageHeight; File: ImageWidth & ImageHeight"},
    {"metadataDate",
     "Date and time at which any of the image's metadata was last changed. Catalogue programs compare it to "
     "find out which copy of the metadata is the latest.",
     {"7/9/12 6:45:12 PM"},
     "XMP: MetadataDate"},
    {"modifyDate",
     "Date and time at which the image itself was last changed, as recorded within the file by the camera or "
     "by the program that edited it.",
     {"7/8/12 9:12:40 PM"},
     "EXIF: ModifyDate; XMP: ModifyDate"},
    {"creationDate",
     "Date and time at which the file was created on the disk. It is kept by the file system and may change "
     "when the file is copied.",
     {"7/5/12 8:30:05 AM"}},

    // GPS
    {"gpsDateTime",
     "Date and time of the position, taken from the satellites' clocks and stored in UTC. As it does not "
     "depend on the camera's clock, it shows by how much that clock is off.",
     {"7/4/12 8:00:03 AM"},
     "EXIF: GPSDateStamp & GPSTimeStamp"},
    {"gpsDifferential",
     "Indicates whether the receiver refined the position with correction signals from reference stations, "
     "which brings it to within a few meters or better.",
     {"Differential correction", "No correction"},
     "EXIF: GPSDifferential"},
    {"gpsDOP",
     "Dilution of precision: how much the placement of the satellites in the sky enlarges the position's "
     "error. 1 is ideal, below 5 is good, above 10 is poor.",
     {"2.4"},
     "EXIF: GPSDOP"},
    {"gpsMeasurementMode",
     "Indicates whether the receiver measured the altitude too. Three dimensions need at least four "
     "satellites; with two dimensions do not rely on the altitude.",
     {"3 dimensional", "2 dimensional"},
     "EXIF: GPSMeasureMode"},
    {"gpsSatellites",
     "Satellites that the position was measured with. Some receivers give their number, others list them "
     "with their identification.",
     {"08"},
     "EXIF: GPSSatellites"},
    {"gpsSpeed",
     "Speed at which the receiver moved when the image was shot, in meters per second, converted from "
     "kilometers per hour, miles per hour or knots.",
     {"1.5"},
     "EXIF: GPSSpeed & GPSSpeedRef"},
    {"gpsStatus",
     "Indicates whether the receiver had a valid measurement when the image was shot. When the measurement "
     "is void, the position may be the last known one or missing.",
     {"Measurement active", "Measurement void"},
     "EXIF: GPSStatus"},
    {"gpsTrackDirection",
     "Direction in which the receiver moved, in degrees clockwise from north: 90 is east, 180 south and 270 "
     "west. The camera may have pointed elsewhere.",
     {"87.5"},
     "EXIF: GPSTrack"},
    {"gpsVersionID",
     "Version of the EXIF standard's GPS part that the position data follows. It is written whenever an "
     "image is geotagged.",
     {"2.2.0.0"},
     "EXIF: GPSVersionID"},
};

} // namespace

std::span<const KTMetadataHelpRow> KTMetadataHelpRowsOfCapture() {
    return kRows;
}
