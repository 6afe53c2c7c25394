#pragma once
#include <QByteArray>
#include <QImage>

/// Converts the colours of @p image, which are those of the ICC profile @p profile, to sRGB; for profiles
/// that the toolkit does not know how to keep with a picture. False, and @p image is as it was, where the
/// profile is damaged or for other pictures (of four printing colours). Any thread.
bool convertPictureToSRGB(QImage& image, const QByteArray& profile);
