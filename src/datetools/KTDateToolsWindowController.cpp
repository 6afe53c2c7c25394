#include "datetools/KTDateToolsWindowController.h"

#include "datetools/KTDateCopyViewController.h"
#include "datetools/KTDateSetViewController.h"
#include "datetools/KTDateShiftViewController.h"

KTDateToolsWindowController::KTDateToolsWindowController(KTPhotoManager& collection,
                                                         KTMetadataFieldManager& catalogue,
                                                         KTTimeZoneManager& displayZone)
    : manager(collection), metadataFieldManager(catalogue), timeZoneManager(displayZone) {}

KTDateToolsWindowController::~KTDateToolsWindowController() {
    if (tool)
        tool->tearDown();
}

void KTDateToolsWindowController::setup() {
    replaceSubviewController(selected);
}

void KTDateToolsWindowController::tearDown() {
    setSelectedDateTool(Closed);
}

void KTDateToolsWindowController::setSelectedDateTool(unsigned number) {
    if (number == selected)
        return;
    willChange("selectedDateTool");
    selected = number;
    replaceSubviewController(number);
    didChange("selectedDateTool");
}

std::unique_ptr<KTDateTool> KTDateToolsWindowController::makeTool(unsigned number) {
    switch (number) {
    case Shift:
        return std::make_unique<KTDateShiftViewController>(manager, metadataFieldManager, timeZoneManager);
    case Set:
        return std::make_unique<KTDateSetViewController>(manager, timeZoneManager);
    case Copy:
        return std::make_unique<KTDateCopyViewController>(manager, metadataFieldManager);
    default:
        return nullptr;
    }
}

/// The old tool lives until everybody has let go of it.
void KTDateToolsWindowController::replaceSubviewController(unsigned withToolOfNumber) {
    if (tool)
        tool->tearDown();
    willChange("currentSubviewController");
    const std::unique_ptr<KTDateTool> old = std::exchange(tool, makeTool(withToolOfNumber));
    if (tool)
        tool->setup();
    didChange("currentSubviewController");
}

KTDateShiftViewController* KTDateToolsWindowController::dateShiftViewController() const {
    return dynamic_cast<KTDateShiftViewController*>(tool.get());
}

KTDateSetViewController* KTDateToolsWindowController::dateSetViewController() const {
    return dynamic_cast<KTDateSetViewController*>(tool.get());
}

KTDateCopyViewController* KTDateToolsWindowController::dateCopyViewController() const {
    return dynamic_cast<KTDateCopyViewController*>(tool.get());
}
