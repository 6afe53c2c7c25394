#include "ui/map/MapPointing.h"

#include "metadata/KTDateFormatters.h"
#include "photo/KTLinkablePoint.h"
#include "photo/KTLinkablePointBubble.h"
#include "platform/common/KTText.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

namespace {

constexpr std::size_t kNamesShown = 6;

QString instantText(const std::optional<KTInstant>& instant) {
    return instant ? QString::fromStdString(KTDateTimeFormatter().stringForObjectValue(*instant)) : QString();
}

MapHoverCard::Content describePoint(const std::shared_ptr<KTSpatialObject>& object) {
    const auto point = std::dynamic_pointer_cast<KTLinkablePoint>(object);
    if (!point)
        return {object.get(),
                {},
                QString::fromStdString(object->featureName()),
                QString::fromStdString(object->featureDescription())};
    auto bubble = KTLinkablePointBubble::of(*point);
    bubble.description = point->pointLongDescription(); // flags of many photos stand side by side
    return {point.get(),
            {},
            QString::fromStdString(bubble.title),
            QString::fromStdString(KTJoin(bubble.lines(), "\n"))};
}

MapHoverCard::Content describeTrack(const KTTrackLayer::Hit& hit) {
    QString text = instantText(hit.instant);
    if (hit.isInGap)
        text += (text.isEmpty() ? "" : "\n") + uiText("Nothing was recorded here.");
    return {hit.track.line.get(), {}, QString::fromStdString(hit.track.name), text};
}

} // namespace

MapHoverCard::Content MapPointing::contentAt(KTViewPoint point) {
    if (const auto mark = layers.photos().hitTest(point, map.viewState()))
        return describe(*mark);
    if (const auto flag = layers.points().hitTest(point, map.viewState()))
        return describePoint(flag->object);
    if (const auto track = layers.tracks().hitTest(point, map.viewState()))
        return describeTrack(*track);
    return {};
}

std::shared_ptr<KTPhoto> MapPointing::photoAt(KTViewPoint point) {
    const auto mark = layers.photos().hitTest(point, map.viewState());
    return mark && mark->kind == KTPhotoLayers::Mark::Kind::Photo
               ? std::dynamic_pointer_cast<KTPhoto>(layers.photos().objectsOf(*mark).front())
               : nullptr;
}

MapHoverCard::Content MapPointing::describe(const KTPhoto& photo) {
    return {&photo, photo.fileURL(), uiPath(photo.filename()), instantText(photo.dateTimeOriginal())};
}

MapHoverCard::Content MapPointing::describe(const KTPhotoLayers::Mark& mark) {
    const auto objects = layers.photos().objectsOf(mark);
    const auto* const first = dynamic_cast<const KTPhoto*>(objects.front().get());
    if (objects.size() == 1 && first != nullptr)
        return describe(*first);
    QStringList names;
    for (std::size_t i = 0; i < std::min(objects.size(), kNamesShown); ++i)
        names << QString::fromStdString(objects[i]->featureName());
    if (objects.size() > kNamesShown)
        names << "…";
    return {objects.front().get(),
            {},
            mark.kind == KTPhotoLayers::Mark::Kind::Stack
                ? uiCount("1 photo at one place", "%d photos at one place", objects.size())
                : uiCount("1 photo near here", "%d photos near here", objects.size()),
            names.join('\n')};
}
