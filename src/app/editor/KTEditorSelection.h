#pragma once
#include "collection/KTPhotoManager.h"

#include <set>

class SelectedPhotoObserver;

/// What the selected photos have as one property.
struct KTSelectedValue {
    enum class State {
        NoSelection,
        Absent, ///< all photos lack it
        Equal,  ///< all have the same
        Mixed,  ///< photos differ, or some lack it
    };

    State state = State::NoSelection;
    KTValue value; ///< of State::Equal
};

/// The selected photos as the metadata editor sees them: the values that they share, and the one edit that is
/// under way.
///
/// Announces "photos" when others are selected, and, once a turn of the event loop, the key of each field
/// whose value changed and "hasUnsavedEdits"; "hasPendingEdit" at once. Values are found at the first call
/// after a change, in some milliseconds for 20,000 photos that agree; the second photo that differs ends the
/// search. Main thread.
class KTEditorSelection : public KTObservable {
public:
    using Photos = KTPhotoManager::Photos;
    using Snapshot = KTPhotoManager::Snapshot;

    /// @p collection must outlive the object.
    explicit KTEditorSelection(KTPhotoManager& collection);
    ~KTEditorSelection() override;

    KTPhotoManager& photoManager() const { return manager; }
    Snapshot photos() const { return manager.selectedPhotos(); }
    const KTSelectedValue& valueForKey(const std::string& key) const;
    /// The elements that the lists of all of them hold, in the order of the first photo's; empty for a field
    /// that is no list.
    const std::vector<std::string>& commonValuesForKey(const std::string& key) const;
    /// Whether some selected photo has another value than its files hold. Where that takes longer than some
    /// milliseconds, the answer is no until it is found, which is announced.
    bool hasUnsavedEdit(const std::string& key) const;

    /// What was typed and is not yet done.
    struct PendingEdit {
        const void* owner = nullptr;  ///< who began it
        std::function<void()> commit; ///< does it, to the photos that were selected when it began
        std::function<void()> cancel; ///< gives it up
        std::function<void()> didEnd; ///< tells the owner, after either
    };
    /// Commits the pending edit, if any, and begins another one.
    void beginEdit(PendingEdit edit);
    bool hasPendingEdit(const void* owner) const { return pending && pending->owner == owner; }
    bool hasPendingEdit() const { return pending.has_value(); }
    /// To be called before whatever works on the photos or ends the editor. Called from code run by an
    /// announcement, the photos are changed soon after.
    void commitPendingEdit() { endEdit(true); }
    void cancelPendingEdit() { endEdit(false); }

private:
    /// For a photo, among the unsaved ones.
    struct Search {
        std::size_t next = 0;
        bool isFound = false;
    };
    struct Known {
        std::optional<KTSelectedValue> value;
        std::optional<std::vector<std::string>> list;
        Search unsavedEdit;
    };

    void didSelect();
    void photoDidChange(std::string_view key);
    void announceSoon() const;
    void announce();
    std::optional<PendingEdit> setPending(std::optional<PendingEdit> edit); // the former one
    void endEdit(bool isCommitted);
    const Photos& unsavedPhotos() const;
    KTSelectedValue commonValue(const std::string& key) const;

    KTPhotoManager& manager;
    mutable std::map<std::string, Known, std::less<>> known;
    std::set<std::string, std::less<>> changedKeys; // not yet announced
    mutable std::optional<Photos> unsaved;          // of the selected photos, when asked for
    mutable bool isAnnouncementDue = false;
    std::optional<PendingEdit> pending;
    std::unique_ptr<SelectedPhotoObserver> observer;
    const std::shared_ptr<KTEditorSelection*> self; // for what is posted
};
