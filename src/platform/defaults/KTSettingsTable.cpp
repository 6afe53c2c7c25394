#include "platform/defaults/KTSettingsTable.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTArchiveText.h"

#include <QDir>
#include <QLocale>
#include <ctime>

namespace {

using enum KTSettingType;

KTValue homeFolder() {
    return QDir::homePath().toStdString();
}

/// The computer's offset from UTC now. Straight from the C library: loading the zone database costs a
/// millisecond of every start.
KTValue currentOffset() {
    std::time_t now = std::time(nullptr);
    std::tm local = {};
    localtime_r(&now, &local);
    return std::int64_t(local.tm_gmtoff);
}

KTValue unitsOfLocale() {
    return QLocale().measurementSystem() == QLocale::MetricSystem ? "metric" : "imperial";
}

// clang-format off
constexpr KTSetting kSettings[] = {
    // What is written with a position
    {"defaultShouldSaveAltitude", Boolean, "true"},
    {"defaultShouldOverwriteAltitude", Boolean, "true"},
    {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated", Boolean, "true"},
    {"defaultLatLonCreatedShouldReverseGeocodeLocationShown", Boolean, "true"},
    {"defaultLatLonShownShouldReverseGeocodeLocationShown", Boolean, "true"},
    {"defaultSetImageDirectionFromLatLonShown", Boolean, "true"},
    {"defautShouldOverwriteImageDirection", Boolean, "true"},
    {"defaultShouldSaveCityCreated", Boolean, "true"},
    {"defaultShouldSaveStateCreated", Boolean, "true"},
    {"defaultShouldSaveCountryCreated", Boolean, "true"},
    {"defaultShouldOverwriteLocationCreated", Boolean, "true"},
    {"defaultShouldSaveCityShown", Boolean, "true"},
    {"defaultShouldSaveStateShown", Boolean, "true"},
    {"defaultShouldSaveCountryShown", Boolean, "true"},
    {"defaultShouldOverwriteLocationShown", Boolean, "true"},

    // Files
    {"defaultXMPSidecarStyle", Unsigned, "1"},
    {"defaultShouldBackupWhenWritingToImageFiles", Boolean, "false"},
    {"defaultShouldPreserveModificationDate", Boolean, "false"},
    {"defaultBackupPathBookmark", Text},
    {"exifToolFolder", Text, ""},
    {"defaultPhotoImportLocation", Text, {}, homeFolder},

    // Metadata
    {"defaultSampleLatitude", Number, "44.5956"},
    {"defaultSampleLongitude", Number, "-123.268"},
    {"AltitudeFieldIsEditableDefault", Boolean, "false"},
    {"defaultAssumedTimeZoneOffset", Integer, {}, currentOffset},
    {"defaultEditorGroups", Archive},

    // Geotagging
    {"shouldAutoAdvanceToNextPhotoDefault", Boolean, "true"},
    {"shouldUseDistanceRestriction", Boolean, "false"},
    {"distanceRestriction", Number, "25"},
    {"shouldANDRestrictions", Boolean, "false"},
    {"shouldUseTimeRestriction", Boolean, "true"},
    {"timeRestriction", Number, "300"},
    {"shouldUseTimeWeightedAverage", Boolean, "false"},
    {"shouldIgnorePreviouslyTaggedPhotos", Boolean, "true"},
    {"KTGeotaggingModeDefault", Unsigned, "0"},

    // Time zones
    {"applicationShouldAlwaysUsePhotosTimeZoneDefault", Boolean, "true"},
    {"shouldUseComputerTimeZoneForAssumedTimeZoneDefault", Boolean, "true"},
    {"defaultTimeZoneOptionsSelectedIndex", Unsigned, "0"},
    {"assumedTimeZoneDefaultOffset", Text},

    // Photo library and slide show
    {"defaultShouldInterpretLastKeywordAsEvent", Boolean, "true"},
    {"defaultMediaBrowserVisibility", Boolean, "false"},
    {"defaultMediaBrowserFrameRect", Text},
    {"slideshowPlugin.autoAdvanceInterval", Number, "4"},
    {"slideshowPlugin.transitionStyle", Unsigned, "0"},
    {"slideshowPlugin.autoZoomPhotoStyle", Unsigned, "2"},
    {"slideshowPlugin.shouldShowNearbyTracks", Boolean, "true"},

    // Exports: "LATITUDE LONGITUDE METRES NAME" of each place that none may tell
    {"exportPrivacyZones", TextList, ""},

    // Windows
    {"defaultAutoZoomRecentTrackImportsStyle", Unsigned, "2"},
    {"defaultAutoZoomPhotoSelectionStyle", Unsigned, "1"},
    {"KTMapLaunchesToPreviousLocationDefault", Boolean, "true"},
    {"defaultPhotoView", Unsigned, "1"},
    {"shouldShowTitleDefault", Boolean, "true"},
    {"shouldShowSubtitleDefault", Boolean, "false"},
    {"defaultPhotoCellSize", Number, "89"},
    {"defaultTableColumns", TextList,
     "filename|dateTimeOriginalComponents|latitude|longitude|altitude|cityShown|stateShown"},
    {"fade", Boolean},
    {"shiftSlowsAnimation", Boolean},

    // This platform's own
    {"distanceUnits", Text, {}, unitsOfLocale, "metric|imperial|nautical"},
    {"reverseGeocoder", Text, "offline", nullptr, "offline|server"},
    {"reverseGeocoderServer", Text, ""},
    {"defaultMapDataSource", Text, ""},
    {"defaultMapLatitude", Number, "20"},
    {"defaultMapLongitude", Number, "0"},
    {"defaultMapScale", Number, "0"},
    {"previousMapDataSource", Text},
    {"previousMapLatitude", Number},
    {"previousMapLongitude", Number},
    {"previousMapScale", Number},
    {"recentTrackFiles", TextList},

    // Map tiles from a server
    {"mapTilesContact", Text, ""},
    {"mapTilesPattern", Text, ""},
    {"mapTilesSubdomains", Text, ""},
    {"mapTilesKey", Text, ""},
    {"mapTilesCountFromSouth", Boolean, "false"},
    {"mapTilesMinimumZoom", Unsigned, "0"},
    {"mapTilesMaximumZoom", Unsigned, "19"},
    {"mapTilesSize", Unsigned, "256"},
    {"mapTilesAttribution", Text, ""},
    {"mapTilesCacheMegabytes", Unsigned, "500"},
};
// clang-format on

std::optional<KTValue> flagFromText(std::string_view text) {
    for (std::string_view word : {"true", "yes", "on", "1"})
        if (KTEqualIgnoringCase(text, word))
            return true;
    for (std::string_view word : {"false", "no", "off", "0"})
        if (KTEqualIgnoringCase(text, word))
            return false;
    return std::nullopt;
}

std::optional<KTValue> wholeNumberFromText(std::string_view text, bool mayBeNegative) {
    auto number = KTDecimal::fromText(text);
    if (!number || KTDecimal::fromInteger(number->toInteger()) != *number ||
        (number->isNegative() && !mayBeNegative))
        return std::nullopt;
    return number->toInteger();
}

bool isOneOf(std::string_view text, std::string_view choices) {
    return std::ranges::count(KTSplit(choices, '|'), text) != 0;
}

} // namespace

KTValue KTSetting::fixedDefault() const {
    return defaultText.data() ? valueFromText(defaultText).value_or(KTValue()) : KTValue();
}

std::optional<KTValue> KTSetting::valueFromText(std::string_view text) const {
    switch (type) {
    case Boolean:
        return flagFromText(KTTrimmed(text));
    case Integer:
    case Unsigned:
        return wholeNumberFromText(KTTrimmed(text), type == Integer);
    case Number:
        if (auto number = KTDecimal::fromText(KTTrimmed(text)))
            return *number;
        return std::nullopt;
    case Text:
        if (choices.data() && !isOneOf(text, choices))
            return std::nullopt;
        return text;
    case TextList:
        return KTValue::listOfTexts(text.empty() ? std::vector<std::string>() : KTSplit(text, '|'));
    case Archive: {
        KTValue value = KTValueFromArchiveText(text);
        return value.list() || value.dictionary() ? std::optional(value) : std::nullopt;
    }
    }
    return std::nullopt;
}

std::string KTSetting::expectation() const {
    switch (type) {
    case Boolean:
        return KTLocalizedString("true or false");
    case Integer:
        return KTLocalizedString("a whole number");
    case Unsigned:
        return KTLocalizedString("a whole number that is not negative");
    case Number:
        return KTLocalizedString("a number");
    case Text:
    case TextList:
        return choices.data() ? KTJoin(KTSplit(choices, '|'), ", ") : KTLocalizedString("a text");
    case Archive:
        return KTLocalizedString("a list in JSON");
    }
    return {};
}

std::span<const KTSetting> KTSettingsTable::settings() {
    return kSettings;
}

const KTSetting* KTSettingsTable::settingForKey(std::string_view key) {
    auto setting = std::ranges::find(kSettings, key, &KTSetting::key);
    return setting == std::end(kSettings) ? nullptr : setting;
}

KTSettingsTable::Assignment KTSettingsTable::parseAssignment(std::string_view text) {
    Assignment result;
    auto equals = text.find('=');
    result.key = KTTrimmed(text.substr(0, equals));
    if (equals == std::string_view::npos) {
        result.error = KTStringWithFormat(KTLocalizedString("\"%@\" is not a setting: write KEY=VALUE."),
                                          {std::string(text)});
        return result;
    }
    const KTSetting* setting = settingForKey(result.key);
    if (!setting) {
        result.error =
            KTStringWithFormat(KTLocalizedString("There is no setting named \"%@\"."), {result.key});
        return result;
    }
    std::string_view valueText = text.substr(equals + 1);
    if (auto value = setting->valueFromText(valueText))
        result.value = *value;
    else
        result.error =
            KTStringWithFormat(KTLocalizedString("\"%@\" is not a value of \"%@\", which takes %@."),
                               {std::string(valueText), result.key, setting->expectation()});
    return result;
}
