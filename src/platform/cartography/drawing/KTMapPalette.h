#pragma once
#include <QColor>

/// The colours of the map, light and dark. A plain value.
struct KTMapPalette {
    // Base map
    QColor water, land, shore, border, division, river;
    QColor cityText, townText, waterText, countryText, placeDot;
    QColor textHalo; ///< around texts on the map, so that they can be read on lines
    // Marginalia
    QColor plate, plateEdge, plateText; ///< the small boards in the corners
    QColor crosshairs;

    static const KTMapPalette& forMap(bool isDark);
};
