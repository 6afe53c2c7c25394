#pragma once
#include <QImage>

/// @p image drawn at @p size, which must not be empty, through a Lanczos filter of three lobes (C. Duchon,
/// "Lanczos filtering in one and two dimensions", 1979): 8 bits a component, grey where @p image is grey,
/// with its colour profile. Transparent parts become white. Null when memory does not suffice. Any thread.
QImage resizedPicture(const QImage& image, const QSize& size);
/// @p image without transparency, on white; itself where it has none.
QImage opaquePicture(const QImage& image);
