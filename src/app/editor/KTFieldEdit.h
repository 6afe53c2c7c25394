#pragma once
#include "collection/KTPhotoManager.h"

/// An edit of one or more fields of the photos that were selected when it began, while it is being typed.
/// Where they are few, every photo shows each state of it at once; it becomes one undo step when it is
/// committed, and nothing is left of it when it is cancelled. Main thread, not from code run by an
/// announcement.
class KTFieldEdit {
public:
    using Snapshot = KTPhotoManager::Snapshot;
    /// The values that a photo is to get, by key; a key that is left out stays as it is.
    using Values = std::function<KTValue::Dictionary(const KTPhoto& photo)>;

    /// @p collection must outlive the object. @p isShownAtOnce lets photos show what is typed.
    KTFieldEdit(KTPhotoManager& collection, Snapshot selected, std::string actionName, bool isShownAtOnce);

    /// What has been typed so far.
    void update(Values newValues);
    /// Back to what it was when nothing had been typed.
    void reset();
    /// Makes the edit of those photos that are still loaded and have other values. Without any update it does
    /// nothing.
    void commit();
    void cancel() { reset(); }

private:
    void show(std::size_t photo, const KTValue::Dictionary& newValues);

    KTPhotoManager& manager;
    const Snapshot photos;
    const std::string undoName;
    const bool isShown;
    Values values;                           // null before the first update
    std::vector<KTValue::Dictionary> before; // of each photo whose values are shown
};
