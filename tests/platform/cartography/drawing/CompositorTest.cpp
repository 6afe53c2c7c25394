#include "platform/cartography/drawing/KTMapCompositor.h"
#include "platform/concurrency/KTLatch.h"
#include "tests/support/EventLoop.h"

#include <QPainter>
#include <gtest/gtest.h>
#include <thread>

namespace {

/// Draws coloured fields that stay where they are on the map; can be made to wait.
class Fields : public KTMapLayer {
public:
    Fields(Place place, QColor colour) : KTMapLayer(place), fill(colour) {}

    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState&) override {
        ++asked;
        return std::make_shared<Drawing>(*this);
    }
    std::optional<std::string> problem() const override { return trouble; }
    void setColour(QColor colour) {
        fill = colour;
        changed();
    }

    std::optional<std::string> trouble;
    int asked = 0;
    std::atomic<bool> waitsUntilCancelled = false;
    std::atomic<int> begun = 0, cancelled = 0;
    std::atomic<bool> wasDrawnQuickly = false;

private:
    struct Drawing : KTMapDrawing {
        explicit Drawing(Fields& from) : owner(from), colour(from.fill), waits(from.waitsUntilCancelled) {}
        void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                  const std::atomic<bool>& isCancelled) const override {
            ++owner.begun;
            while (waits && !isCancelled)
                std::this_thread::yield();
            if (isCancelled) {
                ++owner.cancelled;
                return;
            }
            if (!look.isAntialiased)
                owner.wasDrawnQuickly = true;
            if (isGround(owner.place()))
                painter.fillRect(QRectF(0, 0, state.width(), state.height()),
                                 look.isDark ? Qt::black : Qt::white);
            for (int field = 0; field < 64; ++field) {
                const auto turns = state.visibleTurns(field / 64.0, (field + 0.5) / 64);
                for (int turn = turns.first; turn <= turns.last; ++turn) {
                    const KTViewPoint corner = state.viewPoint(KTWorldPoint{field / 64.0 + turn, 0.4});
                    painter.fillRect(
                        QRectF(corner.x, corner.y, state.worldSize() / 128, state.worldSize() / 10), colour);
                }
            }
        }
        Fields& owner;
        const QColor colour;
        const bool waits;
    };

    QColor fill;
};

QImage painted(KTMapCompositor& map) {
    QImage image = KTMakeMapImage(map.viewState(), true);
    QPainter painter(&image);
    map.paint(painter);
    return image;
}

/// Whether two pictures are the same but for the rounding of colours that are mixed in two steps.
testing::AssertionResult areTheSame(const QImage& a, const QImage& b) {
    if (a.size() != b.size())
        return testing::AssertionFailure() << "they are of different sizes";
    int differing = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor here = a.pixelColor(x, y), there = b.pixelColor(x, y);
            differing += std::abs(here.red() - there.red()) + std::abs(here.green() - there.green()) +
                             std::abs(here.blue() - there.blue()) >
                         6;
        }
    return differing == 0 ? testing::AssertionSuccess()
                          : testing::AssertionFailure() << differing << " pixels differ";
}

class Compositor : public testing::Test {
protected:
    Compositor() {
        map.addLayer(features); // in an order other than that of their places
        map.addLayer(ground);
    }
    void settle() {
        ASSERT_TRUE(runEventLoopUntil([&] { return map.isUpToDate(); }));
    }
    QImage expected(bool isDark = false) {
        return KTMapPicture({&ground, &features}, map.viewState(), {isDark});
    }

    Fields ground{KTMapLayer::Place::BaseMap, Qt::green},
        features{KTMapLayer::Place::Photos, QColor(0, 0, 255, 128)};
    KTMapCompositor map;
};

const KTMapViewState kState({10, 5}, 3.3, 320, 200);

} // namespace

TEST_F(Compositor, atRestItShowsExactlyTheLayers) {
    for (const KTMapViewState& state :
         {kState, KTMapViewState({179, 0}, 4, 322, 202, 1.5), kState.zoomedTo(6)}) {
        map.setViewState(state, false);
        settle();
        EXPECT_TRUE(areTheSame(painted(map), expected()));
    }
    map.setDark(true);
    settle();
    EXPECT_TRUE(areTheSame(painted(map), expected(true)));
    features.setColour(QColor(255, 0, 0, 128));
    settle();
    EXPECT_TRUE(areTheSame(painted(map), expected(true)));
    map.removeLayer(features);
    settle();
    EXPECT_TRUE(areTheSame(painted(map), KTMapPicture({&ground}, map.viewState(), {true})));
}

TEST_F(Compositor, whileItMovesTheImagesAtHandAreMoved) {
    map.setViewState(kState, false);
    settle();
    const int asked = ground.asked;
    map.setViewState(kState.pannedBy(40, -20), true);
    EXPECT_TRUE(areTheSame(painted(map), expected())) << "moved by whole pixels, the image is right";
    EXPECT_EQ(ground.asked, asked + 1) << "by the picture that it was compared with";

    map.setViewState(kState.pannedBy(3000, 0), true); // beyond the image
    settle();
    EXPECT_TRUE(ground.wasDrawnQuickly);
    map.setViewState(map.viewState(), false);
    settle();
    EXPECT_TRUE(areTheSame(painted(map), expected()));
}

TEST_F(Compositor, drawingsThatNobodyNeedsAreCancelled) {
    settle();
    const int begun = ground.begun;
    ground.waitsUntilCancelled = true;
    map.setViewState(kState, false);
    ASSERT_TRUE(runEventLoopUntil([&] { return ground.begun > begun; }));
    ground.waitsUntilCancelled = false;
    map.setViewState(kState.zoomedTo(9), false);
    settle();
    EXPECT_EQ(ground.cancelled, 1);
    EXPECT_TRUE(areTheSame(painted(map), expected()));
}

TEST_F(Compositor, endsWhileItDraws) {
    auto second = std::make_unique<KTMapCompositor>();
    Fields slow(KTMapLayer::Place::BaseMap, Qt::red);
    slow.waitsUntilCancelled = true;
    second->addLayer(slow);
    second->setViewState(kState, false);
    ASSERT_TRUE(runEventLoopUntil([&] { return slow.begun > 0; }));
    second.reset();
    EXPECT_EQ(slow.cancelled, slow.begun);
    EXPECT_GE(slow.cancelled, 1);
}

TEST_F(Compositor, tellsAProblemOnceAndWhenToPaint) {
    std::vector<std::string> problems;
    int updates = 0;
    map.setProblemHandler([&](const std::string& text) { problems.push_back(text); });
    map.setUpdateHandler([&] { ++updates; });
    ground.trouble = "no map";
    map.setViewState(kState, false);
    settle();
    features.setColour(Qt::yellow);
    settle();
    EXPECT_EQ(problems, std::vector<std::string>{"no map"});
    EXPECT_GE(updates, 2);
}
