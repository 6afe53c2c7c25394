#pragma once
#include "platform/gazetteer/KTReverseGeocoder.h"

#include <condition_variable>
#include <mutex>

/// A reverse geocoder that answers what it was told to, and only while it is let.
class FakeReverseGeocoder : public KTReverseGeocoder {
public:
    explicit FakeReverseGeocoder(KTPlaceAnswer always, std::string label = "Fake")
        : answer(std::move(always)), title(std::move(label)) {}

    std::string name() const override { return title; }

    KTPlaceAnswer placeAtLatitude(double latitude, double longitude, const std::stop_token& stop) override {
        std::unique_lock lock(mutex);
        questions.emplace_back(latitude, longitude);
        changed.notify_all();
        const bool mayAnswer = changed.wait(lock, stop, [this] { return !isHeld; });
        return mayAnswer ? answer : KTPlaceAnswer{.error = "stopped"};
    }

    void hold() { setHeld(true); }
    void release() { setHeld(false); }
    void setAnswer(KTPlaceAnswer next) {
        std::lock_guard guard(mutex);
        answer = std::move(next);
    }
    void waitForQuestions(std::size_t count) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return questions.size() >= count; });
    }
    std::vector<std::pair<double, double>> asked() const {
        std::lock_guard guard(mutex);
        return questions;
    }

private:
    void setHeld(bool held) {
        std::lock_guard guard(mutex);
        isHeld = held;
        changed.notify_all();
    }

    mutable std::mutex mutex;
    std::condition_variable_any changed;
    KTPlaceAnswer answer;
    const std::string title;
    std::vector<std::pair<double, double>> questions;
    bool isHeld = false;
};
