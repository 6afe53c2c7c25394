#include "platform/pictures/PrintingColors.h"

#include <QColorSpace>
#include <csetjmp>
#include <cstdio>
#include <lcms2.h>
#include <memory>
#include <vector>

#include <jpeglib.h> // after cstdio, which it needs

namespace {

constexpr int kColors = 4;

/// The library ends the process on an error unless it is led out.
struct Errors {
    jpeg_error_mgr manager; // first, so that the library's pointer is one to this
    std::jmp_buf out;
};

[[noreturn]] void leave(j_common_ptr info) {
    std::longjmp(reinterpret_cast<Errors*>(info->err)->out, 1);
}

void keepSilent(j_common_ptr) {}

struct Stored {
    int width = 0, height = 0;
    bool isInverted = false; // 255 is no ink, as one large maker of software writes it
    std::vector<JSAMPLE> samples;
    JOCTET* profile = nullptr;
    unsigned profileLength = 0;

    ~Stored() { std::free(profile); }
};

/// Reads the file into @p into; whether it is one of four colours and sound. No object with a destructor
/// lives in this function, because errors jump out of it.
bool readStored(std::FILE* file, int eighths, Stored& into) {
    jpeg_decompress_struct info;
    Errors errors;
    info.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = leave;
    errors.manager.output_message = keepSilent;
    if (setjmp(errors.out) != 0) {
        jpeg_destroy_decompress(&info);
        return false;
    }
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_save_markers(&info, JPEG_APP0 + 2, 0xffff); // profiles
    jpeg_read_header(&info, TRUE);
    const bool isFourColors = info.num_components == kColors;
    if (isFourColors) {
        info.out_color_space = JCS_CMYK;
        info.scale_num = unsigned(eighths);
        info.scale_denom = 8;
        into.isInverted = info.saw_Adobe_marker != FALSE;
        jpeg_read_icc_profile(&info, &into.profile, &into.profileLength);
        jpeg_start_decompress(&info);
        into.width = int(info.output_width);
        into.height = int(info.output_height);
        const std::size_t row = std::size_t(into.width) * kColors;
        into.samples.resize(row * std::size_t(into.height));
        while (info.output_scanline < info.output_height) {
            JSAMPROW line = into.samples.data() + row * info.output_scanline;
            jpeg_read_scanlines(&info, &line, 1);
        }
        jpeg_finish_decompress(&info);
    }
    jpeg_destroy_decompress(&info);
    return isFourColors;
}

struct Close {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};

/// Null where there is no profile for four colours.
cmsHTRANSFORM transformOf(const Stored& stored) {
    const std::unique_ptr<void, Close> from(cmsOpenProfileFromMem(stored.profile, stored.profileLength));
    const std::unique_ptr<void, Close> to(cmsCreate_sRGBProfile());
    if (!from || !to || cmsGetColorSpace(from.get()) != cmsSigCmykData)
        return nullptr;
    return cmsCreateTransform(from.get(), stored.isInverted ? TYPE_CMYK_8_REV : TYPE_CMYK_8, to.get(),
                              TYPE_BGRA_8, INTENT_PERCEPTUAL, 0);
}

void convertByInk(const JSAMPLE* from, QRgb* to, int count, bool isInverted) {
    for (int x = 0; x < count; ++x, from += kColors) {
        const auto light = [&](int color) { return isInverted ? from[color] : 255 - from[color]; };
        const int black = light(3);
        to[x] = qRgb(light(0) * black / 255, light(1) * black / 255, light(2) * black / 255);
    }
}

} // namespace

QImage decodePrintingColors(const std::filesystem::path& path, int eighths) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    Stored stored;
    if (!file || !readStored(file.get(), eighths, stored))
        return {};
    QImage result(stored.width, stored.height, QImage::Format_RGB32);
    if (result.isNull())
        return {};
    result.fill(Qt::white); // the fourth byte stays as it is
    const cmsHTRANSFORM transform = transformOf(stored);
    for (int y = 0; y < stored.height; ++y) {
        const JSAMPLE* const from =
            stored.samples.data() + std::size_t(y) * std::size_t(stored.width) * kColors;
        if (transform != nullptr)
            cmsDoTransform(transform, from, result.scanLine(y), cmsUInt32Number(stored.width));
        else
            convertByInk(from, reinterpret_cast<QRgb*>(result.scanLine(y)), stored.width, stored.isInverted);
    }
    if (transform != nullptr)
        cmsDeleteTransform(transform);
    result.setColorSpace(QColorSpace::SRgb);
    return result;
}
