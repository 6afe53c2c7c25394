#pragma once
#include "platform/cartography/drawing/KTBaseMapData.h"
#include "platform/cartography/drawing/KTLabelPlacement.h"
#include "platform/cartography/drawing/KTMapPalette.h"

#include <QFont>
#include <QString>
#include <map>
#include <mutex>

class KTMapViewState;
class QPainter;

/// The names of countries and places on the base map. Which of them are shown is decided once for each whole
/// zoom, for the whole world. Any thread.
class KTBaseMapLabels {
public:
    enum class Kind { Country, Capital, City, Town, Village };
    struct Label {
        Kind kind = Kind::Town;
        QString text;
        QFont font;
        KTWorldPoint anchor;
        QRectF box;      ///< of the text, in logical pixels around the anchor
        double baseLine; ///< of the text, from the top of the box
    };
    /// The labels of one zoom and the room that they take.
    struct Step {
        explicit Step(double worldSize) : taken(worldSize) {}
        std::vector<Label> labels; ///< the least important first
        KTLabelPlacement taken;
    };

    /// @p data must stay.
    explicit KTBaseMapLabels(const KTBaseMapData& data) : source(data) {}

    /// The labels for maps from zoom @p zoom to the next whole one. Placed at the first call, in some 30 ms.
    std::shared_ptr<const Step> step(int zoom);
    static void draw(QPainter& painter, const KTMapViewState& state, const Label& label,
                     const KTMapPalette& palette);

private:
    static void addCountries(Step& step, const KTBaseMapData& data, double worldSize);
    static void addPlaces(Step& step, const KTBaseMapData& data, int zoom);

    const KTBaseMapData& source;
    std::mutex mutex;
    std::map<int, std::shared_ptr<const Step>> steps;
};
