#include "platform/gazetteer/KTNominatimReverseGeocoder.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/gazetteer/NominatimAnswer.h"
#include "platform/network/HTTPFailureText.h"
#include "platform/network/HTTPGet.h"

#include <QLocale>
#include <condition_variable>
#include <mutex>

namespace {

using Failure = HTTPAnswer::Failure;

constexpr const char* kUserAgent = "Waymark/" WAYMARK_VERSION " (geotagging of photos)";
/// Small settlements and the parts of a city, with all that they belong to; streets and houses are left out.
constexpr const char* kSettlementZoom = "14";
constexpr std::chrono::seconds kLongestSilence = std::chrono::hours(1);

/// The user's language, then English, which servers know more names in than in most others.
std::string wantedLanguages() {
    const QLocale user;
    if (user.language() == QLocale::C)
        return "en";
    std::string language = user.bcp47Name().toStdString();
    return language == "en" ? language : language + ",en";
}

KTPlaceAnswer unavailable(std::string_view sentence, std::initializer_list<std::string> arguments) {
    return {{}, KTStringWithFormat(KTLocalizedString(sentence), arguments), true};
}

KTPlaceAnswer unusableAddress(const std::string& address) {
    if (KTTrimmed(address).empty())
        return unavailable("No server is set that place names could be fetched from.", {});
    return unavailable("“%@” is not the address of a server that place names could be fetched from.",
                       {address});
}

KTPlaceAnswer stopped() {
    return {{}, KTLocalizedString("The search for places was cancelled.")};
}

KTPlaceAnswer answerForFailure(const HTTPAnswer& answer, const std::string& server,
                               std::chrono::milliseconds timeout) {
    if (answer.failure == Failure::stopped)
        return stopped();
    if (answer.failure == Failure::tooLarge)
        return unavailable("%@ sent far more than place names.", {server});
    return {{}, HTTPFailureText(answer, server, timeout), true};
}

KTPlaceAnswer answerForStatus(int status, const std::string& server) {
    const std::string code = std::to_string(status);
    if (status == 401 || status == 403)
        return unavailable("%@ refuses to give place names (HTTP status %@).", {server, code});
    if (status == 404)
        return unavailable("%@ gives no place names at this address (HTTP status %@).", {server, code});
    if (status == 429)
        return unavailable("%@ was asked too often and wants a pause (HTTP status %@).", {server, code});
    if (status >= 500)
        return unavailable("%@ cannot answer at the moment (HTTP status %@).", {server, code});
    return unavailable("%@ gave an unexpected answer (HTTP status %@).", {server, code});
}

KTPlaceAnswer answerForOtherContent(const std::string& complaint, const std::string& server) {
    if (complaint.empty())
        return unavailable("What %@ answered is not a place. Is it a Nominatim server?", {server});
    return unavailable("%@ answered “%@”.", {server, complaint});
}

} // namespace

KTNominatimReverseGeocoder::KTNominatimReverseGeocoder(std::string serverAddress, Options settings)
    : address(std::move(serverAddress)), server(NominatimServer::fromAddress(address)), options(settings),
      language(wantedLanguages()), known(options.keptAnswers) {}

std::string KTNominatimReverseGeocoder::name() const {
    return server ? server->name : address;
}

KTPlaceAnswer KTNominatimReverseGeocoder::placeAtLatitude(double latitude, double longitude,
                                                          const std::stop_token& stop) {
    if (!server)
        return unusableAddress(address);
    const auto position = RoundedPosition::nearestTo(latitude, longitude);
    if (!position)
        return {{}, KTLocalizedString("This position does not exist.")};
    if (const KTValue::Dictionary* place = known.find(*position))
        return {*place};
    if (Clock::now() < silentUntil)
        return reasonForSilence;
    if (!waitForTurn(stop))
        return stopped();
    KTPlaceAnswer answer = ask(*position, stop);
    if (!answer.error)
        known.insert(*position, answer.place);
    return answer;
}

/// False when stopped.
bool KTNominatimReverseGeocoder::waitForTurn(const std::stop_token& stop) {
    std::mutex mutex;
    std::condition_variable_any stopping;
    std::unique_lock lock(mutex);
    stopping.wait_until(lock, stop, nextRequest, [] { return false; });
    if (stop.stop_requested())
        return false;
    nextRequest = Clock::now() + options.interval;
    return true;
}

KTPlaceAnswer KTNominatimReverseGeocoder::ask(RoundedPosition position, const std::stop_token& stop) {
    HTTPAnswer answer = HTTPGet{urlFor(position), kUserAgent, language, options.timeout}.perform(stop);
    if (answer.failure != Failure::none)
        return answerForFailure(answer, server->name, options.timeout);
    // Some servers say with this status, too, that there is no place.
    if (answer.status == 200 || answer.status == 404) {
        NominatimAnswer said = NominatimAnswer::fromJSON(answer.body);
        if (said.place)
            return {std::move(*said.place)};
        if (answer.status == 200)
            return answerForOtherContent(said.complaint, server->name);
    }
    KTPlaceAnswer refusal = answerForStatus(answer.status, server->name);
    if (answer.retryAfter) {
        silentUntil = Clock::now() + std::min(*answer.retryAfter, kLongestSilence);
        reasonForSilence = refusal;
    }
    return refusal;
}

std::string KTNominatimReverseGeocoder::urlFor(RoundedPosition position) const {
    return server->url + "/reverse?format=jsonv2&lat=" + position.latitudeText() +
           "&lon=" + position.longitudeText() + "&zoom=" + kSettlementZoom +
           "&addressdetails=1&accept-language=" + language;
}
