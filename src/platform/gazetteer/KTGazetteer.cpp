#include "platform/gazetteer/KTGazetteer.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

KTGazetteer::Batch::Batch(KTGazetteer& asked) : gazetteer(asked) {
    std::lock_guard guard(gazetteer.mutex);
    ++gazetteer.batches;
}

KTGazetteer::Batch::~Batch() {
    std::lock_guard guard(gazetteer.mutex);
    if (--gazetteer.batches == 0)
        gazetteer.isSkipping = false;
}

KTGazetteer::KTGazetteer(std::shared_ptr<KTReverseGeocoder> reverseGeocoder)
    : selected(std::move(reverseGeocoder)) {}

KTGazetteer::~KTGazetteer() {
    close();
}

void KTGazetteer::close() {
    std::deque<Question> unanswered;
    {
        std::lock_guard guard(mutex);
        isClosed = true;
        unanswered.swap(questions);
        asking.request_stop();
    }
    if (worker.joinable()) {
        worker.request_stop();
        ended.wait(); // serving those who receive its answers, should this be the main thread
        worker.join();
    }
    for (const Question& question : unanswered)
        descriptionForLatitude(question.latitude, question.longitude, question.didFinish);
}

std::shared_ptr<KTReverseGeocoder> KTGazetteer::selectedReverseGeocoder() const {
    std::lock_guard guard(mutex);
    return selected;
}

void KTGazetteer::setSelectedReverseGeocoder(std::shared_ptr<KTReverseGeocoder> reverseGeocoder) {
    willChange(KTGazetteerDefaultReverseGeocoderDidChange);
    {
        std::lock_guard guard(mutex);
        selected.swap(reverseGeocoder);
        isSkipping = false;
        asking.request_stop();
    }
    didChange(KTGazetteerDefaultReverseGeocoderDidChange);
}

KTValue::Dictionary KTGazetteer::notAskedAgain() const {
    const char* format = isClosed ? "%@ was not asked, because the program is about to end."
                                  : "%@ was not asked again after it had failed.";
    return {{"error", KTStringWithFormat(KTLocalizedString(format), {selected->name()})}};
}

void KTGazetteer::descriptionForLatitude(double latitude, double longitude, DidFinish didFinish) {
    KTValue::Dictionary reason;
    {
        std::lock_guard guard(mutex);
        if (!isClosed && !isSkipping) {
            questions.push_back({latitude, longitude, std::move(didFinish)});
            if (!worker.joinable())
                worker = std::jthread([this](const std::stop_token& stop) {
                    answerQuestions(stop);
                    ended.signal();
                });
            return changed.notify_one();
        }
        reason = notAskedAgain();
    }
    didFinish(reason);
}

void KTGazetteer::answerQuestions(const std::stop_token& stop) {
    std::unique_lock lock(mutex);
    while (changed.wait(lock, stop, [this] { return !questions.empty(); }) && !stop.stop_requested()) {
        Question question = std::move(questions.front());
        questions.pop_front();
        const auto asked = selected;
        std::optional<KTValue::Dictionary> answer;
        if (isSkipping)
            answer = notAskedAgain();
        asking = std::stop_source();
        const std::stop_token stopAsking = asking.get_token();
        lock.unlock();
        if (!answer)
            answer = ask(*asked, question, stopAsking);
        if (answer)
            question.didFinish(*answer);
        else
            putAgain(std::move(question));
        question.didFinish = nullptr; // what it holds must not go while the lock is held
        lock.lock();
    }
}

/// Nothing when another reverse geocoder was selected meanwhile.
std::optional<KTValue::Dictionary> KTGazetteer::ask(KTReverseGeocoder& reverseGeocoder,
                                                    const Question& question, const std::stop_token& stop) {
    const KTPlaceAnswer answer = reverseGeocoder.placeAtLatitude(question.latitude, question.longitude, stop);
    std::lock_guard guard(mutex);
    if (selected.get() != &reverseGeocoder && !isClosed)
        return std::nullopt;
    isSkipping = isSkipping || (answer.isUnavailable && batches > 0);
    return answer.error ? KTValue::Dictionary{{"error", *answer.error}} : answer.place;
}

void KTGazetteer::putAgain(Question question) {
    std::lock_guard guard(mutex);
    questions.push_front(std::move(question));
}

std::string KTGazetteer::locationDescriptionFromDictionary(const KTValue::Dictionary& answer) {
    std::vector<std::string> names;
    for (const char* key : {"error", "city", "state", "country"}) {
        const auto entry = answer.find(key);
        const std::string* name = entry == answer.end() ? nullptr : entry->second.text();
        if (name != nullptr && !name->empty() && (names.empty() || names.back() != *name))
            names.push_back(*name);
    }
    return KTJoin(names, ", ");
}
