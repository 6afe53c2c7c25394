#include "platform/transitions/KTTransition.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr QSize kSizes[] = {{1, 1}, {37, 23}, {320, 180}, {90, 200}};

/// A picture without equal neighbours.
QImage picture(const QSize& size, QRgb base) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y,
                           qRgb(qRed(base) + (x * 7 + y * 3) % 60, qGreen(base) + (x * 3 + y * 11) % 60,
                                qBlue(base) + (x + y * 5) % 60));
    return image;
}

/// Mean difference of a channel.
double difference(const QImage& left, const QImage& right) {
    double sum = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = left.pixel(x, y), b = right.pixel(x, y);
            sum +=
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    return sum / (3.0 * left.width() * left.height());
}

struct Pictures {
    explicit Pictures(const QSize& size)
        : old(picture(size, qRgb(150, 20, 10))), fresh(picture(size, qRgb(10, 90, 180))) {}
    QImage at(KTTransitionStyle style, double progress) const {
        QImage onto;
        KTDrawTransition(style, old, fresh, progress, onto);
        return onto;
    }
    const QImage old, fresh;
};

void forEachStyle(const std::function<void(KTTransitionStyle)>& check) {
    for (unsigned style = 0; style < kTransitionStyles; ++style) {
        SCOPED_TRACE("style " + std::to_string(style));
        check(static_cast<KTTransitionStyle>(style));
    }
}

} // namespace

TEST(TransitionsTest, BeginWithTheOldPictureAndEndWithTheNewOneExactly) {
    for (const QSize& size : kSizes) {
        const Pictures pictures(size);
        forEachStyle([&](KTTransitionStyle style) {
            for (double before : {0.0, -3.0, std::numeric_limits<double>::quiet_NaN()})
                EXPECT_EQ(pictures.at(style, before), pictures.old);
            for (double after : {1.0, 7.0})
                EXPECT_EQ(pictures.at(style, after), pictures.fresh);
        });
    }
}

TEST(TransitionsTest, GoFromOneToTheOtherWithoutALeap) {
    const Pictures pictures(QSize(320, 180));
    const double whole = difference(pictures.old, pictures.fresh);
    forEachStyle([&](KTTransitionStyle style) {
        EXPECT_LT(difference(pictures.at(style, 0.004), pictures.old), whole * 0.08);
        EXPECT_LT(difference(pictures.at(style, 0.996), pictures.fresh), whole * 0.08);
        double latest = whole * 1.0001;
        for (double progress : {0.1, 0.3, 0.5, 0.7, 0.9}) {
            const double left = difference(pictures.at(style, progress), pictures.fresh);
            if (style != KTTransitionStyle::Flash) {
                EXPECT_LE(left, latest + whole * 0.02) << progress;
            }
            latest = left;
        }
        const QImage middle = pictures.at(style, 0.5);
        EXPECT_GT(difference(middle, pictures.old), whole * 0.1);
        EXPECT_GT(difference(middle, pictures.fresh), whole * 0.1);
    });
}

TEST(TransitionsTest, StayWithinTheTwoPicturesAndWhatLightAndShadowMakeOfThem) {
    for (const QSize& size : kSizes) {
        const QImage dark = picture(size, qRgb(20, 20, 20)), light = picture(size, qRgb(120, 120, 120));
        forEachStyle([&](KTTransitionStyle style) {
            const bool hasLight = style == KTTransitionStyle::CopyMachine ||
                                  style == KTTransitionStyle::Flash || style == KTTransitionStyle::PageCurl ||
                                  style == KTTransitionStyle::Ripple;
            const int lowest = hasLight ? 0 : 20, highest = hasLight ? 255 : 179;
            for (double progress = 0.02; progress < 1; progress += 0.07) {
                QImage onto;
                KTDrawTransition(style, dark, light, progress, onto);
                ASSERT_EQ(onto.size(), size);
                for (int y = 0; y < size.height(); ++y)
                    for (int x = 0; x < size.width(); ++x) {
                        const QRgb pixel = *(reinterpret_cast<const QRgb*>(onto.constScanLine(y)) + x);
                        ASSERT_EQ(qAlpha(pixel), 255);
                        ASSERT_GE(std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}), lowest);
                        ASSERT_LE(std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}), highest);
                    }
            }
        });
    }
}

TEST(TransitionsTest, MoveWhatTheyAreNamedAfter) {
    const Pictures pictures(QSize(200, 100));
    const QImage &old = pictures.old, &fresh = pictures.fresh;
    auto pixel = [&](KTTransitionStyle style, double progress, int x, int y) {
        return pictures.at(style, progress).pixel(x, y);
    };
    using enum KTTransitionStyle;
    EXPECT_EQ(pixel(MoveIn, 0.25, 149, 7), old.pixel(149, 7)); // stays where it is …
    EXPECT_EQ(pixel(MoveIn, 0.25, 150, 7), fresh.pixel(0, 7)); // … below what comes
    EXPECT_EQ(pixel(Push, 0.25, 149, 7), old.pixel(199, 7));
    EXPECT_EQ(pixel(Push, 0.25, 150, 7), fresh.pixel(0, 7));
    EXPECT_EQ(pixel(Reveal, 0.25, 149, 7), old.pixel(199, 7));
    EXPECT_EQ(pixel(Reveal, 0.25, 150, 7), fresh.pixel(150, 7));
    EXPECT_EQ(pixel(CopyMachine, 0.5, 2, 50), fresh.pixel(2, 50));
    EXPECT_EQ(pixel(CopyMachine, 0.5, 197, 50), old.pixel(197, 50));
    EXPECT_EQ(pixel(Swipe, 0.5, 2, 50), old.pixel(2, 50));
    EXPECT_EQ(pixel(Swipe, 0.5, 197, 50), fresh.pixel(197, 50));
    EXPECT_EQ(pixel(PageCurl, 0.4, 2, 2), old.pixel(2, 2));
    EXPECT_EQ(pixel(PageCurl, 0.4, 199, 99), fresh.pixel(199, 99));
    for (KTTransitionStyle fromTheMiddle : {Mod, Ripple}) {
        EXPECT_EQ(pixel(fromTheMiddle, 0.5, 100, 50), fresh.pixel(100, 50));
        EXPECT_EQ(pixel(fromTheMiddle, 0.3, 0, 0), old.pixel(0, 0));
    }
    for (int x : {0, 100, 199})
        EXPECT_GT(qRed(pixel(Flash, 0.35, x, 0)), 250); // everything is white when the pictures change
}

TEST(TransitionsTest, DisintegrateBringsLightPartsFirst) {
    QImage old(64, 64, QImage::Format_RGB32), fresh(64, 64, QImage::Format_RGB32);
    old.fill(Qt::red);
    fresh.fill(Qt::black);
    for (int y = 0; y < 64; ++y)
        for (int x = 32; x < 64; ++x)
            fresh.setPixel(x, y, qRgb(0, 255, 0));
    QImage onto;
    KTDrawTransition(KTTransitionStyle::Disintegrate, old, fresh, 0.5, onto);
    EXPECT_EQ(onto.copy(0, 0, 32, 64), old.copy(0, 0, 32, 64));
    EXPECT_EQ(onto.copy(32, 0, 32, 64), fresh.copy(32, 0, 32, 64));
}

TEST(TransitionsTest, PicturesThatAreNotAlikeChangeAtOnce) {
    const QImage small = picture({20, 10}, 0), large = picture({30, 10}, 0);
    const QImage transparent = small.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage onto;
    forEachStyle([&](KTTransitionStyle style) {
        for (const auto& [from, to] :
             {std::pair(small, large), {QImage(), small}, {small, transparent}, {small, QImage()}}) {
            KTDrawTransition(style, from, to, 0.5, onto);
            EXPECT_EQ(onto, to);
        }
    });
    KTDrawTransition(static_cast<KTTransitionStyle>(kTransitionStyles), small, small, 0.5, onto);
    EXPECT_EQ(onto, small);
    KTDrawTransition(KTTransitionStyle::Fade, large, large, 0.5, onto); // an image of another size
    EXPECT_EQ(onto.size(), large.size());
}
