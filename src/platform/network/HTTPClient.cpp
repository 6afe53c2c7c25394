#include "platform/network/HTTPClient.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

namespace {

using Clock = std::chrono::steady_clock;
using Failure = HTTPAnswer::Failure;

constexpr std::chrono::milliseconds kPollInterval(50);
constexpr int kMostRedirects = 3;

QNetworkRequest requestFor(const HTTPGet& get, const QUrl& url) {
    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", QByteArray::fromStdString(get.userAgent));
    request.setRawHeader("Accept-Language", QByteArray::fromStdString(get.language));
    for (const auto& [name, value] : get.headers)
        request.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    for (auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    // Qt 6.4 at times loses a redirect that waits to be allowed, so redirects are requests of their own here.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    return request;
}

bool mayRedirect(const QUrl& from, const QUrl& to) {
    return to.host() == from.host() && to.userInfo().isEmpty() &&
           (to.scheme() == "https" || to.scheme() == from.scheme());
}

HTTPAnswer redirectedElsewhere(const QUrl& url) {
    const auto hidden = QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment;
    return {Failure::redirectedElsewhere, url.toDisplayString(hidden).toStdString()};
}

Failure failureOf(QNetworkReply::NetworkError error) {
    switch (error) {
    case QNetworkReply::ConnectionRefusedError:
        return Failure::refused;
    case QNetworkReply::RemoteHostClosedError:
        return Failure::closedEarly;
    case QNetworkReply::HostNotFoundError:
        return Failure::hostNotFound;
    case QNetworkReply::SslHandshakeFailedError:
        return Failure::notSecure;
    default:
        return Failure::other;
    }
}

/// One request on its way.
class Exchange {
public:
    Exchange(QNetworkAccessManager& accessManager, const HTTPGet& theGet, Clock::time_point latest,
             const std::stop_token& stopToken)
        : manager(accessManager), get(theGet), deadline(latest), stop(stopToken) {}

    HTTPAnswer perform(const QUrl& url);
    /// Where the answer redirects to; empty where it does not. As the server wrote it.
    QUrl redirectTarget() const;

private:
    void checkTime();
    void read();
    void end(Failure failure);
    void finish();

    QNetworkAccessManager& manager;
    const HTTPGet& get;
    const Clock::time_point deadline;
    const std::stop_token& stop;
    HTTPAnswer answer;
    std::unique_ptr<QNetworkReply> reply;
};

HTTPAnswer Exchange::perform(const QUrl& url) {
    reply.reset(manager.get(requestFor(get, url)));
    QEventLoop loop;
    QTimer poll;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [this] { read(); });
    QObject::connect(&poll, &QTimer::timeout, &loop, [this] { checkTime(); });
    poll.start(kPollInterval);
    if (!reply->isFinished())
        loop.exec();
    finish();
    return std::move(answer);
}

QUrl Exchange::redirectTarget() const {
    return reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
}

void Exchange::checkTime() {
    if (stop.stop_requested())
        end(Failure::stopped);
    else if (Clock::now() >= deadline)
        end(Failure::timedOut);
}

void Exchange::read() {
    const QByteArray piece = reply->readAll();
    answer.body.append(piece.data(), std::size_t(piece.size()));
    if (answer.body.size() > get.largestBody)
        end(Failure::tooLarge);
}

void Exchange::end(Failure failure) {
    if (answer.failure != Failure::none)
        return;
    answer.failure = failure;
    reply->abort();
}

void Exchange::finish() {
    if (!reply->isFinished()) // something else has ended the event loops of this thread
        end(Failure::stopped);
    if (answer.failure == Failure::none)
        read();
    if (answer.failure != Failure::none)
        return;
    answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    for (const auto& [name, value] : reply->rawHeaderPairs())
        answer.headers[name.toLower().toStdString()] = value.trimmed().toStdString();
    bool hasSeconds = false;
    const int seconds = reply->rawHeader("Retry-After").trimmed().toInt(&hasSeconds);
    if (hasSeconds && seconds >= 0)
        answer.retryAfter = std::chrono::seconds(seconds);
    if (answer.status < 400 && reply->error() != QNetworkReply::NoError) { // from 400 on, the status says it
        answer.failure = failureOf(reply->error());
        answer.detail = reply->errorString().toStdString();
    }
}

} // namespace

HTTPClient::HTTPClient() : manager(std::make_unique<QNetworkAccessManager>()) {}

HTTPClient::~HTTPClient() = default;

HTTPAnswer HTTPClient::get(const HTTPGet& request, const std::stop_token& stop) {
    const Clock::time_point deadline = Clock::now() + request.timeout;
    QUrl place = QUrl::fromEncoded(QByteArray::fromStdString(request.url));
    for (int redirects = 0;; ++redirects) {
        Exchange exchange(*manager, request, deadline, stop);
        HTTPAnswer answer = exchange.perform(place);
        if (answer.failure != Failure::none || exchange.redirectTarget().isEmpty())
            return answer;
        const QUrl target = place.resolved(exchange.redirectTarget());
        if (redirects == kMostRedirects || !mayRedirect(place, target))
            return redirectedElsewhere(target);
        place = target;
    }
}
