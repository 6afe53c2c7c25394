#include "collection/KTTagDetailsWindowController.h"

#include "collection/SelectedPhotoObserver.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"

#include <algorithm>

KTTagDetailsWindowController::KTTagDetailsWindowController(KTPhotoManager& collection)
    : manager(collection), self(std::make_shared<KTTagDetailsWindowController*>(this)) {}

KTTagDetailsWindowController::~KTTagDetailsWindowController() = default;

void KTTagDetailsWindowController::setup() {
    auto isDictionary = [](std::string_view key) { return key.ends_with("Dictionary"); };
    observer = std::make_unique<SelectedPhotoObserver>(
        manager, isDictionary,
        SelectedPhotoObserver::Handlers{[this](const auto&) { updateBindings(); },
                                        [this](const auto&, std::string_view) { updateBindings(); }});
}

void KTTagDetailsWindowController::tearDown() {
    observer.reset();
    updateBindings();
}

void KTTagDetailsWindowController::setMetadataSource(unsigned source) {
    if (source > KTMetadataSource::Library)
        return;
    willChange("metadataSource");
    shownSource = source;
    didChange("metadataSource");
    updateBindings();
}

void KTTagDetailsWindowController::setMetadataType(unsigned type) {
    if (type > 1)
        return;
    willChange("metadataType");
    shownType = type;
    didChange("metadataType");
    updateBindings();
}

void KTTagDetailsWindowController::showTagDetailsWindow() {
    setWindowVisible(true);
    updateBindings();
}

void KTTagDetailsWindowController::setWindowVisible(bool visible) {
    willChange("isWindowVisible");
    isVisible = visible;
    didChange("isWindowVisible");
}

/// A batch changes the selected photos one after the other; the rows are wanted once in a while only.
void KTTagDetailsWindowController::updateBindings() {
    if (std::exchange(isAnnouncementDue, true))
        return;
    KTPerformOnMainThread([weak = std::weak_ptr(self)] {
        const auto alive = weak.lock();
        if (!alive)
            return;
        (*alive)->isAnnouncementDue = false;
        (*alive)->willChange("rows");
        (*alive)->didChange("rows");
    });
}

std::vector<KTTagDetailsWindowController::Row> KTTagDetailsWindowController::rows() const {
    struct Tag {
        KTValue value;          // of the first photo that has it
        std::size_t photos = 0; // that have it with this value, of those seen up to the first that does not
    };
    if (!observer)
        return {};
    std::unordered_map<const std::string*, Tag> tags; // equal keys share one text
    const auto selected = manager.selectedPhotos();
    for (std::size_t i = 0; i < selected->size(); ++i) {
        const KTMetadataSource source = (*selected)[i]->source(KTMetadataSource::Kind(shownSource));
        for (const auto& [key, value] : shownType == 0 ? *source.saved : source.changes) {
            Tag& tag = tags.try_emplace(&key.text(), value).first->second;
            if (tag.photos == i && tag.value == value)
                ++tag.photos;
        }
    }
    std::vector<Row> result;
    for (const auto& [key, tag] : tags) {
        const bool isCommon = tag.photos == selected->size();
        result.push_back({*key, isCommon ? valueFormatter.stringForObjectValue(tag.value)
                                         : KTLocalizedString("Multiple Values")});
    }
    std::ranges::sort(result, {}, &Row::key);
    return result;
}
