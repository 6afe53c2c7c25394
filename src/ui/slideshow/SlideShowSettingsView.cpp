#include "ui/slideshow/SlideShowSettingsView.h"

#include "ui/support/UIText.h"
#include "ui/windows/SettingControls.h"

#include <QFormLayout>

SlideShowSettingsView::SlideShowSettingsView() {
    setAccessibleName(uiText("Settings of the slide show"));
    auto* const form = new QFormLayout(this);
    for (const char* key : {"slideshowPlugin.autoAdvanceInterval", "slideshowPlugin.transitionStyle",
                            "slideshowPlugin.autoZoomPhotoStyle", "slideshowPlugin.shouldShowNearbyTracks"})
        SettingControls::add(key, *form, *this, observations);
}
