#pragma once
#include "platform/presentation/KTPresenter.h"

#include <memory>

class SlideShowController;

/// The window of a slide show, full screen while the show runs.
class KTSlideShowWindow {
public:
    virtual ~KTSlideShowWindow() = default;
};

/// What the slide show asks of whoever has a screen: the windows of src/ui, or a test in their stead. Main
/// thread.
class KTSlideShowScreen {
public:
    virtual ~KTSlideShowScreen() = default;

    /// A view that edits the settings of slide shows.
    virtual std::shared_ptr<void> makeSettingsView() = 0;
    /// The window of a show that is about to begin, for the screen on which @p beside is (null for any). It
    /// follows @p controller and is destroyed before it.
    virtual std::unique_ptr<KTSlideShowWindow> makeWindow(SlideShowController& controller,
                                                          KTViewHandle beside) = 0;
    /// An image file with the desktop's sign of a folder; empty where there is none.
    virtual std::filesystem::path folderIcon() = 0;
};
