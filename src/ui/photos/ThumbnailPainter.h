#pragma once
#include "app/thumbnails/KTThumbnailService.h"

#include <QPainter>
#include <QPalette>

/// Draws the thumbnail of @p file into the middle of @p area, with thin edges that show where a light picture
/// ends; while there is none a plain board, and a sign where there will be none. Returns where the picture
/// is.
QRect paintThumbnail(QPainter& painter, KTThumbnailService& service, const std::filesystem::path& file,
                     const QRect& area, const QPalette& palette);
