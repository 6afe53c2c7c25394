#pragma once
#include "metadata/KTValueFormatters.h"
#include "platform/observing/KTObservable.h"

class KTPhotoManager;
class SelectedPhotoObserver;

/// The window that shows one of the selected photos' dictionaries of tags, as saved in a source or as it must
/// still be written to it, tag by tag. Observable under the names of its properties. Main thread.
class KTTagDetailsWindowController : public KTObservable {
public:
    struct Row {
        std::string key, value; ///< a tag, and its value for display
        bool operator==(const Row&) const = default;
    };

    /// @p collection must outlive the controller.
    explicit KTTagDetailsWindowController(KTPhotoManager& collection);
    ~KTTagDetailsWindowController() override;

    /// Between the two the rows follow the selection; before and after there are none.
    void setup();
    void tearDown();

    KTPhotoManager& photoManager() const { return manager; }
    /// The image file (0), the sidecar (1) or the photo library (2), as KTMetadataSource::Kind counts; others
    /// are not taken.
    unsigned metadataSource() const { return shownSource; }
    void setMetadataSource(unsigned source);
    /// Saved (0) or changes (1); others are not taken.
    unsigned metadataType() const { return shownType; }
    void setMetadataType(unsigned type);

    void showTagDetailsWindow();
    /// Announced each time it is set: a window that is shown already comes forward.
    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);

    /// "rows": the tags of all selected photos by key, as they are now; "Multiple Values" where a tag differs
    /// between photos or some lack it. Made at each call, in 0.1 s for 10,000 photos. Announced once for all
    /// changes of a turn of the event loop.
    std::vector<Row> rows() const;
    /// Announces that there are other rows.
    void updateBindings();

private:
    KTPhotoManager& manager;
    const KTRawKeyFormatter valueFormatter;
    unsigned shownSource = 0, shownType = 0;
    bool isVisible = false;
    bool isAnnouncementDue = false;
    std::unique_ptr<SelectedPhotoObserver> observer;
    const std::shared_ptr<KTTagDetailsWindowController*> self; // for what is posted
};
