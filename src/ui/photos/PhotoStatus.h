#pragma once
#include "photo/KTPhoto.h"

#include <QPainter>
#include <QPalette>

/// What the signs beside a photo say. Flags.
namespace PhotoStatus {

enum Sign : unsigned { None = 0, Unsaved = 1, Geotagged = 2, Failed = 4, Warned = 8 };

unsigned signsOf(const KTPhoto& photo);
/// "Unsaved changes, geotagged", in the user's language.
QString describe(unsigned signs);

/// The colour in which it, and what it is about, is shown.
QColor colour(Sign sign, const QPalette& palette);

/// Each sign has a shape of its own, so that no colour need be seen: a dot, a flag, a triangle.
void paint(QPainter& painter, Sign sign, const QRectF& square, const QPalette& palette, bool isSelected);

} // namespace PhotoStatus
