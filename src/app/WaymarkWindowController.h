#pragma once
#include "app/WaymarkWindow.h"
#include "platform/observing/KTObservable.h"

#include <array>
#include <memory>

class KTBatchOperationController;
class KTGeotaggingConsoleViewController;
class KTGeotaggingController;
class KTMapAndToolbarViewController;
class KTMapController;
class KTMetadataCustomizationViewController;
class KTMetadataEditorViewController;
class KTPhotoController;
class KTPhotoManagerToolbarController;
class KTPhotoMatchController;
class KTTimeZoneHUDController;
class WaymarkAppController;

/// The main window without its drawing: the controllers of its parts, made and set up in their order, and
/// which of its panes are shown. Observable under the names of its properties. Main thread.
class WaymarkWindowController : public KTObservable {
public:
    /// @p application must outlive the controller.
    explicit WaymarkWindowController(WaymarkAppController& application);
    ~WaymarkWindowController() override;

    /// Makes the controllers, then the window of @p userInterface, and sets everything up.
    void setup(WaymarkUserInterface& userInterface);
    void tearDown();

    WaymarkAppController& appController() const { return app; }
    /// Null up to setup(), as are the controllers below.
    WaymarkWindow* window() const { return ownWindow.get(); }

    // The parts of the window; alive from setup() to the end of this controller.
    KTBatchOperationController* batchOperationController() const { return batches.get(); }
    KTPhotoController* photoController() const { return photos.get(); }
    KTGeotaggingController* geotaggingController() const { return geotagging.get(); }
    KTMapController* mapController() const { return map.get(); }
    KTMapAndToolbarViewController* mapAndToolbarViewController() const { return mapAndToolbar.get(); }
    KTGeotaggingConsoleViewController* geotaggingConsoleViewController() const { return console.get(); }
    KTTimeZoneHUDController* timeZoneHUDController() const { return timeZonePanel.get(); }
    /// What the status bar and "Write Changed Tags" show.
    KTPhotoManagerToolbarController* photoManagerToolbarController() const { return toolbar.get(); }
    KTMetadataEditorViewController* metadataEditorViewController() const { return metadataEditor.get(); }
    /// The templates of the metadata editor; they are read when its pane is shown.
    KTMetadataCustomizationViewController* metadataCustomizationViewController() const {
        return metadataCustomization.get();
    }
    /// Why which photo has no match, for the photo table.
    KTPhotoMatchController* photoMatchController() const { return matches.get(); }

    /// Announced each time it is set: a window that is shown already comes forward. Setting it to false is
    /// the user's closing of the window.
    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);

    /// Which panes are shown; announced under "shownPanes". At first all but the customisation and the
    /// options.
    /// The customisation is the metadata pane in another mode, which is shown with it and ends with it.
    bool isPaneShown(WaymarkPane pane) const { return shown[std::size_t(pane)]; }
    void setPaneShown(WaymarkPane pane, bool isShown);
    void toggleMetadataView() { toggle(WaymarkPane::MetadataView); }
    void toggleThumbnailView() { toggle(WaymarkPane::ThumbnailView); }
    void toggleMapView() { toggle(WaymarkPane::MapView); }
    void toggleGeotaggingView() { toggle(WaymarkPane::GeotaggingView); }
    void toggleMetadataCustomizationView() { toggle(WaymarkPane::MetadataCustomizationView); }
    void toggleViewOptions() { toggle(WaymarkPane::ViewOptions); }

private:
    void toggle(WaymarkPane pane) { setPaneShown(pane, !isPaneShown(pane)); }

    WaymarkAppController& app;
    std::array<bool, 6> shown = {true, true, true, true, false, false};
    bool isVisible = false;
    std::unique_ptr<KTBatchOperationController> batches;
    std::unique_ptr<KTPhotoController> photos;
    std::unique_ptr<KTMapController> map;
    std::unique_ptr<KTGeotaggingController> geotagging;
    std::unique_ptr<KTMapAndToolbarViewController> mapAndToolbar;
    std::unique_ptr<KTMetadataEditorViewController> metadataEditor;
    std::unique_ptr<KTMetadataCustomizationViewController> metadataCustomization;
    std::unique_ptr<KTPhotoManagerToolbarController> toolbar;
    std::unique_ptr<KTPhotoMatchController> matches;
    std::unique_ptr<KTGeotaggingConsoleViewController> console;
    std::unique_ptr<KTTimeZoneHUDController> timeZonePanel;
    std::unique_ptr<WaymarkWindow> ownWindow; // last: it shows all of them
};
