#include "geotagging/KTGeotaggingConsoleViewController.h"

#include "platform/common/KTLocalizedString.h"

void KTGeotaggingConsoleViewController::setup() {
    observation = geotaggingController.observe([this](const KTChange& change) {
        if (change.key == "geotaggingModeStatus" && !change.isPrior &&
            geotaggingController.geotaggingModeStatus() != shownStatus)
            replacePanel();
    });
    replacePanel();
}

void KTGeotaggingConsoleViewController::tearDown() {
    observation.stop();
    willChange("panel");
    panels = std::monostate();
    didChange("panel");
}

template<class Panel>
void KTGeotaggingConsoleViewController::install(Panel made) {
    if constexpr (requires { made->setup(); })
        made->setup();
    panels = std::move(made);
}

void KTGeotaggingConsoleViewController::replacePanel() {
    willChange("panel");
    panels = std::monostate(); // the old panel lets go before the new one takes over
    shownStatus = geotaggingController.geotaggingModeStatus();
    std::string description;
    switch (shownStatus) {
    case KTGeotaggingStatusNoSelection:
        description = KTLocalizedString("No Photos Selected");
        break;
    case KTGeotaggingStatusBatch:
        install(std::make_unique<BatchPanel>(geotaggingController.geotagger()));
        break;
    case KTGeotaggingStatusSingle:
        install(std::make_unique<SinglePanel>(geotaggingController.geotagger()));
        break;
    case KTGeotaggingStatusSeveral:
        install(std::make_unique<SeveralPanel>(geotaggingController));
        break;
    case KTGeotaggingStatusNoTracks:
        description = KTLocalizedString("No Loaded Tracks");
        break;
    case KTGeotaggingStatusManual:
        install(std::make_unique<ManualPanel>(geotaggingController));
        break;
    default:
        break;
    }
    didChange("panel");
    willChange("selectionDescription");
    text = std::move(description);
    didChange("selectionDescription");
}
