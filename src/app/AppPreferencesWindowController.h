#pragma once
#include "platform/common/KTDecimal.h"
#include "platform/observing/KTObservable.h"
#include "platform/presentation/KTPresenter.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class KTGazetteer;
class KTMapController;
class KTMetadataFieldManager;
class KTTimeZoneManager;

/// The window of the preferences. Observable under the names of its properties. Main thread.
///
/// Most controls show a setting as it stands, which they read and set by its key in the standard user
/// defaults; the rest is here.
class AppPreferencesWindowController : public KTObservable {
public:
    /// One pane of the window.
    struct Pane {
        std::string label; ///< in the user's language
        std::string icon;  ///< "General"
        /// The settings that it shows, in their order; the catalogue of controls is the window's.
        std::vector<std::string> settings;
    };

    /// All must outlive the controller; without map there is none whose start can be set.
    AppPreferencesWindowController(KTMetadataFieldManager& catalogue, KTMapController* map,
                                   KTGazetteer& gazetteer, KTTimeZoneManager& timeZoneManager);
    ~AppPreferencesWindowController() override;

    /// Whom chooseBackupFolder asks; null for nobody.
    void setPresenter(KTPresenter* whoAsks) { presenter = whoAsks; }

    /// The panes in their order.
    const std::vector<Pane>& panes() const { return toolbar; }
    /// Announced each time it is set, as by every window controller.
    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);

    // Files
    bool shouldBackupImageFiles() const;
    /// Turned on, it asks for a folder at once.
    void setShouldBackupImageFiles(bool should);
    void chooseBackupFolder();
    /// The chosen folder; empty for none.
    const std::string& backupPath() const { return folder; }

    /// Whether the user may type an altitude.
    bool allowManualEditingOfAltitudeField() const;
    void setAllowManualEditingOfAltitudeField(bool allow);

    // Trying out the reverse geocoder
    std::optional<KTDecimal> sampleLatitude() const;
    std::optional<KTDecimal> sampleLongitude() const;
    void setSampleLatitude(const std::optional<KTDecimal>& degrees);
    void setSampleLongitude(const std::optional<KTDecimal>& degrees);
    void sample();
    /// The place names of the sample position, or a line that says that they are being asked for.
    const std::string& sampleDescription() const { return description; }
    bool requestMade() const { return isRequested; }
    bool requestCompleted() const { return isCompleted; }

    /// Lets the map begin where it is now.
    void setMapCenterDefaultAction();

private:
    void fetchLocationDescription();
    void setRequestedLocationDictionary(const std::string& answer);
    template<class Property>
    void set(std::string_view key, Property& property, Property value);

    KTMetadataFieldManager& metadataFieldManager;
    KTMapController* const mapController;
    KTGazetteer& sharedGazetteer;
    KTTimeZoneManager& sharedTimeZoneManager;
    KTPresenter* presenter = nullptr;
    std::vector<Pane> toolbar;
    bool isVisible = false, isRequested = false, isCompleted = false;
    std::string folder, description;
    const std::shared_ptr<AppPreferencesWindowController*> self; // for answers
};
