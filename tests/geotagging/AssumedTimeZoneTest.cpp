#include "geotagging/KTTimeZoneHUDController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTSystemTimeZone.h"
#include "tests/support/EventLoop.h"
#include "tests/support/TestSupport.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr const char* kOffset = "defaultAssumedTimeZoneOffset";
constexpr const char* kFollow = "applicationShouldAlwaysUsePhotosTimeZoneDefault";

/// The computer's zone as long as this lives.
class ComputersZone {
public:
    explicit ComputersZone(const char* name) { ::setenv("TZ", name, 1); }
    ~ComputersZone() { ::setenv("TZ", before.c_str(), 1); }

private:
    const std::string before = std::getenv("TZ") != nullptr ? std::getenv("TZ") : "UTC";
};

class AssumedTimeZone : public testing::Test {
protected:
    void SetUp() override {
        KTUserDefaults::useThrowAwayDomain();
        settings.setValue(kOffset, 3600);
        application.setTimeZone(KTTimeZone::utc());
    }
    void TearDown() override {
        KTUserDefaults::useThrowAwayDomain();
        application.setTimeZone(KTTimeZone::system());
    }

    static KTTimeZone hours(int east) { return KTTimeZone::fixed(east * 3600); }
    static KTTimeZone zone(const char* name) { return KTTimeZone::named(name).value(); }
    /// How often @p key is announced on @p object, after the change, while @p call runs.
    static int announcements(KTObservable& object, std::string_view key, const std::function<void()>& call) {
        int count = 0;
        auto observation = object.observe(
            [&](const KTChange& change) { count += change.key == key && !change.isPrior ? 1 : 0; });
        call();
        return count;
    }

    TemporaryFolder folder;
    KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    KTTimeZoneManager& application = KTTimeZoneManager::sharedTimeZoneManager();
    const std::filesystem::path link = folder.file("localtime", "rules");
    KTSystemTimeZone computer{link};
    KTTimeZoneHUDController panel{catalogue, computer};
    KTPhotoAssumedTimeZoneController& controller = panel.photoAssumedTimeZoneController();
};

TEST_F(AssumedTimeZone, GoesIntoTheCatalogueAndTheApplication) {
    controller.setTimeZone(hours(5));
    EXPECT_EQ(catalogue.assumedTimeZone(), hours(1)) << "not before the setup";
    controller.setup();
    EXPECT_EQ(controller.timeZone(), hours(1));
    EXPECT_EQ(application.timeZone(), hours(1));

    EXPECT_EQ(announcements(catalogue, "assumedTimeZone", [&] { controller.setTimeZone(hours(-3)); }), 1);
    EXPECT_EQ(settings.integerForKey(kOffset), -3 * 3600);
    EXPECT_EQ(application.timeZone(), hours(-3));
    auto again = [&] { controller.setTimeZone(hours(-3)); };
    EXPECT_EQ(announcements(settings, kOffset, again), 0) << "the same offset is not stored again";
    EXPECT_EQ(announcements(application, "timeZone", again), 0);
    EXPECT_EQ(announcements(catalogue, "assumedTimeZone", again), 1);

    controller.setTimeZone(zone("Asia/Kolkata"));
    EXPECT_EQ(catalogue.assumedTimeZone(), KTTimeZone::fixed(19'800));
    EXPECT_EQ(application.timeZone(), zone("Asia/Kolkata"));
    controller.tearDown();
    controller.setTimeZone(hours(2));
    settings.setValue(kFollow, true);
    EXPECT_EQ(catalogue.assumedTimeZone(), KTTimeZone::fixed(19'800));
    EXPECT_EQ(application.timeZone(), zone("Asia/Kolkata"));
}

TEST_F(AssumedTimeZone, IsTheApplicationsByASetting) {
    controller.setup();
    EXPECT_TRUE(controller.applicationTimeZoneShouldAlwaysUseAssumedTimeZone());
    auto set = [&](bool isFollowed) {
        return announcements(controller, "applicationTimeZoneShouldAlwaysUseAssumedTimeZone", [&] {
            controller.setApplicationTimeZoneShouldAlwaysUseAssumedTimeZone(isFollowed);
        });
    };
    EXPECT_EQ(set(false), 1);
    EXPECT_FALSE(settings.boolForKey(kFollow));
    controller.setTimeZone(hours(4));
    EXPECT_EQ(application.timeZone(), hours(1)) << "stays where it was";
    EXPECT_EQ(catalogue.assumedTimeZone(), hours(4));
    EXPECT_EQ(set(true), 1);
    EXPECT_EQ(application.timeZone(), hours(4)) << "at once";

    settings.setValue(kFollow, false);
    controller.setTimeZone(hours(5));
    EXPECT_EQ(application.timeZone(), hours(4));
    settings.setValue(kFollow, true); // by the preferences
    EXPECT_EQ(application.timeZone(), hours(5));
}

TEST_F(AssumedTimeZone, IsChosenInThePanel) {
    const ComputersZone tokyo("Asia/Tokyo");
    panel.setup();
    EXPECT_EQ(controller.timeZone(), hours(1)) << "the selected option is not applied at the start";
    EXPECT_EQ(panel.timeZoneOptionsSelectedIndex(), 0U);
    EXPECT_TRUE(panel.shouldHideOtherTimeZoneOption());

    auto select = [&](unsigned index) {
        EXPECT_EQ(announcements(panel, "timeZoneOptionsSelectedIndex",
                                [&] { panel.setTimeZoneOptionsSelectedIndex(index); }),
                  1);
        EXPECT_EQ(settings.integerForKey("defaultTimeZoneOptionsSelectedIndex"), index);
    };
    select(0);
    EXPECT_EQ(controller.timeZone(), zone("Asia/Tokyo"));
    EXPECT_EQ(catalogue.assumedTimeZone(), hours(9));
    select(2);
    EXPECT_FALSE(panel.shouldHideOtherTimeZoneOption());
    EXPECT_EQ(catalogue.assumedTimeZone(), hours(9)) << "up to the picker";
    controller.setDefaultTimeZone(zone("Asia/Kolkata"));
    EXPECT_EQ(catalogue.assumedTimeZone(), KTTimeZone::fixed(19'800));
    select(1);
    EXPECT_TRUE(panel.shouldHideOtherTimeZoneOption());
    EXPECT_EQ(catalogue.assumedTimeZone(), KTTimeZone::utc());
    panel.setTimeZoneOptionsSelectedIndex(2);
    panel.tearDown();

    KTTimeZoneHUDController nextStart(catalogue, computer);
    nextStart.setup();
    EXPECT_FALSE(nextStart.shouldHideOtherTimeZoneOption());
    EXPECT_EQ(catalogue.assumedTimeZone(), KTTimeZone::utc());
    EXPECT_EQ(nextStart.photoAssumedTimeZoneController().defaultTimeZone(), zone("Asia/Kolkata"));
    nextStart.openDateAndTimeShifter(); // nobody shows it
    int opened = 0;
    nextStart.setToggleDateAndTimeShifter([&] { ++opened; });
    nextStart.openDateAndTimeShifter();
    EXPECT_EQ(opened, 1);
}

TEST_F(AssumedTimeZone, StaysWhenTheComputersZoneChanges) {
    auto options = [](const char* name) {
        return std::vector<std::string>{"my computer's time zone (" + std::string(name) + ").", "GMT.",
                                        "another time zone…"};
    };
    const ComputersZone oslo("Europe/Oslo");
    panel.setup();
    panel.setTimeZoneOptionsSelectedIndex(0);
    EXPECT_EQ(panel.timeZoneOptions(), options("Europe/Oslo"));
    const KTTimeZone assumed = catalogue.assumedTimeZone();
    const ComputersZone tokyo("Asia/Tokyo");
    const int count = announcements(panel, "timeZoneOptions", [&] {
        std::filesystem::rename(folder.file("new", "other rules"), link);
        EXPECT_TRUE(runEventLoopUntil([&] { return panel.timeZoneOptions() == options("Asia/Tokyo"); }));
    });
    EXPECT_EQ(count, 1);
    EXPECT_EQ(catalogue.assumedTimeZone(), assumed);
    panel.tearDown();
    std::filesystem::remove(link);
    const ComputersZone lima("America/Lima");
    bool isTold = false;
    auto observation = computer.observe([&](const KTChange&) { isTold = true; });
    EXPECT_TRUE(runEventLoopUntil([&] { return isTold; }));
    EXPECT_EQ(panel.timeZoneOptions(), options("Asia/Tokyo")) << "no longer followed";
}

} // namespace
