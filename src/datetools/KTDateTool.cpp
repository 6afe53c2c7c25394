#include "datetools/KTDateTool.h"

#include "collection/KTPhotoEditing.h"
#include "collection/SelectedPhotoObserver.h"
#include "platform/concurrency/KTMainThread.h"

#include <algorithm>
#include <ranges>

KTDateTool::KTDateTool(KTPhotoManager& collection)
    : manager(collection), self(std::make_shared<KTDateTool*>(this)) {}

KTDateTool::~KTDateTool() = default;

void KTDateTool::setup() {
    managerObservation = manager.observe([this](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == KTPhotoControllerDidWriteUnsavedChanges)
            photosWereSaved();
        else if (change.key == "photos")
            announcePreviews();
    });
    auto isDate = [](std::string_view key) {
        return key == "creationDate" || key == "dateTimeOriginalComponents" ||
               key == "dateTimeDigitizedComponents";
    };
    selection = std::make_unique<SelectedPhotoObserver>(
        manager, isDate,
        SelectedPhotoObserver::Handlers{[this](const Photos& selected) { follow(selected); },
                                        [this](const KTPhoto&, std::string_view) { announcePreviews(); }});
}

void KTDateTool::tearDown() {
    selection.reset();
    managerObservation.stop();
}

void KTDateTool::follow(const Photos& selected) {
    willChange("selectedPhotos");
    didChange("selectedPhotos");
    const auto front = std::ranges::find(selected, frontPhoto);
    const auto place = static_cast<std::size_t>(front - selected.begin());
    setCurrentImageIndex(front != selected.end() ? place : frontIndex.value_or(0));
    selectionDidChange();
}

void KTDateTool::setCurrentImageIndex(std::optional<std::size_t> index) {
    const Snapshot selected = selectedPhotos();
    willChange("currentImageIndex");
    frontIndex =
        index && !selected->empty() ? std::optional(std::min(*index, selected->size() - 1)) : std::nullopt;
    frontPhoto = frontIndex ? (*selected)[*frontIndex] : nullptr;
    didChange("currentImageIndex");
    announcePreviews();
}

std::vector<KTDatePreview> KTDateTool::previews() const {
    std::vector<KTDatePreview> result;
    auto add = [&](KTDatePreview::Place place, const Photo& photo) {
        result.push_back({place, photo, changesOf(*photo)});
        return !result.back().changes.empty();
    };
    if (frontPhoto)
        add(KTDatePreview::Place::Front, frontPhoto);
    const Snapshot photos = photosConcerned();
    auto addOneOf = [&](KTDatePreview::Place place, auto&& candidates) {
        for (const Photo& photo : candidates) {
            if (add(place, photo))
                return true;
            result.pop_back();
        }
        return false;
    };
    if (addOneOf(KTDatePreview::Place::First, *photos))
        addOneOf(KTDatePreview::Place::Last, std::views::reverse(*photos));
    return result;
}

void KTDateTool::announcePreviews() {
    if (std::exchange(isAnnouncementDue, true))
        return;
    KTPerformOnMainThread([weak = std::weak_ptr(self)] {
        const auto alive = weak.lock();
        if (!alive)
            return;
        (*alive)->isAnnouncementDue = false;
        (*alive)->willChange("previews");
        (*alive)->didChange("previews");
    });
}

void KTDateTool::editPhotos(std::string actionName, const std::function<void(KTPhoto&)>& change) {
    KTEditPhotos(manager, *photosConcerned(), std::move(actionName), change);
}
