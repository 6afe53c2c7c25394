#pragma once
#include "platform/network/HTTPGet.h"

#include <memory>

class QNetworkAccessManager;

/// Makes one request after the other and keeps connections open from one to the next. Belongs to the thread
/// that makes it, which alone uses and destroys it, while there is a QCoreApplication.
class HTTPClient {
public:
    HTTPClient();
    ~HTTPClient();
    HTTPClient(const HTTPClient&) = delete;
    HTTPClient& operator=(const HTTPClient&) = delete;

    /// As HTTPGet::perform.
    HTTPAnswer get(const HTTPGet& request, const std::stop_token& stop);

private:
    const std::unique_ptr<QNetworkAccessManager> manager;
};
