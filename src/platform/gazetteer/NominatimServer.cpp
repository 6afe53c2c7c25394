#include "platform/gazetteer/NominatimServer.h"

#include "platform/common/KTText.h"

#include <QUrl>

namespace {

constexpr QUrl::ComponentFormattingOptions kNothingElse =
    QUrl::FullyEncoded | QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment;

bool isUsable(const QUrl& url) {
    return url.isValid() && (url.scheme() == "https" || url.scheme() == "http") && !url.host().isEmpty() &&
           url.port() != 0 && url.toEncoded() == url.toEncoded(kNothingElse);
}

} // namespace

std::optional<NominatimServer> NominatimServer::fromAddress(std::string_view address) {
    std::string text(KTTrimmed(address));
    if (text.find_first_of(" \t\r\n") != std::string::npos)
        return std::nullopt;
    if (text.find("://") == std::string::npos)
        text.insert(0, "https://");
    QUrl url(QString::fromStdString(text));
    if (!isUsable(url))
        return std::nullopt;
    if (url.port() == (url.scheme() == "https" ? 443 : 80))
        url.setPort(-1);
    QByteArray encoded = url.toEncoded();
    while (encoded.endsWith('/'))
        encoded.chop(1);
    return NominatimServer{encoded.toStdString(), url.authority(QUrl::PrettyDecoded).toStdString()};
}
