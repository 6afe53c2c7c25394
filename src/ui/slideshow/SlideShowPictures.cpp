#include "ui/slideshow/SlideShowPictures.h"

#include "app/thumbnails/ThumbnailDecoder.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/pictures/PictureTurn.h"

#include <QColorSpace>
#include <QPointer>
#include <algorithm>

namespace {

constexpr std::size_t kAtATime = 2;

/// Any thread.
SlideShowPictures::Picture pictureOf(const std::filesystem::path& file, const QSize& frame) {
    DecodedPicture decoded = decodePicture(file, std::max(frame.width(), frame.height()));
    if (decoded.image.isNull())
        return {{}, QString::fromStdString(decoded.problem)};
    QImage image = turnedByFlip(decoded.image, pictureTurnBeyondDecoding(file));
    const QSize size = image.size().scaled(frame, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (size != image.size())
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb))
        image.convertToColorSpace(QColorSpace::SRgb);
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return {image, {}};
}

} // namespace

void SlideShowPictures::setWishes(std::vector<std::filesystem::path> files, const QSize& size) {
    if (size != frame)
        pictures.clear();
    frame = size;
    wishes = std::move(files);
    std::erase_if(pictures, [&](const auto& entry) { return std::ranges::count(wishes, entry.first) == 0; });
    begin();
}

const SlideShowPictures::Picture* SlideShowPictures::picture(const std::filesystem::path& file) const {
    const auto place = pictures.find(file);
    return place == pictures.end() ? nullptr : &place->second;
}

void SlideShowPictures::begin() {
    for (const std::filesystem::path& file : wishes) {
        if (underWay.size() >= kAtATime)
            return;
        const std::pair job(file, frame);
        if (pictures.contains(file) || std::ranges::count(underWay, job) != 0 || frame.isEmpty())
            continue;
        underWay.push_back(job);
        KTRunOnThreadPool([job, guard = QPointer(this)] {
            auto made = pictureOf(job.first, job.second);
            KTPerformOnMainThread([job, guard, made = std::move(made)]() mutable {
                if (guard)
                    guard->keep(job.first, job.second, std::move(made));
            });
        });
    }
}

void SlideShowPictures::keep(const std::filesystem::path& file, const QSize& size, Picture made) {
    std::erase(underWay, std::pair(file, size));
    const bool isWished = size == frame && std::ranges::count(wishes, file) != 0;
    if (isWished)
        pictures[file] = std::move(made);
    begin();
    if (isWished)
        emit arrived();
}
