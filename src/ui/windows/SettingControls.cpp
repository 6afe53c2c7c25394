#include "ui/windows/SettingControls.h"

#include "platform/defaults/KTSettingsTable.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

struct Control {
    const char* key;
    const char* title;
    const char* tip;
    /// Of a setting with choices: their titles, parted by '|', for the values 0,
    /// 1, … or those of the settings table. Null for others.
    const char* choices = nullptr;
};

// clang-format off
constexpr Control kControls[] = {
    {"distanceUnits", "Units:", "For distances and heights", "Kilometres and metres|Miles and feet|Nautical miles and metres"},
    {"applicationShouldAlwaysUsePhotosTimeZoneDefault", "Show all dates in the time zone of the camera clock", "Else in the computer's"},

    {"defaultPhotoView", "Show photos as:", "", "Thumbnails|Table"},
    {"defaultPhotoCellSize", "Size of the thumbnails:", "In pixels"},
    {"shouldIgnorePreviouslyTaggedPhotos", "Leave alone photos that have a location", "In batches"},

    {"defaultShouldSaveAltitude", "Write the altitude of track points", "Where the track has one"},
    {"defaultShouldOverwriteAltitude", "Replace an altitude that a photo has", ""},
    {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated", "Look up where the photo was taken", "Writes the names of city, state and country with the position"},
    {"defaultLatLonCreatedShouldReverseGeocodeLocationShown", "Take the same names for the place shown", ""},
    {"defaultLatLonShownShouldReverseGeocodeLocationShown", "Look up the place shown", "When its position is set"},
    {"defaultSetImageDirectionFromLatLonShown", "Aim the image direction at the place shown", ""},
    {"defautShouldOverwriteImageDirection", "Replace an image direction that a photo has", ""},
    {"defaultShouldSaveCityCreated", "City where the photo was taken", "Written with the position"},
    {"defaultShouldSaveStateCreated", "State where the photo was taken", "Written with the position"},
    {"defaultShouldSaveCountryCreated", "Country where the photo was taken", "Written with the position"},
    {"defaultShouldOverwriteLocationCreated", "Replace the names that a photo has", ""},
    {"defaultShouldSaveCityShown", "City shown", "Written with the position"},
    {"defaultShouldSaveStateShown", "State shown", "Written with the position"},
    {"defaultShouldSaveCountryShown", "Country shown", "Written with the position"},
    {"defaultShouldOverwriteLocationShown", "Replace the names of the place shown that a photo has", ""},
    {"shouldAutoAdvanceToNextPhotoDefault", "Select the next photo after geotagging one", "In the standard mode"},

    {"defaultXMPSidecarStyle", "Write changes to:", "Sidecars are XMP files beside the photos", "Image files only|Image files of open formats, sidecars for raw files|Sidecars only|Image files and sidecars|Sidecars where there are some, else image files"},
    {"defaultShouldPreserveModificationDate", "Keep the modification date of files", "Else it becomes the time of writing"},
    {"defaultShouldInterpretLastKeywordAsEvent", "Take the last keyword as the event", "Of photos of a photo library"},
    {"exifToolFolder", "Image::ExifTool:", "Folder of a newer one, from the next start on; empty for the one that Waymark came with"},
    {"shouldShowTitleDefault", "Show file names below thumbnails", ""},
    {"shouldShowSubtitleDefault", "Show positions below thumbnails", ""},

    {"reverseGeocoder", "Place names from:", "The server is asked only for photos that you geotag", "Waymark's own data, offline|A server of your choice"},
    {"reverseGeocoderServer", "Server:", "Address of a Nominatim server; nothing is sent while it is empty"},

    {"defaultAutoZoomRecentTrackImportsStyle", "After importing tracks:", "What the map does", "Stay|Move to them|Move and zoom to them"},
    {"defaultAutoZoomPhotoSelectionStyle", "After selecting photos:", "What the map does", "Stay|Move to them|Move and zoom to them"},
    {"KTMapLaunchesToPreviousLocationDefault", "Begin where the map was last", "Else at the place below"},
    {"mapTilesPattern", "Tiles:", "Address pattern of a server, for example https://tile.example.org/{z}/{x}/{y}.png"},
    {"mapTilesSubdomains", "Sub-domains:", "For {s}, parted by commas"},
    {"mapTilesKey", "Key:", "For {key}"},
    {"mapTilesContact", "Contact:", "Your e-mail address or page, which the server's operator gets with each request"},
    {"mapTilesCountFromSouth", "Rows count from the south", "As the Tile Map Service does"},
    {"mapTilesMinimumZoom", "Smallest zoom:", ""},
    {"mapTilesMaximumZoom", "Largest zoom:", ""},
    {"mapTilesSize", "Tile size:", "In pixels"},
    {"mapTilesAttribution", "Attribution:", "What the server wants to be shown on the map"},
    {"mapTilesCacheMegabytes", "Cache:", "Megabytes on the disk at most"},

    {"slideshowPlugin.autoAdvanceInterval", "Seconds for a photo:", "With 0, photos change only when you say so"},
    {"slideshowPlugin.transitionStyle", "Transition:", "How a photo gives way to the next one", "None|Fade|Move In|Push|Reveal|Copy Machine|Disintegrate|Dissolve|Flash|Mod|Page Curl|Ripple|Swipe"},
    {"slideshowPlugin.autoZoomPhotoStyle", "Map:", "What it does when another photo is shown", "Stay|Move to the photo|Move and zoom to the photo"},
    {"slideshowPlugin.shouldShowNearbyTracks", "Show the tracks near the photos", "On the map"},
};
// clang-format on

KTUserDefaults& defaults() {
    return KTUserDefaults::standardUserDefaults();
}

QWidget* checkBox(const Control& control, QWidget& owner,
                  std::vector<KTObservable::Observation>& observations) {
    auto* const box = new QCheckBox(uiText(control.title), &owner);
    auto show = [box, key = control.key] { box->setChecked(defaults().boolForKey(key)); };
    show();
    QObject::connect(box, &QCheckBox::clicked, box,
                     [key = control.key](bool isOn) { defaults().setValue(key, isOn); });
    observations.push_back(observeFor(box, defaults(), control.key, show));
    return box;
}

/// The value of the choice of that number: itself, or a text of the settings
/// table.
KTValue choiceValue(const KTSetting& setting, int index) {
    if (setting.type != KTSettingType::Text)
        return std::int64_t(index);
    return QString::fromUtf8(setting.choices.data(), qsizetype(setting.choices.size()))
        .split('|')
        .value(index)
        .toStdString();
}

QWidget* comboBox(const Control& control, const KTSetting& setting, QWidget& owner,
                  std::vector<KTObservable::Observation>& observations) {
    auto* const box = new QComboBox(&owner);
    for (const QString& title : QString(control.choices).split('|'))
        box->addItem(uiText(title.toStdString()));
    auto show = [box, &setting] {
        const KTValue value = defaults().valueForKey(setting.key);
        for (int i = 0; i < box->count(); ++i)
            if (value == choiceValue(setting, i))
                box->setCurrentIndex(i);
    };
    show();
    QObject::connect(box, &QComboBox::activated, box, [&setting](int index) {
        defaults().setValue(setting.key, choiceValue(setting, index));
    });
    observations.push_back(observeFor(box, defaults(), control.key, show));
    return box;
}

QWidget* field(const Control& control, const KTSetting& setting, QWidget& owner,
               std::vector<KTObservable::Observation>& observations) {
    auto* const edit = new QLineEdit(&owner);
    auto show = [edit, &setting] {
        edit->setText(QString::fromStdString(defaults().valueForKey(setting.key).description()));
    };
    show();
    QObject::connect(edit, &QLineEdit::editingFinished, edit, [edit, show, &setting] {
        const auto value = setting.valueFromText(edit->text().toStdString());
        if (value && edit->isModified())
            defaults().setValue(setting.key, *value);
        show(); // what was none goes
    });
    observations.push_back(observeFor(edit, defaults(), control.key, show));
    return edit;
}

} // namespace

void SettingControls::add(const std::string& key, QFormLayout& form, QWidget& owner,
                          std::vector<KTObservable::Observation>& observations) {
    const auto control =
        std::ranges::find_if(kControls, [&](const Control& each) { return each.key == key; });
    const KTSetting* const setting = KTSettingsTable::settingForKey(key);
    if (control == std::end(kControls) || setting == nullptr)
        return;
    if (setting->type == KTSettingType::Boolean) {
        QWidget* const box = checkBox(*control, owner, observations);
        box->setToolTip(*control->tip ? uiText(control->tip) : uiText(control->title));
        form.addRow(box);
        return;
    }
    QWidget* const widget = control->choices ? comboBox(*control, *setting, owner, observations)
                                             : field(*control, *setting, owner, observations);
    widget->setToolTip(*control->tip ? uiText(control->tip) : uiText(control->title));
    auto* const label = new QLabel(uiText(control->title), &owner);
    label->setBuddy(widget);
    form.addRow(label, widget);
}
