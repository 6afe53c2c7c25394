#pragma once
#include "platform/network/HTTPAnswer.h"

#include <stop_token>
#include <utility>
#include <vector>

/// One GET request over HTTP or HTTPS. Sends no cookies, no credentials and no referrer, and keeps nothing.
/// Redirects are followed within the host only, and never from https to http.
struct HTTPGet {
    std::string url; ///< percent-encoded
    std::string userAgent;
    std::string language; ///< as in Accept-Language
    std::chrono::milliseconds timeout =
        std::chrono::seconds(10);        ///< from the first byte sent to the last received
    std::size_t largestBody = 1'000'000; ///< bytes, uncompressed
    std::vector<std::pair<std::string, std::string>> headers = {}; ///< further ones, name and value

    /// Waits for the answer, on a connection of its own. Any thread, with or without event loop, that a
    /// QCoreApplication outlives; the thread's other events are served meanwhile. Returns within a tenth of a
    /// second after @p stop.
    HTTPAnswer perform(const std::stop_token& stop) const;
};
