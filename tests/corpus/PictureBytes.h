#pragma once
#include "tests/corpus/StockExifTool.h"

/// The bytes of a file that make up its picture, without its metadata: chunks of a PNG file, sections of a
/// Photoshop file, strips and tiles of every directory of a TIFF or raw file and of a JPEG file's EXIF block,
/// and the sensor's data of raw files that have none. The stream of a JPEG file itself is not among them:
/// stripFiles brings that out.
std::string pictureBytes(const std::filesystem::path& file, const FileTags& tags);
