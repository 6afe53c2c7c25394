#include "platform/pictures/ColorProfile.h"
#include "platform/pictures/EmbeddedPreview.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureResizer.h"
#include "tests/support/TestSupport.h"

#include <QColorSpace>
#include <QFile>
#include <cmath>
#include <gtest/gtest.h>
#include <lcms2.h>

namespace {

QImage gradient(const QSize& size, QImage::Format format = QImage::Format_RGB32) {
    QImage image(size, QImage::Format_RGBA64);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y,
                                QColor::fromRgbF(float(x) / size.width(), float(y) / size.height(), 0.25f));
    return image.convertToFormat(format);
}

int largestDifference(const QImage& left, const QImage& right) {
    int largest = left.size() == right.size() ? 0 : 256;
    for (int y = 0; y < left.height() && largest < 256; ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QColor a = left.pixelColor(x, y), b = right.pixelColor(x, y);
            largest = std::max({largest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                std::abs(a.blue() - b.blue())});
        }
    return largest;
}

} // namespace

TEST(Pictures, FitIntoABoxInTheirOwnShape) {
    EXPECT_EQ(fittedPictureSize({4000, 3000}, {1000, 1000}), QSize(1000, 750));
    EXPECT_EQ(fittedPictureSize({3000, 4000}, {1000, 1000}), QSize(750, 1000));
    EXPECT_EQ(fittedPictureSize({400, 300}, {1000, 1000}), QSize(1000, 750)); // enlarged
    EXPECT_EQ(fittedPictureSize({4000, 3000}, {4000, 30}), QSize(40, 30));
    EXPECT_EQ(fittedPictureSize({30000, 3}, {100, 100}), QSize(100, 1)); // never nothing
}

TEST(Pictures, AreResizedAsTheyLook) {
    const QSize large(640, 480);
    for (const QSize size : {QSize(200, 150), QSize(639, 479), QSize(1000, 750)})
        for (const auto format : {QImage::Format_RGB32, QImage::Format_RGBX64, QImage::Format_RGB888})
            EXPECT_LE(largestDifference(resizedPicture(gradient(large, format), size), gradient(size)), 3)
                << size.width() << ' ' << format;

    // Single lines are averaged, not dropped; a flat picture stays flat to its edges.
    QImage lines(900, 4, QImage::Format_RGB32);
    for (int x = 0; x < 900; ++x)
        for (int y = 0; y < 4; ++y)
            lines.setPixelColor(x, y, x % 3 == 0 ? Qt::white : Qt::black);
    const QImage averaged = resizedPicture(lines, {100, 4});
    for (int x = 0; x < 100; ++x)
        EXPECT_NEAR(averaged.pixelColor(x, 2).red(), 85, 12) << x;
    QImage flat(50, 50, QImage::Format_RGB32);
    flat.fill(QColor(250, 128, 3));
    for (const QSize size : {QSize(7, 7), QSize(333, 91)}) {
        const QImage same = resizedPicture(flat, size);
        for (const QPoint at : {QPoint(0, 0), QPoint(size.width() - 1, size.height() - 1), QPoint(3, 3)})
            EXPECT_EQ(same.pixelColor(at), QColor(250, 128, 3));
    }
}

TEST(Pictures, KeepProfileAndGreyAndLoseTransparency) {
    QImage picture = gradient({64, 64});
    picture.setColorSpace(QColorSpace::AdobeRgb);
    EXPECT_EQ(resizedPicture(picture, {32, 32}).colorSpace(), QColorSpace(QColorSpace::AdobeRgb));
    for (const auto format : {QImage::Format_Grayscale8, QImage::Format_Grayscale16})
        EXPECT_EQ(resizedPicture(gradient({64, 64}, format), {32, 32}).format(), QImage::Format_Grayscale8);
    QImage clear(8, 8, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    clear.setPixelColor(3, 3, Qt::red);
    EXPECT_EQ(resizedPicture(clear, {8, 8}).pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(opaquePicture(clear).pixelColor(3, 3), QColor(Qt::red));
}

TEST(Pictures, AreDecodedUprightAndNoSmallerThanWanted) {
    const TemporaryFolder folder;
    const auto file = folder / "wide.jpg";
    ASSERT_TRUE(gradient({800, 400}).save(QString::fromStdString(file), "JPEG", 95));
    const WholePicture whole = decodePicture(file);
    EXPECT_EQ(whole.image.size(), QSize(800, 400));
    const WholePicture half = decodePicture(file, QSizeF(390, 390));
    EXPECT_EQ(half.size, QSize(800, 400));
    EXPECT_EQ(half.image.size(), QSize(400, 200)); // four eighths
    EXPECT_LE(largestDifference(half.image, gradient({400, 200})), 8);
    EXPECT_EQ(decodePicture(folder.file("x.jpg", "no picture")).image, QImage());
    EXPECT_NE(decodePicture(folder / "x.jpg").problem, "");
    EXPECT_NE(decodePicture(folder / "missing.jpg").problem, "");
    EXPECT_NE(decodePicture(folder.file("x.nef", "no picture")).problem, "");
}

TEST(Pictures, ColoursOfUnknownProfilesAreConverted) {
    const QColorSpace adobe(QColorSpace::AdobeRgb);
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.fill(QColor(100, 180, 60));
    QImage expected = picture;
    expected.setColorSpace(adobe);
    expected.convertToColorSpace(QColorSpace::SRgb);
    ASSERT_TRUE(convertPictureToSRGB(picture, adobe.iccProfile()));
    EXPECT_LE(largestDifference(picture, expected), 2);
    EXPECT_EQ(picture.colorSpace(), QColorSpace(QColorSpace::SRgb));

    QImage other = expected;
    EXPECT_FALSE(convertPictureToSRGB(other, "no profile"));
    cmsHPROFILE lab = cmsCreateLab2Profile(nullptr);
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(lab, nullptr, &length);
    QByteArray bytes(int(length), '\0');
    cmsSaveProfileToMem(lab, bytes.data(), &length);
    cmsCloseProfile(lab);
    EXPECT_FALSE(convertPictureToSRGB(other, bytes)); // of other colours than the picture's
    EXPECT_EQ(other, expected);
}

TEST(Pictures, PositionsInEmbeddedBlocksAreSeen) {
    const auto block = [](unsigned char tags, unsigned char tag) {
        QByteArray tiff("II*\0\x08\0\0\0\x01\0\x25\x88\x04\0\x01\0\0\0\x1a\0\0\0\0\0\0\0", 26);
        tiff +=
            QByteArray(1, char(tags)) + QByteArray(1, '\0') + QByteArray(1, char(tag)) + QByteArray(40, '\0');
        return tiff;
    };
    constexpr char kPicture[] =
        "\xff\xd8\xff\xe1..JFIF picture data and then a preview \xff\xd8\xff\xe1..Exif\0\0";
    const QByteArray picture(kPicture, sizeof kPicture - 1);
    EXPECT_TRUE(tellsPosition(picture + block(2, 0)));
    EXPECT_TRUE(tellsPosition(picture + block(1, 2)));
    EXPECT_TRUE(tellsPosition(block(2, 1)));
    EXPECT_FALSE(tellsPosition(picture + block(1, 0))); // the version alone
    EXPECT_FALSE(tellsPosition(picture + block(0, 0)));
    EXPECT_FALSE(tellsPosition(picture));
    QByteArray circle("II*\0\x08\0\0\0\0\0\x08\0\0\0", 14); // its next directory is itself
    EXPECT_FALSE(tellsPosition(circle));
}
