#include "platform/transitions/Transitions.h"

#include <cmath>
#include <numbers>

namespace {

constexpr QRgb kGlint = 0xffffffff;
constexpr float kHalfWidth = 0.13f; // of the ring, of the way to the corners
constexpr float kDepth = 0.022f;    // by how much it moves pixels at most, of that way

/// A ring of waves that spreads from the middle: outside lies the old picture, inside the new one, in the
/// ring both are mixed and moved to and from the middle.
class Ripple {
public:
    explicit Ripple(const TransitionFrame& drawnFrame)
        : frame(drawnFrame), reach(std::hypot(float(frame.width) / 2, float(frame.height) / 2)),
          half(std::max(1.f, kHalfWidth * reach)), middle(float(frame.progress) * (reach + 2 * half) - half) {
        steps.resize(std::size_t(reach + 2 * half) + 2);
        for (std::size_t distance = 0; distance < steps.size(); ++distance)
            steps[distance] = stepAt(float(distance));
    }

    void drawRow(int y) const {
        const float dy = float(y) - float(frame.height) / 2;
        // Half the row's share of the outer and of the inner circle
        const int outer = halfChord(middle + half, dy), inner = halfChord(middle - half, dy);
        const int centre = frame.width / 2;
        const int cuts[] = {0,
                            clamped(centre - outer),
                            clamped(centre - inner),
                            clamped(centre + inner),
                            clamped(centre + outer),
                            frame.width};
        copyRow(frame.onto(y), frame.from(y), cuts[1]);
        drawRing(y, cuts[1], cuts[2]);
        copyRow(frame.onto(y) + cuts[2], frame.to(y) + cuts[2], cuts[3] - cuts[2]);
        drawRing(y, cuts[3], cuts[4]);
        copyRow(frame.onto(y) + cuts[4], frame.from(y) + cuts[4], frame.width - cuts[4]);
    }

private:
    struct Step {
        float shift = 0; // of the way from the middle
        unsigned weight = 0, glint = 0;
    };

    Step stepAt(float distance) const {
        const float place = std::clamp((distance - middle) / half, -1.f, 1.f); // in the ring
        const float swell = (1 - place * place) * (1 - place * place);
        const float wave = place * 2 * std::numbers::pi_v<float>;
        return {swell * std::sin(wave) * kDepth * reach / std::max(1.f, distance), weightOf((1 - place) / 2),
                weightOf(0.35f * swell * std::cos(wave))};
    }

    int clamped(int x) const { return std::clamp(x, 0, frame.width); }

    static int halfChord(float radius, float dy) {
        const float square = radius * radius - dy * dy;
        return radius > 0 && square > 0 ? int(std::sqrt(square)) : 0;
    }

    /// Two neighbours are moved alike: in motion nobody sees it, and finding out by how much is what takes
    /// time.
    void drawRing(int y, int first, int last) const {
        const float dy = float(y) - float(frame.height) / 2;
        QRgb* const onto = frame.onto(y);
        for (int x = first; x < last; x += 2) {
            const float dx = float(x) - float(frame.width) / 2;
            const auto distance = std::min(int(std::sqrt(dx * dx + dy * dy)), int(steps.size()) - 1);
            const Step& step = steps[std::size_t(distance)];
            const int column = std::clamp(x + int(dx * step.shift), 0, frame.width - 2);
            const int row = std::clamp(y + int(dy * step.shift), 0, frame.height - 1);
            const QRgb *const from = frame.from(row) + column, *const to = frame.to(row) + column;
            onto[x] = mixed(mixed(from[0], to[0], step.weight), kGlint, step.glint);
            if (x + 1 < last)
                onto[x + 1] = mixed(mixed(from[1], to[1], step.weight), kGlint, step.glint);
        }
    }

    const TransitionFrame& frame;
    const float reach, half, middle; // pixels: to the corners, half the ring's width, its radius
    std::vector<Step> steps;         // by distance from the middle
};

} // namespace

void drawRipple(const TransitionFrame& frame) {
    if (frame.width < 2)
        return drawFade(frame);
    const Ripple ripple(frame);
    for (int y = 0; y < frame.height; ++y)
        ripple.drawRow(y);
}
