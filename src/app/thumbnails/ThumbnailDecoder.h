#pragma once
#include "app/thumbnails/ThumbnailSize.h"
#include "platform/pictures/RawPicture.h"

/// The picture in @p file, turned as the file says and at most @p size large, from an embedded preview where
/// one is large enough; or why there is none. It does not look beside the file
/// (pictureTurnBeyondDecoding). Any thread.
DecodedPicture decodeThumbnail(const std::filesystem::path& file, ThumbnailSize size);
/// The same for any size of the longer edge, in pixels.
DecodedPicture decodePicture(const std::filesystem::path& file, int edge);
