#pragma once
#include <string>
#include <string_view>

/// The English help text of the catalogue's field @p key under the heading @p englishName, in UTF-8, its
/// lines parted by "\n" and without one at the end:
///
///     ▘Camera Make
///
///     Manufacturer of the equipment that generated the image.
///     → Canon
///
///     EXIF: Make
///
/// There may be several example lines; fields that no tag holds have no source line, and a note may follow as
/// a last paragraph. Empty for an unknown key. Any thread.
std::string KTMetadataHelpText(std::string_view key, std::string_view englishName);
