#pragma once
#include <QImage>
#include <QImageIOHandler>
#include <filesystem>

/// How a picture that has been decoded, and turned as the toolkit or the raw library turn it, must be turned
/// further: by the orientation in the XMP sidecar beside it, which comes before that of the file as every
/// other value of a sidecar does, or by that of a PNG or WebP file, whose readers do not heed it. 0 for not
/// at all, else a flip as turnedByFlip takes it. The file is opened only where there is a sidecar, or for
/// these two types. Any thread.
int pictureTurnBeyondDecoding(const std::filesystem::path& file);

/// The flip of an orientation as EXIF counts, 1…8; 0 for others.
int flipOfOrientation(int orientation);
/// The same of what the toolkit's readers tell.
int flipOfTransformation(QImageIOHandler::Transformations told);
bool swapsAxes(int flip);
/// @p image, stored as a sensor saw it, turned by @p flip: bits 1 and 2 mirror it left to right and top to
/// bottom, then bit 4 swaps its axes.
QImage turnedByFlip(const QImage& image, int flip);
/// The flip that does first @p first, then @p second.
int combinedFlip(int first, int second);
/// The flip that takes @p flip back.
int inverseFlip(int flip);
