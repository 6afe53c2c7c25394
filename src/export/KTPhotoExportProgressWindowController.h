#pragma once
#include "export/KTExportProgressWindow.h"
#include "export/KTPhotoExportOperationController.h"

/// The window that lists the exports, without its drawing. Comes up when an export begins. Observable under
/// "isWindowVisible" and "toggleWindowDescription". Main thread.
class KTPhotoExportProgressWindowController final : public KTExportProgressWindow {
public:
    /// @p followed outlives the controller.
    explicit KTPhotoExportProgressWindowController(KTPhotoExportOperationController& followed)
        : operations(followed) {}

    KTPhotoExportOperationController& photoExportOperationController() const { return operations; }
    /// Outlives setup … tearDown.
    void setPhotoExportPluginManager(KTPhotoExportPluginManager* manager) {
        photoExportPluginManager = manager;
    }
    /// Lets the history follow the plug-in manager, and the window the history.
    void setup();
    /// Hides the window, which follows nothing any more; the history still follows the exports.
    void tearDown() override;

    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);
    void showWindow() { setWindowVisible(true); }
    /// "Show Export List" or "Hide Export List".
    std::string toggleWindowDescription() const override;
    void toggleWindow() override { setWindowVisible(!isVisible); }

    /// 48 for an export in progress, 38 for others.
    static double heightOfRow(const KTPhotoExportOperation& record) {
        return record.inProgress ? 48.0 : 38.0;
    }
    /// Opens the destination; the button of a row.
    void revealAction(const KTPhotoExportOperationController::Record& record) {
        operations.revealAction({record});
    }
    void shouldCancelExportForOperation(const KTPhotoExportOperationController::Record& record) {
        operations.shouldCancelExportForOperation(record);
    }

private:
    KTPhotoExportOperationController& operations;
    KTPhotoExportPluginManager* photoExportPluginManager = nullptr;
    bool isVisible = false;
    Observation history;
};
