#pragma once
#include "platform/pictures/RawPicture.h"

#include <QSizeF>
#include <optional>

/// Whether there is a reader for files that are called so; what is in them it does not tell. Any thread.
bool canDecodePictures(const std::filesystem::path& named);

/// The largest size of the shape of @p size that fits into @p box, at least one pixel each way.
QSize fittedPictureSize(const QSize& size, const QSizeF& box);

/// A whole picture for work on it.
struct WholePicture {
    QImage image; ///< upright, with its colour profile where the toolkit knows it; null when there is none
    QSize size;   ///< of the whole picture, upright
    std::string problem; ///< in the user's language; empty when there is a picture
};

/// The first picture in @p file, turned as the file says. Of a raw file, the picture that the camera put into
/// it where that is large enough, else the developed raw data. With @p fitting, the image may have fewer
/// pixels than the file holds, but no fewer than the picture fitted into that box, which is quicker. Any
/// thread.
WholePicture decodePicture(const std::filesystem::path& file, const std::optional<QSizeF>& fitting = {});
