#include "ui/datetools/CoverPictures.h"

#include "ui/photos/ThumbnailPainter.h"

#include <cmath>
#include <unordered_set>

namespace {

constexpr int kBeyond = 4;           // pictures kept on each side of those in view
constexpr double kEyeDistance = 2.4; // in widths of the largest picture

} // namespace

void CoverPictures::setLook(const CoverFlowGeometry& geometry, const QPalette& colours,
                            double devicePixelRatio) {
    covers.clear();
    box = geometry.box();
    palette = colours;
    ratio = devicePixelRatio;
}

void CoverPictures::wishAround(const Photos& photos, std::size_t front, int reach) {
    std::vector<KTThumbnailService::Wish> wishes;
    std::unordered_set<const KTPhoto*> near;
    const int edge = int(std::max(box.width(), box.height()) * ratio + 0.5);
    const auto count = std::ptrdiff_t(photos.size()), middle = std::ptrdiff_t(front);
    for (std::ptrdiff_t distance = 0; distance <= reach + kBeyond; ++distance)
        for (const std::ptrdiff_t index : {middle + distance, middle - distance})
            if (index >= 0 && index < count && near.insert(photos[std::size_t(index)].get()).second)
                wishes.push_back({photos[std::size_t(index)]->fileURL(), edge});
    service.setWishes(this, std::move(wishes));
    std::erase_if(covers, [&](const auto& each) { return !near.contains(each.first); });
}

bool CoverPictures::takeThumbnails() {
    return std::erase_if(covers, [&](const auto& each) {
               const auto now = thumbnailOf(*each.first);
               return now.image.size() != each.second.thumbnailSize || now.problem != each.second.problem;
           }) > 0;
}

void CoverPictures::beginFrame(double budget) {
    clock.start();
    timeOfFrame = budget;
    wasLate = false;
}

bool CoverPictures::isTimeLeft() {
    const bool isLeft = double(clock.nsecsElapsed()) < timeOfFrame * 1e6;
    wasLate |= !isLeft;
    return isLeft;
}

const StandingPicture::View* CoverPictures::view(const KTPhoto& photo,
                                                 const CoverFlowGeometry::Place& place) {
    auto found = covers.find(&photo);
    if (found == covers.end()) {
        if (!isTimeLeft())
            return nullptr;
        found = covers.emplace(&photo, makeCover(photo)).first;
    }
    Cover& cover = found->second;
    if (cover.turn != place.turn) {
        const bool isAtRest = std::abs(place.turn) == 1 || place.turn == 0;
        if (isAtRest && !isTimeLeft())
            return cover.view.image.isNull() ? nullptr : &cover.view; // as it was a moment ago
        cover.view = cover.standing.seen(place.turn, place.scale, int(std::round(box.height() * ratio / 2)),
                                         box.width() * ratio * kEyeDistance, isAtRest);
        cover.view.image.setDevicePixelRatio(ratio);
        cover.turn = place.turn;
    }
    return &cover.view;
}

KTThumbnailService::Thumbnail CoverPictures::thumbnailOf(const KTPhoto& photo) const {
    return service.thumbnail(photo.fileURL(), int(std::max(box.width(), box.height()) * ratio + 0.5));
}

CoverPictures::Cover CoverPictures::makeCover(const KTPhoto& photo) const {
    const auto thumbnail = thumbnailOf(photo);
    QImage board(box * ratio, QImage::Format_ARGB32_Premultiplied);
    board.setDevicePixelRatio(ratio);
    board.fill(palette.color(QPalette::Base));
    QPainter painter(&board);
    const QRect place = paintThumbnail(painter, service, photo.fileURL(), QRect(QPoint(), box), palette);
    painter.end();
    QImage picture = board.copy(
        QRectF(place.topLeft() * ratio, QSizeF(place.size()) * ratio).toAlignedRect() & board.rect());
    picture.setDevicePixelRatio(1);
    return {StandingPicture::of(picture), thumbnail.image.size(), thumbnail.problem, {}, 2};
}
