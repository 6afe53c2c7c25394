#include "app/thumbnails/ThumbnailDecoder.h"
#include "platform/pictures/EmbeddedPreview.h"
#include "tests/support/TestPhotos.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>

namespace {

/// Wide, its left third red, the rest blue.
QImage wideImage(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width / 3; ++x)
            image.setPixelColor(x, y, Qt::red);
    return image;
}

QByteArray jpegOf(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 95);
    return buffer.data();
}

bool isReddish(QColor colour) {
    return colour.red() > 150 && colour.blue() < 100;
}

QByteArray number(unsigned value, int size) {
    QByteArray result;
    for (int i = 0; i < size; ++i)
        result += char(value >> (8 * i));
    return result;
}

QByteArray entry(unsigned tag, unsigned type, unsigned value) {
    return number(tag, 2) + number(type, 2) + number(1, 4) + number(value, 4);
}

/// @p picture with an EXIF block that says how it is turned and holds @p preview.
QByteArray withPreview(const QByteArray& picture, unsigned orientation, const QByteArray& preview) {
    QByteArray tiff = "II" + number(42, 2) + number(8, 4);
    tiff += number(1, 2) + entry(0x0112, 3, orientation) + number(26, 4);
    tiff += number(2, 2) + entry(0x0201, 4, 56) + entry(0x0202, 4, unsigned(preview.size())) + number(0, 4);
    tiff += preview;
    const QByteArray block = QByteArray("Exif\0\0", 6) + tiff;
    QByteArray length;
    length += char((block.size() + 2) >> 8);
    length += char(block.size() + 2);
    return picture.left(2) + "\xff\xe1" + length + block + picture.mid(2);
}

TEST(Thumbnails, AreTurnedAsThePhotoSaysWithAndWithoutPreview) {
    const TemporaryFolder folder;
    const QByteArray picture = jpegOf(wideImage(600, 400));
    const struct {
        unsigned orientation;
        bool isUpright;
        double redX, redY; // where red is, as a part of width and height
    } cases[] = {{1, false, 0.1, 0.5}, {2, false, 0.9, 0.5}, {3, false, 0.9, 0.5}, {4, false, 0.1, 0.5},
                 {5, true, 0.5, 0.1},  {6, true, 0.5, 0.1},  {7, true, 0.5, 0.9},  {8, true, 0.5, 0.9}};
    for (const auto& each : cases)
        for (const bool hasPreview : {true, false}) {
            const QByteArray preview = jpegOf(wideImage(150, 100));
            const QByteArray content = withPreview(picture, each.orientation, hasPreview ? preview : "none");
            const auto file = folder.file("a.jpg", {content.data(), std::size_t(content.size())});
            const DecodedPicture made = decodeThumbnail(file, ThumbnailSize::Normal);
            ASSERT_FALSE(made.image.isNull()) << made.problem;
            EXPECT_EQ(made.image.height() > made.image.width(), each.isUpright) << each.orientation;
            EXPECT_EQ(std::max(made.image.width(), made.image.height()), 128);
            const QColor colour = made.image.pixelColor(int(each.redX * made.image.width()),
                                                        int(each.redY * made.image.height()));
            EXPECT_TRUE(isReddish(colour)) << each.orientation << hasPreview;
        }
}

TEST(Thumbnails, TakeAPreviewOnlyWhereItIsLargeEnoughAndShowsTheWholePicture) {
    const TemporaryFolder folder;
    QImage green(150, 100, QImage::Format_RGB32), withBars(160, 120, QImage::Format_RGB32);
    green.fill(Qt::green);
    withBars.fill(Qt::green);
    auto isPreviewTaken = [&](const QImage& preview, ThumbnailSize size) {
        const QByteArray content = withPreview(jpegOf(wideImage(600, 400)), 1, jpegOf(preview));
        const auto file = folder.file("a.jpg", {content.data(), std::size_t(content.size())});
        return decodeThumbnail(file, size).image.pixelColor(60, 40).green() > 200;
    };
    EXPECT_TRUE(isPreviewTaken(green, ThumbnailSize::Normal));
    EXPECT_FALSE(isPreviewTaken(green, ThumbnailSize::Large));
    EXPECT_FALSE(isPreviewTaken(withBars, ThumbnailSize::Normal));
}

TEST(Thumbnails, OfBrokenFilesHaveAReason) {
    const TemporaryFolder folder;
    const QByteArray whole = withPreview(jpegOf(wideImage(600, 400)), 6, jpegOf(wideImage(150, 100)));
    const std::string text(whole.data(), std::size_t(whole.size()));
    for (std::size_t length : {0, 1, 3, 12, 40, 60, 90})
        EXPECT_FALSE(decodeThumbnail(folder.file("a.jpg", text.substr(0, length)), ThumbnailSize::Normal)
                         .problem.empty());
    for (std::size_t at = 0; at < 80; ++at) { // must not read outside its bytes
        std::string damaged = text;
        damaged[at] = char(0xff);
        decodeThumbnail(folder.file("a.jpg", damaged), ThumbnailSize::Normal);
    }
    EXPECT_FALSE(decodeThumbnail(folder.file("a.nef", "no raw file"), ThumbnailSize::Normal).problem.empty());
    EXPECT_FALSE(decodeThumbnail(folder / "missing.png", ThumbnailSize::Normal).problem.empty());
}

TEST(Thumbnails, SmallPicturesAreNotMadeLarger) {
    const TemporaryFolder folder;
    EXPECT_EQ(decodeThumbnail(makePhoto(folder, "a.jpg"), ThumbnailSize::Normal).image.size(), QSize(16, 12));
}

} // namespace
