#pragma once

class QApplication;
class QColor;
class QPalette;

/// Whether a palette draws light text on a dark ground.
bool isDarkPalette(const QPalette& palette);

/// The contrast of two opaque colours as WCAG 2 defines it, from 1 to 21.
double contrastRatio(const QColor& one, const QColor& other);
/// What texts need at least to be read by people who see less well (WCAG 2, level AA).
constexpr double kReadableContrast = 4.5;

/// Gives the application what the desktop's style leaves open: icons that stand out from the palette, texts
/// that can be read on their ground, and check boxes that can be seen on a dark one. Follows the desktop when
/// it changes.
void applyLook(QApplication& application);
