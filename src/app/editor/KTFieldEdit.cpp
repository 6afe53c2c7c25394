#include "app/editor/KTFieldEdit.h"

#include "collection/KTPhotoEditing.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTCallContext.h"

#include <algorithm>

namespace {

/// More take longer than the pause between two keys of a fast typist.
constexpr std::size_t kPhotosShownAtOnce = 100;

bool hasOtherValues(const KTPhoto& photo, const KTValue::Dictionary& values) {
    return std::ranges::any_of(values, [&](const auto& entry) {
        return !KTIsSameValue(photo.valueForKey(entry.first), entry.second);
    });
}

} // namespace

KTFieldEdit::KTFieldEdit(KTPhotoManager& collection, Snapshot selected, std::string actionName,
                         bool isShownAtOnce)
    : manager(collection), photos(std::move(selected)), undoName(std::move(actionName)),
      isShown(isShownAtOnce && photos->size() <= kPhotosShownAtOnce) {}

/// The way back is registered by commit alone.
void KTFieldEdit::show(std::size_t photo, const KTValue::Dictionary& newValues) {
    KTPhoto& shown = *(*photos)[photo];
    const KTCallMark untracked(&shown);
    for (const auto& [key, value] : newValues)
        shown.setValueForKey(key, value);
}

void KTFieldEdit::update(Values newValues) {
    values = std::move(newValues);
    if (!isShown)
        return;
    const bool isFirst = before.empty();
    before.resize(photos->size());
    for (std::size_t i = 0; i < photos->size(); ++i) {
        const KTValue::Dictionary typed = values(*(*photos)[i]);
        if (isFirst)
            for (const auto& [key, value] : typed)
                before[i].emplace(key, (*photos)[i]->valueForKey(key));
        show(i, typed);
    }
}

void KTFieldEdit::reset() {
    values = nullptr;
    for (std::size_t i = 0; i < before.size(); ++i)
        show(i, before[i]);
    before.clear();
}

void KTFieldEdit::commit() {
    const Values typed = values;
    if (!typed)
        return;
    reset();
    std::unordered_set<const KTPhoto*> loaded;
    const Snapshot all = manager.photos();
    for (const auto& photo : *all)
        loaded.insert(photo.get());
    KTPhotoManager::Photos edited;
    std::vector<KTValue::Dictionary> valuesOfEdited;
    for (const auto& photo : *photos) {
        if (!loaded.contains(photo.get()))
            continue;
        KTValue::Dictionary newValues = typed(*photo);
        if (!hasOtherValues(*photo, newValues))
            continue;
        edited.push_back(photo);
        valuesOfEdited.push_back(std::move(newValues));
    }
    if (edited.empty())
        return;
    KTEditPhotos(manager, edited, undoName, [&, next = std::size_t(0)](KTPhoto& photo) mutable {
        const KTValue::Dictionary& newValues = valuesOfEdited[next++];
        if (newValues.size() > 1)
            photo.setValuesForKeysWithDictionary(newValues, undoName);
        else
            for (const auto& [key, value] : newValues)
                photo.setValueForKey(key, value);
    });
}
