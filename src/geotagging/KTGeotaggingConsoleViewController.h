#pragma once
#include "geotagging/KTGeotaggingStandardModeMultipleSelectionViewController.h"
#include "geotagging/KTManualGeotaggingViewController.h"
#include "geotagging/KTMultipleSelectionLinkerViewController.h"
#include "geotagging/KTSingleSelectionLinkerViewController.h"

#include <variant>

/// The geotagging console: the panel of the present status, one at a time, made
/// anew at each change. Observable: "panel", before the old one goes and after
/// the new one is set up; "selectionDescription". Main thread.
class KTGeotaggingConsoleViewController : public KTObservable {
public:
    using BatchPanel = KTMultipleSelectionLinkerViewController;
    using SinglePanel = KTSingleSelectionLinkerViewController;
    using SeveralPanel = KTGeotaggingStandardModeMultipleSelectionViewController;
    using ManualPanel = KTManualGeotaggingViewController;

    /// @p owner must outlive the controller, and be set up before it.
    explicit KTGeotaggingConsoleViewController(KTGeotaggingController& owner) : geotaggingController(owner) {}
    void setup();
    void tearDown();

    KTGeotaggingController& geotagging() const { return geotaggingController; }
    /// That of the present panel.
    unsigned geotaggingModeStatus() const { return shownStatus; }
    /// What a panel without controls says: that no photo is selected, or that
    /// there are no tracks.
    const std::string& selectionDescription() const { return text; }
    // The panel that is shown, set up; the others are null, all of them where a
    // text is shown.
    BatchPanel* batchPanel() const { return panel<BatchPanel>(); }
    SinglePanel* singlePanel() const { return panel<SinglePanel>(); }
    SeveralPanel* severalPanel() const { return panel<SeveralPanel>(); }
    ManualPanel* manualPanel() const { return panel<ManualPanel>(); }

private:
    template<class Panel>
    Panel* panel() const {
        const auto* shown = std::get_if<std::unique_ptr<Panel>>(&panels);
        return shown != nullptr ? shown->get() : nullptr;
    }
    template<class Panel>
    void install(Panel made);
    void replacePanel();

    KTGeotaggingController& geotaggingController;
    unsigned shownStatus = KTGeotaggingStatusBatch;
    std::string text;
    std::variant<std::monostate, std::unique_ptr<BatchPanel>, std::unique_ptr<SinglePanel>,
                 std::unique_ptr<SeveralPanel>, std::unique_ptr<ManualPanel>>
        panels;
    Observation observation;
};
