#pragma once
#include <QImage>
#include <filesystem>

/// A JPEG file of four printing colours (CMYK) in sRGB, through the profile that it holds; without a sound
/// one, by how much light the inks leave. As it is stored, not turned; @p eighths is of its size. Null for
/// JPEG files of other colours, damaged ones and other files. Any thread.
QImage decodePrintingColors(const std::filesystem::path& file, int eighths);
