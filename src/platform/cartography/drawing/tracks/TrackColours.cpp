#include "platform/cartography/drawing/tracks/TrackColours.h"

namespace {

struct Pair {
    QRgb light, dark;
};

constexpr Pair kColours[TrackColours::kCount] = {
    {0x1458c8, 0x62b0ff}, // blue
    {0xe05a00, 0xff9448}, // orange
    {0x6a1b9a, 0xd29bff}, // violet
    {0x00897b, 0x4fd8c4}, // teal
    {0xb3122f, 0xff7d8e}, // crimson
    {0x5f8a00, 0xc3e06a}, // olive
    {0x283593, 0xa4b1ff}, // indigo
    {0xd0399b, 0xff92d6}, // pink
    {0x5d4037, 0xd0ab98}, // brown
    {0x0091c9, 0x7fe0ff}, // cyan
};

} // namespace

QColor TrackColours::line(std::size_t number, bool isDark) {
    const Pair& pair = kColours[number % kCount];
    return QColor(isDark ? pair.dark : pair.light);
}

QColor TrackColours::casing(bool isDark) {
    return isDark ? QColor(0x14, 0x18, 0x1d) : QColor(Qt::white);
}
