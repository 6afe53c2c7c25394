#include "platform/network/HTTPFailureText.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <QLocale>

namespace {

using Failure = HTTPAnswer::Failure;

std::string filled(std::string_view sentence, std::initializer_list<std::string> arguments) {
    return KTStringWithFormat(KTLocalizedString(sentence), arguments);
}

std::string secondsText(std::chrono::milliseconds time) {
    return QLocale().toString(std::chrono::duration<double>(time).count(), 'g', 3).toStdString();
}

} // namespace

std::string HTTPFailureText(const HTTPAnswer& answer, const std::string& server,
                            std::chrono::milliseconds timeout) {
    switch (answer.failure) {
    case Failure::none:
    case Failure::stopped:
    case Failure::tooLarge:
        return {};
    case Failure::timedOut:
        return filled("%@ did not answer within %@ seconds.", {server, secondsText(timeout)});
    case Failure::redirectedElsewhere:
        return filled("%@ redirects to %@, which was not asked.", {server, answer.detail});
    case Failure::hostNotFound:
        return filled("%@ cannot be found. Is there a connection to the network?", {server});
    case Failure::refused:
        return filled("%@ does not accept connections.", {server});
    case Failure::closedEarly:
        return filled("%@ broke off before its answer was complete.", {server});
    case Failure::notSecure:
        return filled("A secure connection to %@ is not possible: %@.", {server, answer.detail});
    case Failure::other:
        return filled("%@ cannot be reached: %@.", {server, answer.detail});
    }
    return {};
}
