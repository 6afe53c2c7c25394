#pragma once
#include "platform/presentation/KTPresenter.h"

#include <memory>
#include <string>

class AppPreferencesWindowController;
class MediaBrowserWindowController;
class KTAppTrackPickerController;
class KTDateToolsWindowController;
class KTPhotoExportProgressWindowController;
class KTPhotoOperationWindowController;
class KTSlideShowScreen;
class KTTagDetailsWindowController;
class WaymarkAppController;
class WaymarkWindow;
class WaymarkWindowController;

/// A window of one controller. It is on the screen while the controller's "isWindowVisible" is true, comes
/// forward each time that is announced, and sets it to false when the user closes it. It is destroyed before
/// its controller.
class KTWindow {
public:
    virtual ~KTWindow() = default;
};

/// What the application asks of whoever has a screen: the windows of src/ui, or a test in their stead. Main
/// thread. Making a window must be quick: what it shows may be made when it is first shown.
class WaymarkUserInterface {
public:
    using Window = std::unique_ptr<KTWindow>;

    virtual ~WaymarkUserInterface() = default;

    // The windows of controllers that have just been made. Never null.
    virtual std::unique_ptr<WaymarkWindow> makeWaymarkWindow(WaymarkWindowController& controller) = 0;
    virtual Window makePreferencesWindow(AppPreferencesWindowController& controller) = 0;
    virtual Window makeTagDetailsWindow(KTTagDetailsWindowController& controller) = 0;
    virtual Window makePhotoOperationWindow(KTPhotoOperationWindowController& controller) = 0;
    virtual Window makeTrackPickerWindow(KTAppTrackPickerController& controller) = 0;
    /// On the screen while a tool is selected. Null where there is no such window: its commands are absent
    /// then.
    virtual Window makeDateToolsWindow(KTDateToolsWindowController& /*controller*/) { return nullptr; }

    /// Null where there is no such window: its command is absent then.
    virtual Window makeMediaBrowserWindow(MediaBrowserWindowController& /*controller*/) { return nullptr; }
    /// The user's folder of pictures.
    virtual std::filesystem::path picturesFolder() const { return {}; }

    /// Where slide shows are shown; null where there are none: they are not offered then.
    virtual KTSlideShowScreen* slideShowScreen() { return nullptr; }

    /// Null where there is no such window.
    virtual Window makeExportListWindow(KTPhotoExportProgressWindowController& /*controller*/) {
        return nullptr;
    }

    /// Opens the address of a file, a folder or a page in the user's program for it.
    virtual void openURL(const std::string& /*url*/) {}
    /// Shows name, version and licences.
    virtual void showAboutBox() = 0;
    /// Asks the user where there is no main window.
    virtual KTPresenter& presenter() = 0;
    /// The text on the clipboard.
    virtual std::string clipboardText() = 0;
    virtual void setClipboardText(const std::string& text) = 0;
    /// Lets the event loop end soon. Nothing is asked any more.
    virtual void terminate() = 0;
    /// The version of the toolkit that the program runs on, as 60402 for 6.4.2.
    virtual int toolkitVersion() const = 0;
};
