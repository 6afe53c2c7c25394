#include "platform/common/KTTimeZoneManager.h"

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
