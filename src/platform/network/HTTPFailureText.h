#pragma once
#include "platform/network/HTTPAnswer.h"

/// Why there is no answer of @p server, for users; of a request that was given @p timeout. Empty for an
/// answer of whatever status, a request that was stopped and an answer that was too large: what that means
/// depends on what was asked.
std::string HTTPFailureText(const HTTPAnswer& answer, const std::string& server,
                            std::chrono::milliseconds timeout);
