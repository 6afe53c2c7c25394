#include "platform/pictures/RawPicture.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/pictures/PictureTurn.h"

#include <QColorSpace>
#include <algorithm>
#include <libraw/libraw.h>
#include <memory>

namespace {

constexpr std::string_view kRawExtensions[] = {"arw", "cr2", "cs1", "crw", "dng", "erf", "iiq",
                                               "mef", "mos", "mrw", "nef", "nrw", "orf", "pef",
                                               "raf", "raw", "rw2", "rwl", "sr2"};

struct Release {
    void operator()(libraw_processed_image_t* image) const { LibRaw::dcraw_clear_mem(image); }
};
using ProcessedImage = std::unique_ptr<libraw_processed_image_t, Release>;

QImage imageFrom(const libraw_processed_image_t* made) {
    if (made == nullptr)
        return {};
    if (made->type == LIBRAW_IMAGE_JPEG)
        return QImage::fromData(made->data, int(made->data_size), "JPEG");
    if (made->colors != 3 || made->bits != 8)
        return {};
    return QImage(made->data, made->width, made->height, made->width * 3, QImage::Format_RGB888).copy();
}

bool isUpright(const QSize& size) {
    return size.height() > size.width();
}

/// The embedded preview. Some cameras store it as it is to be seen, most as the sensor saw it.
QImage embedded(LibRaw& raw) {
    if (raw.unpack_thumb() != LIBRAW_SUCCESS)
        return {};
    const QImage image = imageFrom(ProcessedImage(raw.dcraw_make_mem_thumb()).get());
    const auto& sizes = raw.imgdata.sizes;
    const bool isTurnedAlready =
        (sizes.flip & 4) != 0 && isUpright(image.size()) != isUpright({sizes.iwidth, sizes.iheight}) &&
        isUpright({sizes.width, sizes.height}) == isUpright({sizes.iwidth, sizes.iheight});
    return isTurnedAlready ? image : turnedByFlip(image, sizes.flip);
}

int sensorEdge(const LibRaw& raw) {
    return std::max(raw.imgdata.sizes.width, raw.imgdata.sizes.height);
}

/// At half the size where that suffices for @p edge pixels, which is several times as quick.
QImage developed(LibRaw& raw, int edge) {
    raw.imgdata.params.half_size = sensorEdge(raw) / 2 >= edge;
    raw.imgdata.params.use_camera_wb = 1;
    raw.imgdata.params.output_bps = 8;
    if (raw.unpack() != LIBRAW_SUCCESS || raw.dcraw_process() != LIBRAW_SUCCESS)
        return {};
    QImage image = imageFrom(ProcessedImage(raw.dcraw_make_mem_image()).get()); // turned by the library
    image.setColorSpace(QColorSpace::SRgb);
    return image;
}

/// The picture and, where it is not large enough, the camera's one.
std::pair<DecodedPicture, QImage> picturesOf(const std::filesystem::path& file, int edge) {
    const auto raw = std::make_unique<LibRaw>(); // large
    if (const int error = raw->open_file(file.c_str()); error != LIBRAW_SUCCESS)
        return {{{}, libraw_strerror(error)}, {}};
    const QImage preview = embedded(*raw);
    // The camera's picture lacks some pixels at the edges that the raw data have.
    const int enough = std::min(edge, int(sensorEdge(*raw) * 0.95));
    if (!preview.isNull() && std::max(preview.width(), preview.height()) >= enough)
        return {{preview, {}}, {}};
    const QImage large = developed(*raw, edge);
    if (large.isNull())
        return {{{}, KTLocalizedString("The file holds no picture that can be shown.")}, preview};
    return {{large, {}}, {}};
}

} // namespace

bool isRawFileName(const std::filesystem::path& file) {
    const std::string extension = KTLowercase(file.extension().string());
    return !extension.empty() &&
           std::ranges::count(kRawExtensions, std::string_view(extension).substr(1)) != 0;
}

int flipOfRawFile(const std::filesystem::path& file) {
    const auto raw = std::make_unique<LibRaw>();
    return raw->open_file(file.c_str()) == LIBRAW_SUCCESS ? raw->imgdata.sizes.flip : 0;
}

DecodedPicture pictureOfRawFile(const std::filesystem::path& file, int edge) {
    return picturesOf(file, edge).first;
}

DecodedPicture previewOfRawFile(const std::filesystem::path& file, int edge) {
    auto [picture, smaller] = picturesOf(file, edge);
    return smaller.isNull() ? picture : DecodedPicture{smaller, {}};
}
