#include "app/WaymarkAppDelegate.h"

#include "app/AppPreferencesWindowController.h"
#include "app/WaymarkWindowController.h"
#include "platform/common/KTLocalizedString.h"

WaymarkAppDelegate::WaymarkAppDelegate(WaymarkUserInterface& screen) : userInterface(screen) {
    if (checkSystemVersion())
        controller = std::make_unique<WaymarkAppController>(userInterface);
}

WaymarkAppDelegate::~WaymarkAppDelegate() = default;

/// The texts keep their keys; here they speak of the toolkit.
bool WaymarkAppDelegate::checkSystemVersion() {
    if (userInterface.toolkitVersion() >= kMinimumToolkitVersion)
        return true;
    userInterface.presenter().presentAlert(
        {.message = KTLocalizedString("Waymark requires a newer version of Mac OS X",
                                      "Waymark requires a newer version of Qt"),
         .informativeText =
             KTLocalizedString("Waymark requires Mac OS X 10.9 or later", "Waymark requires Qt 6.4 or later"),
         .buttons = {KTLocalizedString("Quit")},
         .completion = [this](std::size_t) { userInterface.terminate(); }});
    return false;
}

void WaymarkAppDelegate::applicationDidFinishLaunching() {
    if (controller)
        setupMainUI();
}

void WaymarkAppDelegate::setupMainUI() {
    controller->setupModel();
    controller->setupControllers();
    controller->showWaymarkWindow();
}

bool WaymarkAppDelegate::applicationOpenFile(const std::filesystem::path& path) {
    applicationOpenFiles({path});
    return controller != nullptr;
}

void WaymarkAppDelegate::applicationOpenFiles(const WaymarkAppController::Paths& paths) {
    if (controller)
        controller->importFilesFromOpenFilesAppDelegateAtPaths(paths);
}

WaymarkAppController::TerminateReply WaymarkAppDelegate::applicationShouldTerminate() {
    return controller ? controller->applicationShouldTerminate() : WaymarkAppController::TerminateReply::Now;
}

void WaymarkAppDelegate::applicationWillTerminate() {
    if (controller)
        controller->applicationWillTerminate();
}
