#pragma once

class QApplication;
class QPalette;

/// Whether a palette draws light text on a dark ground.
bool isDarkPalette(const QPalette& palette);

/// Gives the application what the desktop's style leaves open: icons that stand out from the palette, and
/// placeholder texts and check boxes that can be seen on a dark one. Follows the desktop when it changes.
void applyLook(QApplication& application);
