#pragma once
#include "app/WaymarkUserInterface.h"
#include "app/thumbnails/KTThumbnailService.h"
#include "ui/slideshow/SlideShowScreen.h"

/// The windows of the application.
class ApplicationUserInterface : public WaymarkUserInterface {
public:
    ApplicationUserInterface();
    ~ApplicationUserInterface() override;

    std::unique_ptr<WaymarkWindow> makeWaymarkWindow(WaymarkWindowController& controller) override;
    Window makePreferencesWindow(AppPreferencesWindowController& controller) override;
    Window makeTagDetailsWindow(KTTagDetailsWindowController& controller) override;
    Window makePhotoOperationWindow(KTPhotoOperationWindowController& controller) override;
    Window makeTrackPickerWindow(KTAppTrackPickerController& controller) override;
    Window makeDateToolsWindow(KTDateToolsWindowController& controller) override;
    Window makeMediaBrowserWindow(MediaBrowserWindowController& controller) override;
    std::filesystem::path picturesFolder() const override;
    KTSlideShowScreen* slideShowScreen() override { return &slideShows; }
    Window makeExportListWindow(KTPhotoExportProgressWindowController& controller) override;
    void openURL(const std::string& url) override;
    void showAboutBox() override;
    KTPresenter& presenter() override { return *alone; }
    std::string clipboardText() override;
    void setClipboardText(const std::string& text) override;
    void terminate() override;
    int toolkitVersion() const override;

private:
    std::unique_ptr<KTPresenter> alone; // asks where there is no window
    std::unique_ptr<KTThumbnailService> thumbnails;
    SlideShowScreen slideShows;
};
