#pragma once
#include <map>
#include <string>
#include <variant>

// The headers of this folder are all that a plug-in needs. They stand alone: interfaces and plain values of
// the standard library, nothing to link. docs/plugins.md is the guide to them.

/// The version of the interfaces in this folder, which a bundle's manifest and library name. It is raised by
/// every change of a class in this folder; bundles of another version are not loaded.
inline constexpr int KTPhotoExportInterfaceVersion = 2;

/// A window or a view. A view is a QWidget*, converted to void* from exactly that type; null for none.
using KTViewHandle = void*;

/// A size in pixels.
struct KTImageSize {
    double width = 0, height = 0;
    bool operator==(const KTImageSize& other) const = default;
};

/// How a photo is to be exported: values by the keys below. Keys that are missing have their defaults,
/// unknown ones are ignored.
using KTPhotoExportOptions = std::map<std::string, std::variant<bool, double, std::string, KTImageSize>>;

/// bool, false: leave out the tags that say where the picture was taken and what place it shows.
inline constexpr const char* KTExcludeLocationOption = "ExcludeLocation";
/// KTImageSize, absent: the picture is made as large as fits into this size, in its own shape; a smaller one
/// is enlarged.
inline constexpr const char* KTImageSizeOption = "ImageSize";
/// std::string, the photo's own type: the type identifier of the image that is written ("public.png").
inline constexpr const char* KTImageTypeOption = "ImageType";
/// double, 1.0: of a compression that loses something, from 0 to 1.
inline constexpr const char* KTImageQualityOption = "ImageQuality";

/// What is to be done about files that are there already.
enum class KTExistingFiles {
    Skip,     ///< leave them; exportPhoto refuses to write there
    KeepBoth, ///< export under other names
    Replace,  ///< exportPhoto replaces them
    Cancel,   ///< no export
};

/// What became of the export of one photo.
struct KTPhotoExportResult {
    bool isExported = false;
    std::string reason = {}; ///< why not, for users

    explicit operator bool() const { return isExported; }
};
