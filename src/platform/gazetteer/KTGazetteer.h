#pragma once
#include "platform/concurrency/KTLatch.h"
#include "platform/gazetteer/KTReverseGeocoder.h"
#include "platform/observing/KTObservable.h"

#include <condition_variable>
#include <deque>
#include <thread>

/// The key under which the gazetteer announces that another reverse geocoder answers from now on.
inline constexpr std::string_view KTGazetteerDefaultReverseGeocoderDidChange = "selectedReverseGeocoder";

/// Tells the place names of positions, one after the other on a thread of its own, through the reverse
/// geocoder that the user has selected. Any thread.
class KTGazetteer : public KTObservable {
public:
    /// Receives one answer: texts under "city", "state", "country" and "countryCode", those that are unknown
    /// left out, or under "error" the reason why there is no answer.
    using DidFinish = std::function<void(const KTValue::Dictionary&)>;

    /// While one lives, a reverse geocoder that has failed as such is not asked again: each of thousands of
    /// photos would wait for it to time out.
    class Batch {
    public:
        explicit Batch(KTGazetteer& asked);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        KTGazetteer& gazetteer;
    };

    /// The gazetteer of the process, whose reverse geocoder follows the settings "reverseGeocoder" and
    /// "reverseGeocoderServer". Is never destroyed; closes at the end of the program, if not before.
    static KTGazetteer& sharedGazetteer();
    explicit KTGazetteer(std::shared_ptr<KTReverseGeocoder> reverseGeocoder);
    ~KTGazetteer() override;
    /// For the end of the program: gives up the question being asked, answers all others with an error, and
    /// asks no more.
    void close();

    std::shared_ptr<KTReverseGeocoder> selectedReverseGeocoder() const;
    /// The question being asked of the former one is given up; it and those that wait are put to the new one.
    void setSelectedReverseGeocoder(std::shared_ptr<KTReverseGeocoder> reverseGeocoder);

    /// Asks for the place at a position in degrees. @p didFinish is called exactly once, on the gazetteer's
    /// thread, or before this returns where there is no point in asking; it must not wait for other threads.
    void descriptionForLatitude(double latitude, double longitude, DidFinish didFinish);
    /// The place in one line, from the city to the country; the reason where there is no answer; empty where
    /// nothing is known.
    static std::string locationDescriptionFromDictionary(const KTValue::Dictionary& answer);

private:
    struct Question {
        double latitude, longitude;
        DidFinish didFinish;
    };

    void answerQuestions(const std::stop_token& stop);
    std::optional<KTValue::Dictionary> ask(KTReverseGeocoder& reverseGeocoder, const Question& question,
                                           const std::stop_token& stop);
    void putAgain(Question question);
    KTValue::Dictionary notAskedAgain() const; // the mutex must be held

    mutable std::mutex mutex; // guards what follows; never held while asking, answering or announcing
    std::condition_variable_any changed;
    std::shared_ptr<KTReverseGeocoder> selected;
    std::deque<Question> questions;
    std::stop_source asking; // of the question being asked
    int batches = 0;
    bool isSkipping = false; // to the end of the batches
    bool isClosed = false;
    KTLatch ended;       // of the worker's work
    std::jthread worker; // begins with the first question
};
