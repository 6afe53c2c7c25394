#include "export/KTPhotoExportProgressWindowController.h"

#include "platform/common/KTLocalizedString.h"

void KTPhotoExportProgressWindowController::setup() {
    // Not at every progress: a window that the user has closed stays closed until the next export.
    history = operations.observe([this](const KTChange& change) {
        if (change.key == "exportOperations" && change.kind == KTChange::Kind::Insertion && !change.isPrior &&
            !operations.exportOperationPluginMap().empty())
            showWindow();
    });
    operations.setPhotoExportPlugins(photoExportPluginManager);
}

void KTPhotoExportProgressWindowController::tearDown() {
    history.stop();
    if (isVisible)
        setWindowVisible(false);
}

void KTPhotoExportProgressWindowController::setWindowVisible(bool visible) {
    willChange("isWindowVisible");
    willChange("toggleWindowDescription");
    isVisible = visible;
    didChange("toggleWindowDescription");
    didChange("isWindowVisible");
}

std::string KTPhotoExportProgressWindowController::toggleWindowDescription() const {
    return KTLocalizedString(isVisible ? "Hide Export List" : "Show Export List");
}
