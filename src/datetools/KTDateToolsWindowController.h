#pragma once
#include "collection/KTPhotoManager.h"

class KTDateCopyViewController;
class KTDateSetViewController;
class KTDateShiftViewController;
class KTDateTool;
class KTMetadataFieldManager;
class KTTimeZoneManager;

/// The one window of the date tools: which tool it shows, and that tool, made anew each time it is chosen.
/// Observable under the names of its properties. Main thread.
class KTDateToolsWindowController : public KTObservable {
public:
    enum Tool : unsigned { Shift = 0, Set = 1, Copy = 2, Closed = 4 };

    /// All must outlive the controller.
    KTDateToolsWindowController(KTPhotoManager& collection, KTMetadataFieldManager& catalogue,
                                KTTimeZoneManager& displayZone);
    ~KTDateToolsWindowController() override;

    void setup();
    void tearDown();

    /// At first Closed. A number that is none of the tools shows none.
    unsigned selectedDateTool() const { return selected; }
    void setSelectedDateTool(unsigned number);
    /// What a menu command does: opens the window on a tool or switches to it; closes the window when it is
    /// shown already.
    void toggleDateTool(unsigned number) {
        setSelectedDateTool(number == selected ? unsigned(Closed) : number);
    }
    /// For the window, closed by other means.
    void windowWillClose() { setSelectedDateTool(Closed); }

    /// "currentSubviewController": the tool shown; null for none. The others are that tool, or null.
    KTDateTool* currentSubviewController() const { return tool.get(); }
    KTDateShiftViewController* dateShiftViewController() const;
    KTDateSetViewController* dateSetViewController() const;
    KTDateCopyViewController* dateCopyViewController() const;

    /// That of the photos: undo and redo in this window are theirs.
    std::shared_ptr<KTUndoManager> windowWillReturnUndoManager() const { return manager.undoManager(); }

private:
    std::unique_ptr<KTDateTool> makeTool(unsigned number);
    void replaceSubviewController(unsigned withToolOfNumber);

    KTPhotoManager& manager;
    KTMetadataFieldManager& metadataFieldManager;
    KTTimeZoneManager& timeZoneManager;
    unsigned selected = Closed;
    std::unique_ptr<KTDateTool> tool;
};
