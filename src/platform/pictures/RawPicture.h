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

/// How both turn what is stored, as turnedByFlip takes it; 0 for a file that is none. Any thread.
int flipOfRawFile(const std::filesystem::path& file);
