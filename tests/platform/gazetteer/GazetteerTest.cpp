#include "platform/gazetteer/KTGazetteer.h"

#include "platform/concurrency/KTLatch.h"
#include "platform/defaults/KTUserDefaults.h"
#include "tests/support/FakeReverseGeocoder.h"

#include <atomic>
#include <gtest/gtest.h>

namespace {

/// Collects answers and waits for a number of them.
class Answers {
public:
    KTGazetteer::DidFinish take() {
        return [this](const KTValue::Dictionary& answer) {
            std::lock_guard guard(mutex);
            texts.push_back(KTGazetteer::locationDescriptionFromDictionary(answer));
            changed.notify_all();
        };
    }
    std::vector<std::string> waitFor(std::size_t count) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return texts.size() >= count; });
        return texts;
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::string> texts;
};

KTPlaceAnswer city(const char* name) {
    return {.place = {{"city", name}}};
}

} // namespace

TEST(Gazetteer, AnswersEachQuestionOnceAndInOrder) {
    Answers answers;
    const auto first = std::make_shared<FakeReverseGeocoder>(city("A"));
    const auto second = std::make_shared<FakeReverseGeocoder>(city("B"));
    first->hold();
    KTGazetteer gazetteer(first);
    int announcements = 0;
    const auto observation = gazetteer.observe([&](const KTChange& change) {
        announcements += change.key == KTGazetteerDefaultReverseGeocoderDidChange && !change.isPrior;
    });
    for (int i = 0; i < 3; ++i)
        gazetteer.descriptionForLatitude(i, 0, answers.take());
    first->waitForQuestions(1);
    gazetteer.setSelectedReverseGeocoder(second); // the first never answers
    EXPECT_EQ(answers.waitFor(3), (std::vector<std::string>{"B", "B", "B"}));
    EXPECT_EQ(second->asked(), (std::vector<std::pair<double, double>>{{0, 0}, {1, 0}, {2, 0}}));
    EXPECT_EQ(announcements, 1);
}

TEST(Gazetteer, DoesNotAskAFailedGeocoderAgainInTheSameBatch) {
    Answers answers;
    const auto fake =
        std::make_shared<FakeReverseGeocoder>(KTPlaceAnswer{.error = "Timed out.", .isUnavailable = true});
    KTGazetteer gazetteer(fake);
    auto ask = [&](std::size_t count) {
        gazetteer.descriptionForLatitude(1, 2, answers.take());
        return answers.waitFor(count).back();
    };
    const std::string skipped = "Fake was not asked again after it had failed.";
    {
        const KTGazetteer::Batch outer(gazetteer);
        fake->setAnswer({.error = "No such position."});
        EXPECT_EQ(ask(1), "No such position.");
        fake->setAnswer({.error = "Timed out.", .isUnavailable = true});
        EXPECT_EQ(ask(2), "Timed out.") << "a failure of one position does not stop the batch";
        {
            const KTGazetteer::Batch inner(gazetteer);
            EXPECT_EQ(ask(3), skipped);
        }
        EXPECT_EQ(ask(4), skipped);
    }
    EXPECT_EQ(ask(5), "Timed out.") << "outside of a batch each question is asked";
    EXPECT_EQ(ask(6), "Timed out.");
    {
        const KTGazetteer::Batch batch(gazetteer);
        EXPECT_EQ(ask(7), "Timed out.");
        EXPECT_EQ(ask(8), skipped);
        gazetteer.setSelectedReverseGeocoder(std::make_shared<FakeReverseGeocoder>(city("C")));
        EXPECT_EQ(ask(9), "C");
    }
    EXPECT_EQ(fake->asked().size(), 5U);
}

TEST(Gazetteer, AnswersWhatIsLeftWhenItCloses) {
    Answers answers;
    const auto fake = std::make_shared<FakeReverseGeocoder>(city("A"));
    fake->hold();
    KTGazetteer gazetteer(fake);
    gazetteer.descriptionForLatitude(0, 0, answers.take());
    gazetteer.descriptionForLatitude(1, 0, answers.take());
    fake->waitForQuestions(1);
    gazetteer.close();
    gazetteer.descriptionForLatitude(2, 0, answers.take());
    const std::string closed = "Fake was not asked, because the program is about to end.";
    EXPECT_EQ(answers.waitFor(3), (std::vector<std::string>{"stopped", closed, closed}));
}

TEST(Gazetteer, DescribesAPlaceInOneLine) {
    auto describe = KTGazetteer::locationDescriptionFromDictionary;
    EXPECT_EQ(describe({{"country", "Switzerland"}, {"state", "Basel-City"}, {"city", "Basel"}}),
              "Basel, Basel-City, Switzerland");
    EXPECT_EQ(describe({{"country", "Monaco"}, {"city", "Monaco"}}), "Monaco");
    EXPECT_EQ(describe({{"country", "Greenland"}, {"countryCode", "GL"}, {"state", ""}}), "Greenland");
    EXPECT_EQ(describe({{"error", "No network."}}), "No network.");
    EXPECT_EQ(describe({}), "");
}

TEST(Gazetteer, FollowsTheSettings) {
    KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    KTGazetteer& shared = KTGazetteer::sharedGazetteer();
    const auto offline = shared.selectedReverseGeocoder();
    int announcements = 0;
    const auto observation = shared.observe([&](const KTChange& change) { announcements += change.isPrior; });
    settings.setValue("reverseGeocoderServer", "https://places.example.org");
    EXPECT_EQ(shared.selectedReverseGeocoder(), offline) << "an address alone sends nothing";
    settings.setValue("reverseGeocoder", "server");
    EXPECT_EQ(shared.selectedReverseGeocoder()->name(), "places.example.org");
    settings.setValue("reverseGeocoderServer", "https://other.example.org");
    EXPECT_EQ(shared.selectedReverseGeocoder()->name(), "other.example.org");
    settings.setValue("reverseGeocoder", "offline");
    EXPECT_EQ(shared.selectedReverseGeocoder(), offline);
    settings.setValue("reverseGeocoder", "offline");
    EXPECT_EQ(announcements, 3);
}
