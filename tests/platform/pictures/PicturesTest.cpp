#include "platform/pictures/ColorProfile.h"
#include "platform/pictures/EmbeddedPreview.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureResizer.h"
#include "platform/pictures/PictureTurn.h"
#include "tests/support/TestSupport.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <cmath>
#include <gtest/gtest.h>
#include <lcms2.h>

#include <jpeglib.h> // after what it needs

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

QByteArray bytesOf(cmsHPROFILE profile) {
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(int(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsCloseProfile(profile);
    return bytes;
}

/// A profile for four inks of which the first alone darkens, to grey.
QByteArray profileOfGreyInk() {
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.1);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
    cmsStage* const table = cmsStageAllocCLut16bit(nullptr, 2, 4, 3, nullptr);
    const auto sampler = [](const cmsUInt16Number from[], cmsUInt16Number to[], void*) -> cmsInt32Number {
        const cmsCIELab colour = {100 - 100 * (from[0] / 65535.0), 0, 0};
        cmsFloat2LabEncodedV2(to, &colour);
        return TRUE;
    };
    cmsStageSampleCLut16bit(table, sampler, nullptr, 0);
    cmsPipeline* const lut = cmsPipelineAlloc(nullptr, 4, 3);
    cmsPipelineInsertStage(lut, cmsAT_END, table);
    cmsWriteTag(profile, cmsSigAToB0Tag, lut);
    cmsPipelineFree(lut);
    return bytesOf(profile);
}

/// A JPEG file whose first ink covers half of the paper and the others nothing of it.
std::string halfInkJPEG(bool isInverted, const QByteArray& profile) {
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* made = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&info, &made, &length);
    info.image_width = 64;
    info.image_height = 32;
    info.input_components = 4;
    info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 100, TRUE);
    info.write_Adobe_marker = boolean(isInverted);
    jpeg_start_compress(&info, TRUE);
    if (!profile.isEmpty())
        jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET*>(profile.constData()),
                               unsigned(profile.size()));
    std::vector<JSAMPLE> line;
    for (int x = 0; x < 64; ++x)
        for (int ink : {128, 0, 0, 0})
            line.push_back(JSAMPLE(isInverted ? 255 - ink : ink));
    while (info.next_scanline < info.image_height) {
        JSAMPROW row = line.data();
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    std::string result(reinterpret_cast<char*>(made), length);
    std::free(made);
    return result;
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

TEST(Pictures, AreTurnedOnceByTheSidecarElseByTheFile) {
    const TemporaryFolder folder;
    const QImage stored = gradient({64, 32});
    QByteArray plain;
    QBuffer buffer(&plain);
    ASSERT_TRUE(stored.save(&buffer, "JPEG", 100));
    for (int own = 1; own <= 8; ++own) {
        QByteArray block("\xff\xe1\0\x22"
                         "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\0\0\0\0\0\0\0\0",
                         36);
        block[28] = char(own);
        QByteArray content = plain;
        content.insert(2, block);
        const auto file = folder.file("a.jpg", {content.data(), std::size_t(content.size())});
        for (int beside = 0; beside <= 8; ++beside) {
            const std::string number = std::to_string(beside);
            folder.file("a.xmp", beside == 0  ? "<rdf:Description tiff:Make='x'/>"
                                 : beside % 2 ? "<tiff:Orientation>" + number + "</tiff:Orientation>"
                                              : "<rdf:Description tiff:Orientation=\"" + number + "\"/>");
            const QImage expected = turnedByFlip(stored, flipOfOrientation(beside == 0 ? own : beside));
            const WholePicture whole = decodePicture(file);
            EXPECT_LE(largestDifference(whole.image, expected), 12) << own << ' ' << beside;
            EXPECT_EQ(whole.size, expected.size());
            const WholePicture part = decodePicture(file, QSizeF(expected.size()) / 2);
            EXPECT_EQ(part.image.size(), expected.size() / 2) << own << ' ' << beside;
        }
    }
    for (int flip = 0; flip < 8; ++flip)
        EXPECT_EQ(largestDifference(turnedByFlip(turnedByFlip(stored, flip), inverseFlip(flip)), stored), 0)
            << flip;
}

TEST(Pictures, OfPrintingColoursBecomeSRGBByTheirProfile) {
    const TemporaryFolder folder;
    for (const bool isInverted : {false, true}) {
        const auto plain = decodePicture(folder.file("a.jpg", halfInkJPEG(isInverted, {}))).image;
        ASSERT_EQ(plain.size(), QSize(64, 32));
        EXPECT_NEAR(plain.pixelColor(5, 5).red(), 127, 3); // what the ink leaves
        EXPECT_NEAR(plain.pixelColor(5, 5).blue(), 255, 3);
        const auto file = folder.file("b.jpg", halfInkJPEG(isInverted, profileOfGreyInk()));
        const auto grey = decodePicture(file, QSizeF(32, 32)).image;
        ASSERT_EQ(grey.size(), QSize(32, 16));
        for (const int part : {grey.pixelColor(5, 5).red(), grey.pixelColor(5, 5).blue()})
            EXPECT_NEAR(part, 119, 4); // the grey of half the lightness
        EXPECT_EQ(grey.colorSpace(), QColorSpace(QColorSpace::SRgb));
        const auto content = halfInkJPEG(isInverted, {});
        decodePicture(folder.file("c.jpg", content.substr(0, content.size() / 2))); // ends well
    }
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
    EXPECT_FALSE(convertPictureToSRGB(
        other, bytesOf(cmsCreateLab2Profile(nullptr)))); // of other colours than the picture's
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
