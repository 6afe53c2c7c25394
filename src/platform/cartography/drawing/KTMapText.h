#pragma once
#include <QColor>
#include <QFont>
#include <QPainter>

/// The fonts of texts on a map: those of the program, in sizes of logical pixels. Any thread.
QFont KTMapFont(double pixelSize, bool isBold = false, bool isItalic = false);

/// Draws @p text with its base line's start at @p start, on a rim of the colour @p halo that parts it from
/// what is below.
void KTDrawMapText(QPainter& painter, const QPointF& start, const QString& text, const QColor& colour,
                   const QColor& halo);
