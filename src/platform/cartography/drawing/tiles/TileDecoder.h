#pragma once
#include <QImage>
#include <string>

/// The image in the bytes of a tile (PNG, JPEG, WebP or GIF), ready to be drawn fast; null where they are not
/// one, or one that is not square or has more than 2048 pixels a side. What would be too large is found out
/// before memory is asked for. Any thread.
QImage decodedTile(const std::string& bytes);
