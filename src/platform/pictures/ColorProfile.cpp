#include "platform/pictures/ColorProfile.h"

#include "platform/pictures/PictureResizer.h"

#include <QColorSpace>
#include <lcms2.h>
#include <memory>

namespace {

struct Close {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct Delete {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, Close>;
using Transform = std::unique_ptr<void, Delete>;

} // namespace

bool convertPictureToSRGB(QImage& image, const QByteArray& bytes) {
    const Profile from(cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())));
    const Profile to(cmsCreate_sRGBProfile());
    if (!from || !to)
        return false;
    const bool isGrey = cmsGetColorSpace(from.get()) == cmsSigGrayData;
    if (isGrey ? !image.isGrayscale() : cmsGetColorSpace(from.get()) != cmsSigRgbData)
        return false;
    QImage result = opaquePicture(image).convertToFormat(QImage::Format_RGBX64);
    const QImage grey = isGrey ? image.convertToFormat(QImage::Format_Grayscale16) : QImage();
    const Transform transform(cmsCreateTransform(from.get(), isGrey ? TYPE_GRAY_16 : TYPE_RGBA_16, to.get(),
                                                 TYPE_RGBA_16, INTENT_PERCEPTUAL, 0));
    if (!transform || result.isNull())
        return false;
    for (int y = 0; y < result.height(); ++y)
        cmsDoTransform(transform.get(), isGrey ? grey.constScanLine(y) : result.constScanLine(y),
                       result.scanLine(y), cmsUInt32Number(result.width()));
    result.setColorSpace(QColorSpace::SRgb);
    image = result.convertToFormat(image.depth() <= 32 && image.format() != QImage::Format_Grayscale16
                                       ? QImage::Format_RGB32
                                       : QImage::Format_RGBX64);
    return true;
}
