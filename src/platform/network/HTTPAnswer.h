#pragma once
#include <chrono>
#include <map>
#include <optional>
#include <string>

/// What came of a request over HTTP.
struct HTTPAnswer {
    enum class Failure {
        none, ///< there is an answer, with whatever status
        stopped,
        timedOut,
        tooLarge,
        redirectedElsewhere, ///< detail: the other place
        hostNotFound,
        refused,
        closedEarly,
        notSecure, ///< detail: the reason
        other      ///< detail: the reason
    };

    Failure failure = Failure::none;
    std::string detail = {};                         ///< for the user
    int status = 0;                                  ///< 0 when none arrived
    std::map<std::string, std::string> headers = {}; ///< names in lower case, the last of several alike
    std::string body = {};
    std::optional<std::chrono::seconds> retryAfter = {}; ///< how long the server asks to be left alone
};
