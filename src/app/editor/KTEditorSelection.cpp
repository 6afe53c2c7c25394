#include "app/editor/KTEditorSelection.h"

#include "app/editor/KTListEditing.h"
#include "collection/SelectedPhotoObserver.h"
#include "photo/KTPhotoPropertyTable.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTMainThread.h"

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds kSearchTime{2}; // for one field, in one turn of the event loop

bool isRecord(std::string_view key) { // of what a save must write
    return key.ends_with("ChangesDictionary") || key == "hasUnsavedChanges";
}

bool isFollowed(std::string_view key) {
    const KTPhotoProperty* property = KTPhotoPropertyTable::propertyForKey(key);
    return property != nullptr && (property->field != nullptr || isRecord(key));
}

/// Nothing, in the words of one field or another.
bool isNothing(const KTValue& value) {
    static const KTValue noCopyrightStatus = " ";
    return KTIsSameValue(value, {}) || value == noCopyrightStatus;
}

} // namespace

KTEditorSelection::KTEditorSelection(KTPhotoManager& collection)
    : manager(collection), self(std::make_shared<KTEditorSelection*>(this)) {
    observer = std::make_unique<SelectedPhotoObserver>(
        manager, isFollowed,
        SelectedPhotoObserver::Handlers{
            [this](const Photos&) { didSelect(); },
            [this](const KTPhoto&, std::string_view key) { photoDidChange(key); }});
}

KTEditorSelection::~KTEditorSelection() = default;

/// The edit under way belongs to the photos that were selected before.
void KTEditorSelection::didSelect() {
    known.clear();
    unsaved.reset();
    commitPendingEdit();
    willChange("photos");
    didChange("photos");
}

void KTEditorSelection::photoDidChange(std::string_view key) {
    if (isRecord(key)) {
        unsaved.reset();
        for (auto& [field, knowledge] : known)
            knowledge.unsavedEdit = {};
    } else {
        if (const auto entry = known.find(key); entry != known.end()) {
            entry->second.value.reset();
            entry->second.list.reset();
        }
        if (!changedKeys.contains(key))
            changedKeys.emplace(key);
    }
    announceSoon();
}

/// A command may change thousands of photos one after the other.
void KTEditorSelection::announceSoon() const {
    if (std::exchange(isAnnouncementDue, true))
        return;
    KTPerformOnMainThread([weak = std::weak_ptr(self)] {
        if (const auto alive = weak.lock())
            (*alive)->announce();
    });
}

void KTEditorSelection::announce() {
    isAnnouncementDue = false;
    for (const std::string& key : std::exchange(changedKeys, {})) {
        willChange(key);
        didChange(key);
    }
    willChange("hasUnsavedEdits");
    didChange("hasUnsavedEdits");
}

const KTSelectedValue& KTEditorSelection::valueForKey(const std::string& key) const {
    auto& value = known[key].value;
    if (!value)
        value = commonValue(key);
    return *value;
}

KTSelectedValue KTEditorSelection::commonValue(const std::string& key) const {
    using State = KTSelectedValue::State;
    const Snapshot selected = photos();
    if (selected->empty())
        return {};
    const KTValue first = selected->front()->valueForKey(key);
    const bool isAbsent = isNothing(first);
    const bool isCommon = std::all_of(selected->begin() + 1, selected->end(), [&](const auto& photo) {
        const KTValue value = photo->valueForKey(key);
        return isAbsent ? isNothing(value) : KTIsSameValue(value, first);
    });
    if (!isCommon)
        return {State::Mixed, {}};
    return isAbsent ? KTSelectedValue{State::Absent, {}} : KTSelectedValue{State::Equal, first};
}

const std::vector<std::string>& KTEditorSelection::commonValuesForKey(const std::string& key) const {
    auto& list = known[key].list;
    if (list)
        return *list;
    list.emplace();
    bool isFirst = true;
    const Snapshot selected = photos();
    for (const auto& photo : *selected) {
        const KTValue value = photo->valueForKey(key);
        if (std::exchange(isFirst, false))
            list = value.texts();
        else
            KTListEditing::keepCommonValues(*list, value.texts());
        if (list->empty())
            break;
    }
    return *list;
}

const KTEditorSelection::Photos& KTEditorSelection::unsavedPhotos() const {
    if (!unsaved) {
        unsaved.emplace();
        const Snapshot selected = photos();
        std::ranges::copy_if(*selected, std::back_inserter(*unsaved),
                             [](const auto& photo) { return photo->hasUnsavedChanges(); });
    }
    return *unsaved;
}

/// Goes on searching where the last call ended; what the announcement leads to is the next call.
bool KTEditorSelection::hasUnsavedEdit(const std::string& key) const {
    Search& search = known[key].unsavedEdit;
    const Photos& candidates = unsavedPhotos();
    const auto begin = std::chrono::steady_clock::now();
    for (; !search.isFound && search.next < candidates.size(); ++search.next) {
        const KTPhoto& photo = *candidates[search.next];
        search.isFound = !KTIsSameValue(photo.valueForKey(key), photo.savedPropertyWithKey(key));
        if (search.next % 64 == 63 && std::chrono::steady_clock::now() - begin > kSearchTime) {
            announceSoon();
            break;
        }
    }
    return search.isFound;
}

void KTEditorSelection::beginEdit(PendingEdit edit) {
    commitPendingEdit();
    setPending(std::move(edit));
}

std::optional<KTEditorSelection::PendingEdit> KTEditorSelection::setPending(std::optional<PendingEdit> edit) {
    willChange("hasPendingEdit");
    auto old = std::exchange(pending, std::move(edit));
    didChange("hasPendingEdit");
    return old;
}

/// Announcements may not wait for the undo queue: from there, as when a sheet comes up and takes the keyboard
/// away, the edit is done in a turn of its own.
void KTEditorSelection::endEdit(bool isCommitted) {
    if (!pending)
        return;
    const PendingEdit edit = *setPending(std::nullopt);
    if (!isCommitted)
        edit.cancel();
    else if (KTCallout::isUnderWay())
        KTPerformOnMainThread(edit.commit);
    else
        edit.commit();
    edit.didEnd();
}
