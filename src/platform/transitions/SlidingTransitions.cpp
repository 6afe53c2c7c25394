#include "platform/transitions/Transitions.h"

#include <cmath>

namespace {

constexpr QRgb kLight = 0xfff4fcff;
constexpr double kSwipeTilt = 0.35;    // pixels to the side, a row
constexpr double kSwipeSoftness = 0.2; // of the width
constexpr double kBarWidth = 0.12;     // half of it, of the width

int shiftOf(const TransitionFrame& frame) {
    return std::clamp(int(std::lround(frame.progress * frame.width)), 0, frame.width);
}

} // namespace

void drawMoveIn(const TransitionFrame& frame) {
    const int shift = shiftOf(frame), rest = frame.width - shift;
    for (int y = 0; y < frame.height; ++y) {
        copyRow(frame.onto(y), frame.from(y), rest);
        copyRow(frame.onto(y) + rest, frame.to(y), shift);
    }
}

void drawPush(const TransitionFrame& frame) {
    const int shift = shiftOf(frame), rest = frame.width - shift;
    for (int y = 0; y < frame.height; ++y) {
        copyRow(frame.onto(y), frame.from(y) + shift, rest);
        copyRow(frame.onto(y) + rest, frame.to(y), shift);
    }
}

void drawReveal(const TransitionFrame& frame) {
    const int shift = shiftOf(frame), rest = frame.width - shift;
    for (int y = 0; y < frame.height; ++y) {
        copyRow(frame.onto(y), frame.from(y) + shift, rest);
        copyRow(frame.onto(y) + rest, frame.to(y) + rest, shift);
    }
}

/// The soft edge, from the new picture to the old one, moves from right to left.
void drawSwipe(const TransitionFrame& frame) {
    const int softness = std::max(1, int(kSwipeSoftness * frame.width));
    TransitionWeights weights(std::size_t(softness), 0);
    for (int x = 0; x < softness; ++x)
        weights[std::size_t(x)] = weightOf((float(x) + 0.5f) / float(softness));
    const double way = frame.width + kSwipeTilt * frame.height + softness;
    for (int y = 0; y < frame.height; ++y) {
        const int edge = int(frame.width + kSwipeTilt * y - frame.progress * way); // where the old one ends
        const int first = std::clamp(edge, 0, frame.width);
        const int last = std::clamp(edge + softness, 0, frame.width);
        copyRow(frame.onto(y), frame.from(y), first);
        mixRow(frame.onto(y) + first, frame.from(y) + first, frame.to(y) + first,
               weights.data() + (first - edge), last - first);
        copyRow(frame.onto(y) + last, frame.to(y) + last, frame.width - last);
    }
}

void drawCopyMachine(const TransitionFrame& frame) {
    const double bar = std::max(1.0, kBarWidth * frame.width);
    const double middle = frame.progress * (frame.width + 2 * bar) - bar;
    const int edge = std::clamp(int(middle), 0, frame.width);
    const int first = std::clamp(int(middle - bar), 0, frame.width);
    const int last = std::clamp(int(middle + bar) + 1, 0, frame.width);
    TransitionWeights light(std::size_t(last - first), 0);
    for (int x = first; x < last; ++x) {
        const auto near = float(1 - std::abs(x - middle) / bar);
        light[std::size_t(x - first)] = near > 0 ? weightOf(near * near * 1.3f) : 0;
    }
    for (int y = 0; y < frame.height; ++y) {
        QRgb* const onto = frame.onto(y);
        copyRow(onto, frame.to(y), edge);
        copyRow(onto + edge, frame.from(y) + edge, frame.width - edge);
        for (int x = first; x < last; ++x)
            onto[x] = mixed(onto[x], kLight, light[std::size_t(x - first)]);
    }
}
