#pragma once
#include "collection/KTPhotoManager.h"
#include "datetools/KTDateChange.h"

class SelectedPhotoObserver;

/// One of the tools of the date tools window: a strip of the selected photos, of which one is in front, what
/// the tool would make of their dates, and a button that does it. Observable under the names of its
/// properties; "previews" is announced, once a turn of the event loop, when there are others. Main thread.
class KTDateTool : public KTObservable {
public:
    using Photo = KTPhotoManager::Photo;
    using Photos = KTPhotoManager::Photos;
    using Snapshot = KTPhotoManager::Snapshot;

    /// @p collection must outlive the tool.
    explicit KTDateTool(KTPhotoManager& collection);
    ~KTDateTool() override;

    /// Between the two the tool follows the selection.
    virtual void setup();
    virtual void tearDown();

    KTPhotoManager& photoManager() const { return manager; }
    /// "selectedPhotos": what the strip shows, in arranged order.
    Snapshot selectedPhotos() const { return manager.selectedPhotos(); }
    /// "currentImageIndex": the place in the strip of the photo in front; nothing when none is selected. A
    /// photo stays in front as long as it is selected.
    std::optional<std::size_t> currentImageIndex() const { return frontIndex; }
    /// A place past the end is the last one.
    virtual void setCurrentImageIndex(std::optional<std::size_t> index);
    /// Null for none.
    Photo currentPhoto() const { return frontPhoto; }

    /// The photos that the button is for; the selected ones, unless the tool says otherwise.
    virtual Snapshot photosConcerned() const { return selectedPhotos(); }
    /// What the button would do to @p photo; empty where it would leave it alone.
    virtual std::vector<KTDateChange> changesOf(const KTPhoto& photo) const = 0;
    /// The photo in front, and the first and the last of those whose dates would change, in arranged order.
    std::vector<KTDatePreview> previews() const;

protected:
    virtual void selectionDidChange() {}
    virtual void photosWereSaved() { announcePreviews(); }
    void announcePreviews();
    template<class Property>
    void set(std::string_view key, Property& property, Property value) {
        willChange(key);
        property = std::move(value);
        didChange(key);
        announcePreviews();
    }
    /// Changes the photos concerned as one undo step.
    void editPhotos(std::string actionName, const std::function<void(KTPhoto&)>& change);

private:
    void follow(const Photos& selected);

    KTPhotoManager& manager;
    std::optional<std::size_t> frontIndex;
    Photo frontPhoto;
    bool isAnnouncementDue = false;
    std::unique_ptr<SelectedPhotoObserver> selection;
    Observation managerObservation;
    const std::shared_ptr<KTDateTool*> self; // for what is posted
};
