#pragma once
#include "photo/KTPhoto.h"
#include "platform/common/KTSortDescriptor.h"

#include <unordered_set>

/// Photos in load order and, beside it, in the user's order, with a selection that belongs to photos, not to
/// places. The user's order is made when the descriptors are set and when a photo comes; an edit moves no
/// photo. A value without locks and announcements: its owner guards it. Photos are there once.
class KTArrangedPhotos {
public:
    using Photo = std::shared_ptr<KTPhoto>;
    using Photos = std::vector<Photo>;
    using Snapshot = std::shared_ptr<const Photos>;
    using Indexes = std::vector<std::size_t>; ///< ascending, each once

    // In load order
    std::size_t size() const { return loaded.size(); }
    /// Null where there is none.
    Photo at(std::size_t index) const { return index < loaded.size() ? loaded[index] : nullptr; }
    bool contains(const KTPhoto* photo) const;
    bool containsFile(const std::filesystem::path& file) const { return files.contains(file.string()); }
    /// A copy that never changes; made again only after a change.
    Snapshot photos() const;
    void insert(const Photo& photo, std::size_t index);
    /// Removed photos are no longer selected.
    void remove(const Indexes& indexes);
    void replace(std::size_t index, const Photo& withPhoto);
    /// Makes @p order, the same photos, the load order, and clears the sort.
    void arrange(Photos order);
    /// Moves the photos at @p indexes before the one at @p toIndex, as a block in their order.
    void move(const Indexes& indexes, std::size_t toIndex);
    /// Where these photos are in load order; those that are not there are left out.
    Indexes indexesOf(const Photos& wanted) const;

    // In the user's order
    struct Ranked {
        Photo photo;
        std::vector<KTValue> ranks; ///< the values of the sort descriptors' keys
    };
    /// Photos in the order of descriptors.
    struct Sorted {
        std::vector<KTSortDescriptor> descriptors;
        std::vector<Ranked> order; ///< empty while there are no descriptors
    };
    const std::vector<KTSortDescriptor>& sortDescriptors() const { return sorting.descriptors; }
    /// Photos of equal rank stay in load order; no descriptors give load order.
    void sort(std::vector<KTSortDescriptor> newDescriptors) {
        adopt(sorted(loaded, std::move(newDescriptors)));
    }
    /// The two halves of that: the order of some photos, found on any thread, and its becoming the user's,
    /// for which they must be those that are loaded.
    static Sorted sorted(const Photos& photos, std::vector<KTSortDescriptor> descriptors);
    void adopt(Sorted order);
    Snapshot arranged() const;
    /// Those at these places; cheaper than a snapshot for a few. Places that do not exist are left out.
    Photos arrangedAt(const Indexes& indexes) const;

    // Selection
    void select(const Photos& wanted); ///< exactly these, as far as they are there
    void selectIndexes(const Indexes& arrangedIndexes);
    bool hasSelection() const { return !chosen.empty(); }
    Indexes selectedIndexes() const; ///< in the user's order
    Snapshot selected() const;       ///< likewise

private:
    void forgetSnapshots();

    Photos loaded;
    std::unordered_set<const KTPhoto*> present, chosen; // loaded, selected
    std::unordered_multiset<std::string> files;         // of the loaded ones
    Sorted sorting;
    mutable Snapshot loadedCopy, arrangedCopy, selectedCopy;
};
