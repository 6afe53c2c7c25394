#include "platform/cartography/drawing/KTBaseMapLabels.h"
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/cartography/drawing/KTBaseMapShapes.h"
#include "platform/cartography/drawing/KTMapPicture.h"
#include "tests/platform/cartography/drawing/BaseMapFile.h"
#include "tests/platform/cartography/drawing/GoldenPicture.h"
#include "tests/support/TestSupport.h"

#include <QPainter>
#include <random>

namespace {

constexpr int kWorld = KTBaseMapData::kWorld;
const std::atomic<bool> kNever = false;

/// Land in the middle, with a lake in it, a border, a river and a place; the same in every level.
std::vector<std::string> sections() {
    const int third = kWorld / 3, half = kWorld / 2;
    const std::string land = BaseMapFile::lines(
        {{0, {{third, third}, {2 * third, third}, {2 * third, 2 * third}, {third, 2 * third}}},
         {0, {{half, half}, {half + 99999, half}, {half, half + 99999}}}});
    const std::string line = BaseMapFile::lines({{0, {{third, half}, {2 * third, half + 1000}}}});
    std::vector<std::string> list;
    for (int level = 0; level < 4; ++level)
        list.insert(list.end(), {land, line, line, line});
    list.push_back(BaseMapFile::number(1) + BaseMapFile::place(0, half, half, "Somewhere"));
    list.push_back(BaseMapFile::number(1) + BaseMapFile::number(2) + "CH" + BaseMapFile::number(half) +
                   BaseMapFile::number(third) + BaseMapFile::number(third));
    return list;
}

QImage picture(const std::shared_ptr<KTBaseMapStore>& store, KTMapPoint centre, double zoom,
               bool isDark = false, double pixelRatio = 1) {
    KTBaseMapLayer layer(store);
    return KTMapPicture({&layer}, {centre, zoom, 480, 360, pixelRatio}, {.isDark = isDark});
}

bool isPlain(const QImage& image) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
    return true;
}

} // namespace

TEST(BaseMapData, readsWhatTheProgramCarries) {
    const KTBaseMapData* data = KTBaseMapStore::sharedStore()->data();
    ASSERT_NE(data, nullptr);
    EXPECT_GT(data->places().size(), 7000u);
    EXPECT_EQ(data->countries().front().code, "RU");
    std::size_t coarser = 0;
    for (const double zoom : {2.9, 3.0, 6.9, 12.0}) {
        const auto& level = data->levelForZoom(zoom);
        std::size_t points = 0;
        for (const auto& kind : level.lines)
            for (const auto& line : kind)
                points += line.points.size();
        EXPECT_GT(points, coarser);
        coarser = points;
    }
    EXPECT_GT(coarser, 1'000'000u);
}

TEST(BaseMapData, damagedFilesAreRefusedWithAMessage) {
    const TemporaryFolder folder;
    const std::string good = BaseMapFile::of(sections());
    EXPECT_NO_THROW(KTBaseMapData(folder.file("good", good)));
    const auto isRefused = [&](const std::string& content) {
        KTBaseMapStore store(folder.file("bad", content));
        return store.data() == nullptr && store.failure() &&
               store.failure()->find("bad") != std::string::npos;
    };
    for (std::size_t length = 0; length < good.size(); length += 1 + length / 16)
        ASSERT_TRUE(isRefused(good.substr(0, length))) << length;
    for (std::size_t i = 0; i < good.size(); i += 1 + i / 16) {
        std::string flipped = good;
        flipped[i] = static_cast<char>(flipped[i] ^ 1 << i % 8);
        ASSERT_TRUE(isRefused(flipped)) << i;
    }
    EXPECT_TRUE(isRefused(good + "x"));
    EXPECT_EQ(KTBaseMapStore(folder / "none").data(), nullptr);

    // What cannot be read is a plain sheet; the layer says why.
    const auto store = std::make_shared<KTBaseMapStore>(folder.file("empty", ""));
    EXPECT_TRUE(isPlain(picture(store, {0, 0}, 2)));
    EXPECT_TRUE(KTBaseMapLayer(store).problem().has_value());
    EXPECT_FALSE(isPlain(picture(std::make_shared<KTBaseMapStore>(folder / "good"), {0, 0}, 2)));
}

TEST(BaseMapData, contentThatOnlyTheChecksumVouchesForDoesNoHarm) {
    const TemporaryFolder folder;
    const std::string content = BaseMapFile::of(sections()).substr(12);
    std::mt19937 random(7);
    int read = 0;
    for (int round = 0; round < 120; ++round) {
        std::string changed = content;
        for (int change = 0; change <= round % 3; ++change)
            changed[random() % changed.size()] = static_cast<char>(random());
        if (round % 5 == 0)
            changed.resize(random() % changed.size());
        const auto store =
            std::make_shared<KTBaseMapStore>(folder.file("changed", BaseMapFile::sealed(changed)));
        if (store->data() == nullptr)
            continue;
        ++read;
        picture(store, {0, 0}, 1);
        picture(store, {3, -3}, 19);
    }
    EXPECT_GT(read, 5) << "otherwise only the checks were tested";
}

TEST(BaseMapShapes, clippedShapesLookLikeWholeOnes) {
    // A saw-toothed ring larger than the view, of many chunks, some of which go around the view.
    std::vector<std::pair<int, int>> ring;
    const int middle = kWorld / 2;
    for (int i = 0; i < 400; ++i)
        ring.push_back({middle - 30000 + 150 * i, middle - 4000 + (i % 2) * 3000 + i * 5});
    for (int i = 0; i < 400; ++i)
        ring.push_back({middle + 30000 - 150 * i, middle + 20000 - (i % 3) * 9000});
    const TemporaryFolder folder;
    auto list = sections();
    list[12] = BaseMapFile::lines({{0, ring}});
    const KTBaseMapData data(folder.file("ring", BaseMapFile::of(list)));
    for (const double zoom : {8.2, 9.3, 11.0, 13.5}) {
        for (const double longitude : {-0.5, 0.0, 0.013, 1.2}) {
            const KTMapViewState state({longitude, 0}, zoom, 300, 200);
            QPainterPath whole;
            whole.setFillRule(Qt::OddEvenFill);
            for (const auto& [x, y] : ring) {
                const KTViewPoint point =
                    state.viewPoint(KTWorldPoint{double(x) / kWorld, double(y) / kWorld});
                whole.elementCount() == 0 ? whole.moveTo(point.x, point.y) : whole.lineTo(point.x, point.y);
            }
            whole.closeSubpath();
            const auto drawn = [](const QPainterPath& area, const QPainterPath& edge) {
                QImage image(300, 200, QImage::Format_RGB32);
                image.fill(Qt::white);
                QPainter painter(&image);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.fillPath(area, Qt::green);
                painter.strokePath(edge, QPen(Qt::blue, 1));
                return image;
            };
            const KTBaseMapShapes shapes(state, 8, kNever);
            const auto& lines = data.levelForZoom(zoom).lines[KTBaseMapData::Land];
            QPainterPath area, edge;
            for (const double top : {0.0, 130.0}) // cut anywhere, the strips join
                area |= shapes.areas(lines, top, top == 0 ? 130 : 200).front();
            shapes.shores(lines, [&](const QPolygonF& points) { edge.addPolygon(points); });
            const QImage clipped = drawn(area, edge), expected = drawn(whole, whole);
            int differing = 0;
            for (int y = 0; y < 200; ++y)
                for (int x = 0; x < 300; ++x)
                    differing += std::abs(qGreen(clipped.pixel(x, y)) - qGreen(expected.pixel(x, y))) > 40;
            EXPECT_LE(differing, 60) << zoom << " " << longitude; // of 60,000: rounding along edges
        }
    }
}

TEST(BaseMapLabels, neverMeetAndStayWhileTheMapIsPannedAndGrows) {
    KTBaseMapLabels labels(*KTBaseMapStore::sharedStore()->data());
    for (const int zoom : {2, 3, 6, 8}) {
        const auto step = labels.step(zoom);
        ASSERT_GT(step->labels.size(), 20u);
        for (const double growth : {1.0, 1.4, 1.99}) {
            const double size = KTMapViewState::kTileSize * std::exp2(zoom) * growth;
            std::vector<QRectF> boxes;
            for (const auto& label : step->labels) {
                const QRectF box = label.box.translated(label.anchor.x * size, label.anchor.y * size);
                boxes.push_back(box);
                if (box.right() > size) // across the date line
                    boxes.push_back(box.translated(-size, 0));
                if (box.left() < 0)
                    boxes.push_back(box.translated(size, 0));
            }
            std::ranges::sort(boxes, {}, &QRectF::left);
            for (std::size_t i = 0; i < boxes.size(); ++i)
                for (std::size_t j = i + 1; j < boxes.size() && boxes[j].left() < boxes[i].right(); ++j)
                    ASSERT_FALSE(boxes[i].intersects(boxes[j])) << zoom << " " << growth;
        }
    }
    const auto largest = labels.step(3)->labels.back();
    EXPECT_EQ(largest.kind, KTBaseMapLabels::Kind::Country);
}

TEST(BaseMapPictures, lookAsTheyDid) {
    const auto store = KTBaseMapStore::sharedStore();
    EXPECT_TRUE(looksLikeGolden(picture(store, {179.6, -17}, 6.3), "fiji"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {179.6, -17}, 6.3, true), "fiji-dark"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {-170, 66}, 4.2), "chukotka"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {20, 90}, 2.6), "north-pole"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {-60, -90}, 2.6), "south-pole"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {0, 0}, 0), "world"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {7.6, 47.55}, 9), "basel"));
    EXPECT_TRUE(looksLikeGolden(picture(store, {8.5, 46.8}, 6.5, false, 2), "switzerland-2x"));
}
