#include "platform/common/KTTimeZoneManager.h"

#include "platform/defaults/KTUserDefaults.h"

#include <gtest/gtest.h>

#include <thread>

TEST(TimeZoneManager, AnnouncesAfterTheZoneHasChanged) {
    KTTimeZoneManager manager;
    EXPECT_EQ(manager.timeZone(), KTTimeZone::system());
    const KTTimeZone before = KTTimeZone::fixed(3600), after = KTTimeZone::fixed(-7200);
    manager.setTimeZone(before);
    std::vector<KTTimeZone> seen;
    auto observation = manager.observe([&](const KTChange& change) {
        EXPECT_EQ(change.key, "timeZone");
        seen.push_back(manager.timeZone()); // must not wait for the setter
    });
    manager.setTimeZone(after);
    EXPECT_EQ(seen, (std::vector{before, after}));
}

TEST(TimeZoneManager, IsReadWhileAnotherThreadSets) {
    KTTimeZoneManager manager;
    const KTTimeZone berlin = KTTimeZone::named("Europe/Berlin").value(), west = KTTimeZone::fixed(-7200);
    manager.setTimeZone(west);
    std::jthread setter([&] {
        for (int i = 0; i < 2000; ++i)
            manager.setTimeZone(i % 2 ? west : berlin);
    });
    for (int i = 0; i < 2000; ++i) {
        const KTTimeZone zone = manager.timeZone();
        ASSERT_TRUE(zone == berlin || zone == west);
    }
}

TEST(TimeZoneManager, RemembersTheZoneThatWasPicked) {
    const KTTimeZone computers = KTTimeZone::system();
    auto nextStart = [] {
        auto manager = std::make_unique<KTTimeZoneManager>();
        manager->setShouldUseComputerTimeZoneAutosaveName(
            "shouldUseComputerTimeZoneForAssumedTimeZoneDefault");
        manager->setDefaultTimeZoneAutosaveName("assumedTimeZoneDefaultOffset");
        return manager;
    };
    EXPECT_EQ(nextStart()->defaultTimeZone(), computers);
    for (const char* name : {"Europe/Berlin", "CET", "+05:45", "-03:30:15"}) {
        const KTTimeZone zone =
            KTTimeZone::fromText(name).value_or(KTTimeZone::named(name).value_or(computers));
        const auto manager = nextStart();
        manager->setDefaultTimeZone(zone);
        EXPECT_EQ(manager->timeZone(), zone);
        manager->setTimeZone(KTTimeZone::fixed(60));
        EXPECT_EQ(nextStart()->defaultTimeZone().name(), name);
        EXPECT_EQ(nextStart()->timeZone(), computers);
    }
    nextStart()->setDefaultTimeZone(computers); // and from then on whatever it is
    KTUserDefaults::standardUserDefaults().setValue("assumedTimeZoneDefaultOffset", "+01:00");
    EXPECT_EQ(nextStart()->defaultTimeZone(), computers);

    KTUserDefaults::standardUserDefaults().setValue("shouldUseComputerTimeZoneForAssumedTimeZoneDefault",
                                                    false);
    KTUserDefaults::standardUserDefaults().setValue("assumedTimeZoneDefaultOffset", "Europe/Atlantis");
    EXPECT_EQ(nextStart()->defaultTimeZone(), computers);
    KTUserDefaults::useThrowAwayDomain();
}
