#include "collection/KTArrangedPhotos.h"

#include <algorithm>

namespace {

KTArrangedPhotos::Ranked ranked(const KTArrangedPhotos::Photo& photo,
                                const std::vector<KTSortDescriptor>& descriptors) {
    KTArrangedPhotos::Ranked entry{photo, {}};
    for (const KTSortDescriptor& descriptor : descriptors)
        entry.ranks.push_back(photo->valueForKey(descriptor.key));
    return entry;
}

/// Whether one photo with its ranks comes before another.
auto byRank(const std::vector<KTSortDescriptor>& descriptors) {
    return [&descriptors](const KTArrangedPhotos::Ranked& left, const KTArrangedPhotos::Ranked& right) {
        for (std::size_t i = 0; i < descriptors.size(); ++i)
            if (const int sign = KTCompareForSorting(left.ranks[i], right.ranks[i]); sign != 0)
                return (sign < 0) == descriptors[i].isAscending;
        return false;
    };
}

} // namespace

bool KTArrangedPhotos::contains(const KTPhoto* photo) const {
    return present.contains(photo);
}

KTArrangedPhotos::Snapshot KTArrangedPhotos::photos() const {
    if (!loadedCopy)
        loadedCopy = std::make_shared<const Photos>(loaded);
    return loadedCopy;
}

KTArrangedPhotos::Snapshot KTArrangedPhotos::arranged() const {
    if (sorting.descriptors.empty())
        return photos();
    if (!arrangedCopy) {
        Photos copy;
        copy.reserve(sorting.order.size());
        for (const Ranked& entry : sorting.order)
            copy.push_back(entry.photo);
        arrangedCopy = std::make_shared<const Photos>(std::move(copy));
    }
    return arrangedCopy;
}

KTArrangedPhotos::Snapshot KTArrangedPhotos::selected() const {
    if (!selectedCopy) {
        Photos copy;
        if (!chosen.empty())
            std::ranges::copy_if(*arranged(), std::back_inserter(copy),
                                 [this](const Photo& photo) { return chosen.contains(photo.get()); });
        selectedCopy = std::make_shared<const Photos>(std::move(copy));
    }
    return selectedCopy;
}

KTArrangedPhotos::Photos KTArrangedPhotos::arrangedAt(const Indexes& indexes) const {
    Photos photos;
    for (const std::size_t index : indexes)
        if (index < loaded.size())
            photos.push_back(sorting.descriptors.empty() ? loaded[index] : sorting.order[index].photo);
    return photos;
}

void KTArrangedPhotos::forgetSnapshots() {
    loadedCopy = arrangedCopy = selectedCopy = nullptr;
}

void KTArrangedPhotos::insert(const Photo& photo, std::size_t index) {
    loaded.insert(loaded.begin() + static_cast<std::ptrdiff_t>(std::min(index, loaded.size())), photo);
    present.insert(photo.get());
    files.insert(photo->path());
    if (!sorting.descriptors.empty()) {
        Ranked entry = ranked(photo, sorting.descriptors);
        const auto place = std::ranges::upper_bound(sorting.order, entry, byRank(sorting.descriptors));
        sorting.order.insert(place, std::move(entry));
    }
    forgetSnapshots();
}

void KTArrangedPhotos::remove(const Indexes& indexes) {
    std::unordered_set<const KTPhoto*> leaving;
    for (std::size_t index : indexes)
        leaving.insert(loaded[index].get());
    auto leaves = [&](const Photo& photo) { return leaving.contains(photo.get()); };
    std::erase_if(sorting.order, [&](const Ranked& entry) { return leaves(entry.photo); });
    for (const KTPhoto* photo : leaving) {
        files.erase(files.find(photo->path()));
        present.erase(photo);
        chosen.erase(photo);
    }
    forgetSnapshots();
    std::erase_if(loaded, leaves); // last: this may end the photos' lives
}

void KTArrangedPhotos::replace(std::size_t index, const Photo& withPhoto) {
    remove({index});
    insert(withPhoto, index);
}

KTArrangedPhotos::Indexes KTArrangedPhotos::indexesOf(const Photos& wanted) const {
    std::unordered_set<const KTPhoto*> sought;
    for (const Photo& photo : wanted)
        if (contains(photo.get()))
            sought.insert(photo.get());
    Indexes indexes;
    for (std::size_t i = 0; i < loaded.size() && indexes.size() < sought.size(); ++i)
        if (sought.contains(loaded[i].get()))
            indexes.push_back(i);
    return indexes;
}

KTArrangedPhotos::Sorted KTArrangedPhotos::sorted(const Photos& photos,
                                                  std::vector<KTSortDescriptor> descriptors) {
    Sorted result{std::move(descriptors), {}};
    if (!result.descriptors.empty())
        for (const Photo& photo : photos)
            result.order.push_back(ranked(photo, result.descriptors));
    std::ranges::stable_sort(result.order, byRank(result.descriptors));
    return result;
}

void KTArrangedPhotos::adopt(Sorted order) {
    sorting = std::move(order);
    forgetSnapshots();
}

void KTArrangedPhotos::arrange(Photos newOrder) {
    loaded = std::move(newOrder);
    sort({});
}

void KTArrangedPhotos::move(const Indexes& indexes, std::size_t toIndex) {
    Photos block, before, after;
    std::size_t next = 0;
    for (std::size_t i = 0; i < loaded.size(); ++i) {
        const bool moves = next < indexes.size() && indexes[next] == i;
        next += moves ? 1 : 0;
        (moves ? block : i < toIndex ? before : after).push_back(loaded[i]);
    }
    before.insert(before.end(), block.begin(), block.end());
    before.insert(before.end(), after.begin(), after.end());
    loaded.swap(before);
    sort(sorting.descriptors);
}

void KTArrangedPhotos::select(const Photos& wanted) {
    chosen.clear();
    for (const Photo& photo : wanted)
        if (contains(photo.get()))
            chosen.insert(photo.get());
    selectedCopy = nullptr;
}

void KTArrangedPhotos::selectIndexes(const Indexes& arrangedIndexes) {
    const Snapshot shown = arranged();
    Photos wanted;
    for (std::size_t index : arrangedIndexes)
        if (index < shown->size())
            wanted.push_back((*shown)[index]);
    select(wanted);
}

KTArrangedPhotos::Indexes KTArrangedPhotos::selectedIndexes() const {
    Indexes indexes;
    if (chosen.empty())
        return indexes;
    const Snapshot shown = arranged();
    for (std::size_t i = 0; i < shown->size(); ++i)
        if (chosen.contains((*shown)[i].get()))
            indexes.push_back(i);
    return indexes;
}
