// Draws 1,000,000 track points and 20,000 photos at 1920 x 1080, points at them and puts a rubber band around
// them; does the same in the plain way, without levels of detail, clusters and snapshots. Prints times and
// ratios.
#include "MapFrames.h"
#include "platform/cartography/KTPointGeometry.h"
#include "platform/cartography/KTSpatialObject.h"
#include "platform/cartography/KTStyle.h"
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/cartography/drawing/KTMapPalette.h"
#include "platform/cartography/drawing/features/KTPhotoLayers.h"
#include "platform/cartography/drawing/tracks/KTTrackLayer.h"

#include <QGuiApplication>
#include <chrono>
#include <cmath>
#include <random>

namespace {

constexpr int kTracks = 20, kPointsOfTrack = 50'000, kPhotos = 20'000, kRounds = 5;
using Segments = std::vector<std::vector<KTTrackPosition>>;

constexpr KTMapPoint kMiddle{8.2, 46.8};

double best(int rounds, const auto& work) {
    double shortest = 1e9;
    for (int round = 0; round < rounds; ++round)
        shortest = std::min(shortest, millisecondsOf(work));
    return shortest;
}

/// A day's walk or drive, a point a second, with a receiver's noise.
std::vector<KTTrackPosition> journey(unsigned seed) {
    std::mt19937 source(seed);
    std::normal_distribution<double> turn(0, 0.08), noise(0, 1e-5), far(0, 0.7);
    KTMapPoint place{kMiddle.x + far(source), kMiddle.y + far(source) * 0.6};
    const double speed = seed % 3 == 0 ? 2e-4 : 1.5e-5; // degrees a second
    double direction = double(seed);
    std::vector<KTTrackPosition> points;
    for (int i = 0; i < kPointsOfTrack; ++i) {
        points.push_back({{place.x + noise(source), place.y + noise(source)},
                          KTInstantFromMilliseconds(1'600'000'000'000 + std::int64_t(i) * 1000)});
        direction += turn(source);
        place.x += speed * std::cos(direction);
        place.y += speed * std::sin(direction) * 0.7;
    }
    return points;
}

struct Photo : KTSpatialObject {
    std::string featureName() const override { return {}; }
    std::string featureDescription() const override { return {}; }
    std::string kind() const override { return {}; }
    std::vector<std::string> propertiesByName() const override { return {}; }
    bool allowsInteraction() const override { return true; }
    std::shared_ptr<const KTGeometry> geometry() const override { return place; }
    std::shared_ptr<const KTStyle> style() const override {
        static const auto style = [] {
            auto made = std::make_shared<KTStyle>();
            made->addRule({.symbolizers = {KTShinyBallSymbolizer{}}});
            made->addRule({.onlySelected = true, .symbolizers = {KTStarSymbolizer{}}});
            return made;
        }();
        return style;
    }
    KTSpatialObjectController* objectOwner() const override { return nullptr; }
    void setObjectOwner(KTSpatialObjectController*) override {}

    std::shared_ptr<const KTGeometry> place;
};

class Photos : public KTSpatialObjectController {
public:
    std::string name() const override { return {}; }
    Objects spatialObjects() const override { return list; }
    Indexes spatialObjectSelectionIndexes() const override { return selection; }
    bool addSelectedSpatialObjects(const Objects&) override { return false; }
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }

    Objects list;
    Indexes selection;
};

QImage canvas() {
    QImage image(1920, 1080, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

std::string pictureFolder; // empty for none

/// Saves what the layers show, on the light and the dark map.
void savePictures(const std::string& name, const std::vector<KTMapLayer*>& layers,
                  const KTMapViewState& state) {
    if (pictureFolder.empty())
        return;
    for (const bool isDark : {false, true}) {
        QImage image = canvas();
        image.fill(KTMapPalette::forMap(isDark).land);
        for (KTMapLayer* layer : layers)
            if (const auto drawing = layer->drawing(state); drawing) {
                QPainter painter(&image);
                painter.setRenderHint(QPainter::Antialiasing);
                drawing->draw(painter, state, {.isDark = isDark}, false);
            }
        image.save(QString::fromStdString(pictureFolder + "/" + name + (isDark ? "-dark.png" : ".png")));
    }
}

double drawingTime(int rounds, const KTMapDrawing& drawing, const KTMapViewState& state,
                   bool isAntialiased = true) {
    return best(rounds, [&] {
        QImage image = canvas();
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, isAntialiased);
        drawing.draw(painter, state, {.isAntialiased = isAntialiased}, false);
    });
}

void benchmarkTracks(const std::vector<std::vector<KTTrackPosition>>& journeys) {
    KTTrackLayer layer;
    std::vector<KTMapTrack> tracks;
    const double making = millisecondsOf([&] {
        for (std::size_t i = 0; i < journeys.size(); ++i)
            tracks.push_back({std::int64_t(i), {}, std::make_shared<KTTrackLine>(Segments{journeys[i]})});
    });
    layer.setTracks(tracks);
    const KTMapViewState whole(kMiddle, 8.5, 1920, 1080);
    const auto drawing = layer.drawing(whole);
    const double first = making + drawingTime(1, *drawing, whole);
    const double plain = millisecondsOf([&] {
        QImage image = canvas();
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::blue, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
        for (const auto& journey : journeys) {
            QPolygonF line;
            for (const auto& point : journey) {
                const KTViewPoint place = whole.viewPoint(KTProject(point.position));
                line << QPointF(place.x, place.y);
            }
            painter.drawPolyline(line);
        }
    });
    std::printf(
        "tracks, levels of detail: %.0f ms; first drawing with them: %.0f ms (aim 1000); plain: %.0f ms, "
        "%.1f times\n",
        making, first, plain, plain / first);
    for (const double zoom : {5.0, 8.5, 10.0, 12.0, 14.0, 16.0}) {
        const KTMapViewState state(journeys[1][kPointsOfTrack / 2].position, zoom, 1920, 1080);
        std::printf("tracks at zoom %4.1f: %.1f ms antialiased, %.1f ms without\n", zoom,
                    drawingTime(kRounds, *drawing, state), drawingTime(kRounds, *drawing, state, false));
        savePictures("tracks-" + std::to_string(int(zoom)), {&layer}, state);
    }
    double worst = 0;
    std::mt19937 source(4);
    std::uniform_real_distribution<double> x(0, 1920), y(0, 1080);
    for (const double zoom : {6.0, 8.5, 11.0, 14.0})
        for (int i = 0; i < 50; ++i) {
            const KTMapViewState state(kMiddle, zoom, 1920, 1080);
            const KTViewPoint pointer{x(source), y(source)};
            worst = std::max(worst, best(2, [&] { layer.hitTest(pointer, state); }));
        }
    std::printf("hovering tracks: worst %.2f ms\n", worst);
}

void placePhotos(Photos& photos) {
    std::mt19937 source(1);
    std::uniform_real_distribution<double> anywhere(-1, 1);
    std::normal_distribution<double> nearby(0, 0.01);
    KTMapPoint town = kMiddle;
    for (int i = 0; i < kPhotos; ++i) {
        if (i % 100 == 0)
            town = {kMiddle.x + anywhere(source) * 3, kMiddle.y + anywhere(source) * 1.5};
        auto photo = std::make_shared<Photo>();
        photo->place =
            std::make_shared<KTPointGeometry>(KTMapPoint{town.x + nearby(source), town.y + nearby(source)});
        photos.list.push_back(photo);
    }
}

void benchmarkPhotos(Photos& photos) {
    KTPhotoLayers layers(photos);
    std::printf("snapshot of %d photos: %.1f ms\n", kPhotos, best(kRounds, [&] {
                    layers.source().setNeedsSnapshot();
                    layers.source().snapshot();
                }));
    std::printf(
        "zoom: clusters, drawing, hit test and rubber band (aims 5), the same in the plain way [ms]\n");
    for (const double zoom : {3.0, 6.0, 8.5, 11.0, 14.0}) {
        const KTMapPoint aTown = photos.list.front()->geometry()->points().front();
        const KTMapViewState state(zoom < 9 ? kMiddle : aTown, zoom, 1920, 1080);
        const auto& places = layers.source().snapshot()->places();
        const double clustering = millisecondsOf([&] { places.clustersForZoom(zoom); });
        const auto drawing = layers.layers()[1]->drawing(state);
        const double drawn = drawingTime(kRounds, *drawing, state);
        const double hit = best(kRounds, [&] { layers.hitTest({961, 541}, state); });
        std::size_t found = 0, foundPlainly = 0;
        const double band = best(kRounds, [&] {
            found = layers.objectsIn({300, 200}, {1500, 900}, state).size();
        });
        const double plainHit = best(kRounds, [&] {
            for (const auto& photo : photos.list) {
                const KTViewPoint place = state.viewPoint(photo->geometry()->points().front());
                foundPlainly += std::hypot(place.x - 961, place.y - 541) < 9;
            }
        });
        foundPlainly = 0;
        const double plainBand = millisecondsOf([&] {
            for (const auto& photo : photos.list) {
                const KTViewPoint place = state.viewPoint(photo->geometry()->points().front());
                foundPlainly += place.x >= 300 && place.x <= 1500 && place.y >= 200 && place.y <= 900;
            }
        });
        std::printf("%4.1f: %.2f, %.2f, %.3f and %.3f; %.3f and %.3f (%.1f and %.1f times)%s\n", zoom,
                    clustering, drawn, hit, band, plainHit, plainBand, plainHit / hit, plainBand / band,
                    found == foundPlainly ? "" : " DIFFERENT");
        const auto all = layers.layers();
        savePictures("photos-" + std::to_string(int(zoom)), {all.begin(), all.end()}, state);
    }
}

/// The map of the window with everything on it: wall time until the first exact picture, then frames.
void benchmarkWhole(const std::vector<std::vector<KTTrackPosition>>& journeys, Photos& photos) {
    KTBaseMapStore::sharedStore()->data();
    const auto start = std::chrono::steady_clock::now();
    KTBaseMapLayer baseMap;
    KTTrackLayer tracks;
    KTPhotoLayers photoLayers(photos);
    std::vector<KTMapTrack> lines;
    for (std::size_t i = 0; i < journeys.size(); ++i)
        lines.push_back({std::int64_t(i), {}, std::make_shared<KTTrackLine>(Segments{journeys[i]})});
    tracks.setTracks(std::move(lines));
    KTMapCompositor map;
    map.addLayer(baseMap);
    map.addLayer(tracks);
    for (KTMapLayer* layer : photoLayers.layers())
        map.addLayer(*layer);
    const KTMapViewState whole(kMiddle, 8.5, 1920, 1080);
    map.setViewState(whole, false);
    runUntilExact(map);
    const std::chrono::duration<double, std::milli> first = std::chrono::steady_clock::now() - start;
    std::printf("the whole map: %.0f ms until it is exact (%.2f of the aim)\n", first.count(),
                first.count() / 1000);
    benchmarkMotions(map, whole);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    pictureFolder = argc > 1 ? argv[1] : "";
    std::vector<std::vector<KTTrackPosition>> journeys;
    for (unsigned i = 0; i < kTracks; ++i)
        journeys.push_back(journey(i));
    benchmarkTracks(journeys);
    Photos photos;
    placePhotos(photos);
    benchmarkPhotos(photos);
    benchmarkWhole(journeys, photos);
}
