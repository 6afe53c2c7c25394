#include "platform/observing/KTObservable.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

class Counter : public KTObservable {
public:
    void setValue(int newValue) {
        KTValue old = value;
        willChange("value");
        value = newValue;
        didChange("value", KTChange::Kind::Setting, {}, old);
    }
    int value = 0;
};

} // namespace

TEST(Observable, AnnouncesBeforeAndAfterInOrderOfObservers) {
    Counter counter;
    std::string heard;
    auto first = counter.observe([&](const KTChange& change) { heard += change.isPrior ? "a" : "A"; });
    auto second = counter.observe([&](const KTChange& change) {
        heard += change.isPrior ? "b" : "B";
        EXPECT_EQ(change.oldValue, change.isPrior ? KTValue() : KTValue(0));
    });
    counter.setValue(5);
    EXPECT_EQ(heard, "abAB");
}

TEST(Observable, AnObservationEndsWithItsTokenAndMayEndInsideItsHandler) {
    Counter counter;
    int calls = 0;
    KTObservable::Observation once;
    once = counter.observe([&](const KTChange&) {
        ++calls;
        once.stop();
    });
    {
        auto scoped = counter.observe([&](const KTChange&) { calls += 100; });
    }
    counter.setValue(1);
    EXPECT_EQ(calls, 1);
}

TEST(Observable, ATokenMayOutliveTheObservedObject) {
    KTObservable::Observation token;
    {
        Counter counter;
        token = counter.observe([](const KTChange&) {});
    }
    token.stop();
}

TEST(Observable, ObserversMayComeAndGoWhileOthersAnnounce) {
    Counter counter;
    std::atomic<int> heard = 0;
    std::thread announcer([&] {
        for (int i = 0; i < 2000; ++i)
            counter.setValue(i);
    });
    for (int i = 0; i < 200; ++i)
        auto observation = counter.observe([&](const KTChange&) { ++heard; });
    announcer.join();
    EXPECT_EQ(counter.value, 1999);
}
