#include "platform/defaults/KTUserDefaults.h"

#include "platform/defaults/KTArchiveText.h"
#include "tests/support/TestSupport.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

TEST(UserDefaultsTest, RunOverStoredOverRegistered) {
    TemporaryFolder folder;
    KTUserDefaults defaults(folder / "a/waymark.ini");
    EXPECT_EQ(defaults.doubleForKey("distanceRestriction"), 25);
    EXPECT_TRUE(defaults.setValue("distanceRestriction", 30));
    EXPECT_EQ(defaults.doubleForKey("distanceRestriction"), 30);
    defaults.setValueForThisRun("distanceRestriction", 40);
    defaults.setValueForThisRun("timeRestriction", 40);
    EXPECT_EQ(defaults.doubleForKey("distanceRestriction"), 40);
    EXPECT_EQ(contentOf(folder / "a/waymark.ini").find("40"), std::string::npos);
    defaults.setValue("distanceRestriction", 50);
    EXPECT_EQ(defaults.doubleForKey("distanceRestriction"), 50) << "the latest wish holds";
    defaults.setValue("distanceRestriction", {});
    EXPECT_EQ(defaults.doubleForKey("distanceRestriction"), 25);
    EXPECT_EQ(contentOf(folder / "a/waymark.ini").find("distanceRestriction"), std::string::npos);
    defaults.registerDefaults({{"plugin.size", 3}});
    EXPECT_EQ(defaults.integerForKey("plugin.size"), 3);
    EXPECT_TRUE(defaults.valueForKey("unheard-of").isAbsent());
}

TEST(UserDefaultsTest, ValuesOfEveryKindSurviveTheFile) {
    TemporaryFolder folder;
    const KTValue archive = KTValue::List{KTValue::Dictionary{
        {"name", "Ü, \"x\" = \\ ; 1"}, {"fields", KTValue::List{KTValue::Dictionary{{"key", "title"}}}}}};
    const std::pair<const char*, KTValue> values[] = {
        {"fade", true},
        {"shouldUseTimeRestriction", false},
        {"defaultAssumedTimeZoneOffset", -12600},
        {"defaultSampleLatitude", KTDecimal::fromText("-33.123456789012345678")},
        {"defaultPhotoImportLocation", "/tmp/Ünïcode, with; comma=\"x\"\n@end %20"},
        {"defaultTableColumns", KTValue::listOfTexts({"a", "b, c", ""})},
        {"defaultEditorGroups", archive},
        {"slideshowPlugin.autoAdvanceInterval", KTDecimal::fromText("2.5")},
    };
    {
        KTUserDefaults defaults(folder / "w.ini");
        for (const auto& [key, value] : values)
            EXPECT_TRUE(defaults.setValue(key, value));
    }
    KTUserDefaults again(folder / "w.ini");
    EXPECT_TRUE(again.isReadable());
    for (const auto& [key, value] : values)
        EXPECT_EQ(again.valueForKey(key), value) << key << " " << again.valueForKey(key).description();
    for (const KTValue& list : {KTValue(KTValue::List{}), KTValue::listOfTexts({"one"})}) {
        again.setValue("defaultTableColumns", list);
        EXPECT_EQ(KTUserDefaults(folder / "w.ini").valueForKey("defaultTableColumns"), list);
    }
}

TEST(UserDefaultsTest, ForeignKeysSurviveAndBadValuesFallBack) {
    TemporaryFolder folder;
    auto file = folder.file(
        "w.ini", "[General]\nfuture=keep me\nshouldShowTitleDefault=perhaps\ntimeRestriction=12.5\n"
                 "[other]\nkey=1, 2\n");
    KTUserDefaults defaults(file);
    EXPECT_TRUE(defaults.isReadable());
    EXPECT_TRUE(defaults.boolForKey("shouldShowTitleDefault"));
    EXPECT_EQ(defaults.doubleForKey("timeRestriction"), 12.5);
    EXPECT_EQ(defaults.textForKey("future"), "keep me");
    EXPECT_EQ(defaults.textsForKey("other/key"), (std::vector<std::string>{"1", "2"}));
    EXPECT_TRUE(defaults.setValue("plugin.count", 5));
    KTUserDefaults again(file);
    EXPECT_EQ(again.textForKey("future"), "keep me");
    EXPECT_EQ(again.integerForKey("plugin.count"), 5);
}

TEST(UserDefaultsTest, AFileThatCannotBeUsedIsReportedAndLeftAlone) {
    TemporaryFolder folder;
    KTUserDefaults onAFolder(folder.path());
    EXPECT_FALSE(onAFolder.isReadable());
    EXPECT_FALSE(onAFolder.setValue("fade", true));
    EXPECT_TRUE(onAFolder.boolForKey("fade"));

    auto garbage = folder.file("garbage.ini", "no settings here\n\x01\x02\n");
    KTUserDefaults onGarbage(garbage);
    EXPECT_FALSE(onGarbage.isReadable());
    EXPECT_FALSE(onGarbage.setValue("fade", true));
    EXPECT_EQ(contentOf(garbage), "no settings here\n\x01\x02\n");

    auto plain = folder.file("plain", "");
    KTUserDefaults belowAFile(plain / "w.ini");
    EXPECT_FALSE(belowAFile.setValue("fade", true));
}

TEST(UserDefaultsTest, AnnouncesEverySetUnderItsKey) {
    KTUserDefaults defaults;
    std::vector<std::string> heard;
    auto observation = defaults.observe([&](const KTChange& change) {
        heard.push_back(std::string(change.key) + (change.isPrior ? "?" : "!") +
                        change.oldValue.description() + " " + defaults.valueForKey(change.key).description());
    });
    defaults.setValue("defaultPhotoView", 2);
    defaults.setValueForThisRun("defaultPhotoView", 2);
    EXPECT_EQ(heard, (std::vector<std::string>{"defaultPhotoView? 1", "defaultPhotoView!1 2",
                                               "defaultPhotoView? 2", "defaultPhotoView!2 2"}));
}

TEST(UserDefaultsTest, TheStandardObjectCanBePointedElsewhere) {
    TemporaryFolder folder;
    auto file = folder.file("w.ini", "[General]\ndefaultPhotoView=7\n");
    EXPECT_TRUE(KTUserDefaults::useDomain(file));
    KTUserDefaults& standard = KTUserDefaults::standardUserDefaults();
    EXPECT_EQ(standard.integerForKey("defaultPhotoView"), 7);
    std::string heard;
    auto observation = standard.observe([&](const KTChange& change) { heard += change.key; });
    KTUserDefaults::useThrowAwayDomain();
    EXPECT_EQ(heard, "defaultPhotoView");
    EXPECT_EQ(standard.integerForKey("defaultPhotoView"), 1);
    EXPECT_TRUE(standard.setValue("defaultPhotoView", 9));
    EXPECT_EQ(contentOf(file).find('9'), std::string::npos);
}

TEST(UserDefaultsTest, SetsFromSeveralThreadsAllReachTheFile) {
    TemporaryFolder folder;
    {
        KTUserDefaults defaults(folder / "w.ini");
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([&, thread] {
                for (int i = 0; i <= 20; ++i) {
                    defaults.setValue("key" + std::to_string(thread), i);
                    defaults.valueForKey("key0");
                }
            });
    }
    KTUserDefaults again(folder / "w.ini");
    for (int thread = 0; thread < 4; ++thread)
        EXPECT_EQ(again.integerForKey("key" + std::to_string(thread)), 20);
}

} // namespace
