#pragma once
#include "export/slideshow/KTSlideShowScreen.h"
#include "platform/concurrency/KTOperationQueue.h"

/// The views and windows of slide shows.
class SlideShowScreen : public KTSlideShowScreen {
public:
    std::shared_ptr<void> makeSettingsView() override;
    std::unique_ptr<KTSlideShowWindow> makeWindow(SlideShowController& controller,
                                                  KTViewHandle beside) override;
    std::filesystem::path folderIcon() override;

private:
    KTOperationQueue lines; // of tracks; a show that ends does not wait for them
};
