#include "platform/defaults/KTSettingsTable.h"

#include "platform/defaults/KTUserDefaults.h"

#include <gtest/gtest.h>
#include <set>

namespace {

TEST(SettingsTableTest, RowsAreUniqueAndTheirDefaultsAreOfTheirType) {
    std::set<std::string_view> keys;
    for (const KTSetting& setting : KTSettingsTable::settings()) {
        EXPECT_TRUE(keys.insert(setting.key).second) << setting.key;
        EXPECT_EQ(setting.fixedDefault().isAbsent(), !setting.defaultText.data()) << setting.key;
    }
    KTUserDefaults defaults;
    EXPECT_TRUE(defaults.boolForKey("defautShouldOverwriteImageDirection"));
    EXPECT_EQ(defaults.integerForKey("defaultXMPSidecarStyle"), 1);
    EXPECT_EQ(defaults.valueForKey("defaultSampleLongitude"), KTDecimal::fromText("-123.268"));
    EXPECT_EQ(defaults.textsForKey("defaultTableColumns").size(), 7u);
    EXPECT_EQ(defaults.integerForKey("defaultAssumedTimeZoneOffset"),
              KTTimeZone::system().secondsFromGMT(KTInstantNow()));
    EXPECT_TRUE(defaults.valueForKey("defaultBackupPathBookmark").isAbsent());
    EXPECT_FALSE(defaults.boolForKey("fade"));
}

TEST(SettingsTableTest, ReadsAssignments) {
    struct Case {
        const char* text;
        KTValue expected; // absent for an error
    };
    const Case cases[] = {
        {"fade=YES", true},
        {"fade= off ", false},
        {"fade=0", false},
        {"fade=2", {}},
        {"fade=", {}},
        {"KTGeotaggingModeDefault=3", 3},
        {"KTGeotaggingModeDefault=-1", {}},
        {"KTGeotaggingModeDefault=1.5", {}},
        {"defaultAssumedTimeZoneOffset=-3600", -3600},
        {"distanceRestriction=12.75", KTDecimal::fromText("12.75")},
        {"distanceRestriction=12m", {}},
        {"defaultPhotoImportLocation=/a=b c", "/a=b c"},
        {"defaultPhotoImportLocation=", ""},
        {"defaultTableColumns=title|rating", KTValue::listOfTexts({"title", "rating"})},
        {"defaultTableColumns=", KTValue::List{}},
        {"defaultEditorGroups=[{\"name\":\"x\"}]", KTValue::List{KTValue::Dictionary{{"name", "x"}}}},
        {"defaultEditorGroups=[", {}},
        {"distanceUnits=imperial", "imperial"},
        {"distanceUnits=parsecs", {}},
        {"Fade=1", {}},
        {"fade", {}},
        {"=1", {}},
    };
    for (const Case& each : cases) {
        auto result = KTSettingsTable::parseAssignment(each.text);
        EXPECT_EQ(result.value, each.expected) << each.text << ": " << result.error;
        EXPECT_EQ(result.error.empty(), !each.expected.isAbsent()) << each.text;
    }
    EXPECT_NE(
        KTSettingsTable::parseAssignment("distanceUnits=parsecs").error.find("metric, imperial, nautical"),
        std::string::npos);
}

} // namespace
