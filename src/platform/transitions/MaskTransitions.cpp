#include "platform/transitions/Transitions.h"

#include <array>
#include <cmath>

namespace {

constexpr QRgb kWhite = 0xffffffff;
constexpr int kGrain = 256; // pixels after which the grain repeats itself
constexpr double kFlashPeak = 0.35;
constexpr int kHolesInHeight = 18;
constexpr float kHoleDelay = 1.2f; // by how much the outermost hole is later than the middle one

using Grain = std::array<std::uint8_t, std::size_t(kGrain) * kGrain>;

/// Numbers without a visible order, the same ones in every run.
const Grain& grain() {
    static const Grain numbers = [] {
        Grain made{};
        std::uint32_t state = 0x9e3779b9;
        for (auto& number : made) {
            state ^= state << 13;
            state ^= state >> 17;
            state ^= state << 5;
            number = std::uint8_t(state >> 24);
        }
        return made;
    }();
    return numbers;
}

const std::uint8_t* grainRow(int y) {
    return grain().data() + std::size_t(y % kGrain) * kGrain;
}

/// Weights by moment: a pixel whose moment is 0 … 255 comes when the progress gets there, within a while of
/// @p softness moments.
std::array<unsigned, 256> weightsByMoment(double progress, int softness) {
    std::array<unsigned, 256> weights{};
    for (int moment = 0; moment < 256; ++moment)
        weights[std::size_t(moment)] =
            weightOf(float(progress * (256 + softness) - moment) / float(softness));
    return weights;
}

/// Distances of a row's pixels from the middle of the frame, of which the corners have 1.
void distancesOfRow(const TransitionFrame& frame, int y, std::vector<float>& distances) {
    const float middle = float(frame.width - 1) / 2, dy = float(y) - float(frame.height - 1) / 2;
    const float scale = 1 / std::hypot(float(frame.width) / 2, float(frame.height) / 2);
    for (int x = 0; x <= frame.width / 2; ++x) {
        const float dx = float(x) - middle;
        distances[std::size_t(x)] = distances[std::size_t(frame.width - 1 - x)] =
            std::sqrt(dx * dx + dy * dy) * scale;
    }
}

} // namespace

void drawFade(const TransitionFrame& frame) {
    const unsigned weight = weightOf(float(frame.progress));
    for (int y = 0; y < frame.height; ++y) {
        QRgb* const onto = frame.onto(y);
        const QRgb *const from = frame.from(y), *const to = frame.to(y);
        for (int x = 0; x < frame.width; ++x)
            onto[x] = mixed(from[x], to[x], weight);
    }
}

/// Green stands for brightness; a little grain breaks up even areas.
void drawDisintegrate(const TransitionFrame& frame) {
    const auto weights = weightsByMoment(frame.progress, 40);
    TransitionWeights row(std::size_t(frame.width), 0);
    for (int y = 0; y < frame.height; ++y) {
        const std::uint8_t* const noise = grainRow(y);
        const QRgb* const to = frame.to(y);
        for (int x = 0; x < frame.width; ++x) {
            const unsigned dark = 255 - unsigned(qGreen(to[x]));
            row[std::size_t(x)] = weights[(dark * 7 + noise[x % kGrain]) / 8];
        }
        mixRow(frame.onto(y), frame.from(y), to, row.data(), frame.width);
    }
}

void drawDissolve(const TransitionFrame& frame) {
    const auto weights = weightsByMoment(frame.progress, 24);
    TransitionWeights row(std::size_t(frame.width), 0);
    for (int y = 0; y < frame.height; ++y) {
        const std::uint8_t* const noise = grainRow(y);
        for (int x = 0; x < frame.width; ++x)
            row[std::size_t(x)] = weights[noise[x % kGrain]];
        mixRow(frame.onto(y), frame.from(y), frame.to(y), row.data(), frame.width);
    }
}

/// At the peak everything is white, so nobody sees the pictures change.
void drawFlash(const TransitionFrame& frame) {
    const bool isRising = frame.progress < kFlashPeak;
    const auto strength =
        float(isRising ? frame.progress / kFlashPeak : (1 - frame.progress) / (1 - kFlashPeak));
    std::vector<float> distances(std::size_t(frame.width), 0);
    for (int y = 0; y < frame.height; ++y) {
        distancesOfRow(frame, y, distances);
        QRgb* const onto = frame.onto(y);
        const QRgb* const row = isRising ? frame.from(y) : frame.to(y);
        for (int x = 0; x < frame.width; ++x)
            onto[x] = mixed(row[x], kWhite, weightOf(strength * 2.4f - distances[std::size_t(x)] * 1.4f));
    }
}

/// Round holes in a grid, of which one is in the middle.
void drawMod(const TransitionFrame& frame) {
    const int cell = std::max(4, frame.height / kHolesInHeight);
    const float reach = float(cell) * 0.72f; // a hole of this radius covers its cell
    std::vector<float> inCell(std::size_t(cell) * std::size_t(cell));
    for (int y = 0; y < cell; ++y)
        for (int x = 0; x < cell; ++x)
            inCell[std::size_t(y * cell + x)] =
                std::hypot(float(x) - float(cell - 1) / 2, float(y) - float(cell - 1) / 2);
    const int left = (frame.width / 2 - cell / 2) % cell, top = (frame.height / 2 - cell / 2) % cell;
    const float corner = std::hypot(float(frame.width) / 2, float(frame.height) / 2);
    TransitionWeights row(std::size_t(frame.width), 0);
    for (int y = 0; y < frame.height; ++y) {
        const int yInCell = (y - top + cell) % cell;
        const float* const distances = inCell.data() + std::size_t(yInCell * cell);
        const float dy = float(y - yInCell + cell / 2 - frame.height / 2);
        for (int start = left - cell; start < frame.width; start += cell) {
            const float far = std::hypot(float(start + cell / 2 - frame.width / 2), dy) / corner;
            const float radius = (float(frame.progress) * (1 + kHoleDelay) - far * kHoleDelay) * (reach + 2);
            for (int x = std::max(0, start); x < std::min(start + cell, frame.width); ++x)
                row[std::size_t(x)] = weightOf((radius - distances[x - start]) * 0.5f);
        }
        mixRow(frame.onto(y), frame.from(y), frame.to(y), row.data(), frame.width);
    }
}
