#pragma once
#include <QImage>
#include <filesystem>
#include <string>

/// A picture, or why there is none.
struct DecodedPicture {
    QImage image;        ///< null when there is none
    std::string problem; ///< in the user's language; empty when there is one
};

/// Whether the file's name says that it is a raw file of a camera.
bool isRawFileName(const std::filesystem::path& file);

/// The picture that a camera put into its raw file, turned as the photo says; where it has none, or one that
/// is too small for @p edge pixels, the raw data developed at half size. Any thread.
DecodedPicture previewOfRawFile(const std::filesystem::path& file, int edge);

/// The same for work on the picture: the camera's one where it has @p edge pixels, or as many as the sensor,
/// on its longer side, else the developed raw data; never one that is too small. Any thread.
DecodedPicture pictureOfRawFile(const std::filesystem::path& file, int edge);

/// @p image, stored as a sensor saw it, turned by @p flip: bits 1 and 2 mirror it left to right and top to
/// bottom, then bit 4 swaps its axes.
QImage turnedByFlip(const QImage& image, int flip);
