#pragma once
#include <QImage>
#include <algorithm>
#include <cstring>
#include <vector>

/// The two pictures of a transition and the image to be drawn, all of one size, as rows of pixels; and how
/// far it is, between 0 and 1.
class TransitionFrame {
public:
    TransitionFrame(const QImage& oldPicture, const QImage& newPicture, double howFar, QImage& drawn)
        : width(drawn.width()), height(drawn.height()), progress(howFar), old(oldPicture.constBits()),
          fresh(newPicture.constBits()), pixels(drawn.bits()), stride(drawn.bytesPerLine()) {}

    const int width, height;
    const double progress;

    const QRgb* from(int y) const { return reinterpret_cast<const QRgb*>(old + stride * y); }
    const QRgb* to(int y) const { return reinterpret_cast<const QRgb*>(fresh + stride * y); }
    QRgb* onto(int y) const { return reinterpret_cast<QRgb*>(pixels + stride * y); }

private:
    const uchar *const old, *const fresh;
    uchar* const pixels;
    const qsizetype stride; // of all three
};

/// Weights of a mixture, a pixel: 0 is all of the first picture, 256 all of the second.
using TransitionWeights = std::vector<unsigned>;
inline constexpr unsigned kWholeWeight = 256;

/// @p share cut to 0 … 1, as weight.
inline unsigned weightOf(float share) {
    return static_cast<unsigned>(std::clamp(share, 0.f, 1.f) * float(kWholeWeight));
}

/// Two channels at a time; what one borrows of the other is what the mask cuts away.
inline QRgb mixed(QRgb first, QRgb second, unsigned weight) {
    constexpr unsigned kChannels = 0x00ff00ff;
    const unsigned even = first & kChannels, odd = first >> 8 & kChannels;
    const unsigned evens = even + (((second & kChannels) - even) * weight >> 8);
    const unsigned odds = odd + (((second >> 8 & kChannels) - odd) * weight >> 8);
    return (evens & kChannels) | (odds & kChannels) << 8;
}

inline void mixRow(QRgb* __restrict onto, const QRgb* first, const QRgb* second, const unsigned* weights,
                   int count) {
    for (int x = 0; x < count; ++x)
        onto[x] = mixed(first[x], second[x], weights[x]);
}

inline void copyRow(QRgb* onto, const QRgb* row, int count) {
    if (count > 0)
        std::memcpy(onto, row, std::size_t(count) * sizeof(QRgb));
}
