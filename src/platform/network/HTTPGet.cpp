#include "platform/network/HTTPGet.h"

#include "platform/network/HTTPClient.h"

HTTPAnswer HTTPGet::perform(const std::stop_token& stop) const {
    // May die on no other thread than the one that asks, which may end at any time between two requests.
    return HTTPClient().get(*this, stop);
}
