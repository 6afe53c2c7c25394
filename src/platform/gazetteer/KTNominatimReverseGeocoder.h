#pragma once
#include "platform/gazetteer/KTReverseGeocoder.h"
#include "platform/gazetteer/NominatimServer.h"
#include "platform/gazetteer/PlaceCache.h"

#include <chrono>

/// Asks a Nominatim server of the user's choice. The server learns the position, rounded to 0.0001 degrees
/// (11 m), the user's language and this program's name and version, nothing else. Answers are kept as long as
/// the object lives and serve every position that is rounded alike. Made and destroyed on any thread while no
/// question is being answered. A QCoreApplication must outlive the questions.
class KTNominatimReverseGeocoder : public KTReverseGeocoder {
public:
    struct Options {
        std::chrono::milliseconds interval =
            std::chrono::seconds(1); ///< at least, between starts of requests
        std::chrono::milliseconds timeout = std::chrono::seconds(10); ///< of a whole request
        std::size_t keptAnswers = 10'000;                             ///< at most
    };

    /// @p serverAddress as the user wrote it: "https://nominatim.example.org", with or without path; without
    /// scheme it is taken as https. With an empty or unusable one every question is answered with an error
    /// and nothing is sent. Names are asked for in the language of QLocale's default at this moment.
    KTNominatimReverseGeocoder(std::string serverAddress, Options settings);
    /// With the options that a server which others use, too, expects.
    explicit KTNominatimReverseGeocoder(std::string serverAddress)
        : KTNominatimReverseGeocoder(std::move(serverAddress), Options()) {}

    /// Host, and port where it is not the usual one; an unusable address as it was given.
    std::string name() const override;
    /// The position is rounded, so what is found does not depend on which of two neighbouring photos is asked
    /// first. Waits until the server may be asked again, then for its answer, up to the timeout. A server
    /// that is not reached, refuses or sends something else is unavailable; one that asks to be left alone
    /// for a while (Retry-After) is not asked again before that, up to an hour.
    KTPlaceAnswer placeAtLatitude(double latitude, double longitude, const std::stop_token& stop) override;

private:
    using Clock = std::chrono::steady_clock;

    bool waitForTurn(const std::stop_token& stop);
    KTPlaceAnswer ask(RoundedPosition position, const std::stop_token& stop);
    std::string urlFor(RoundedPosition position) const;

    const std::string address;
    const std::optional<NominatimServer> server;
    const Options options;
    const std::string language; ///< as in Accept-Language
    // The asking thread's.
    PlaceCache known;
    Clock::time_point nextRequest = {};
    Clock::time_point silentUntil = {};
    KTPlaceAnswer reasonForSilence;
};
