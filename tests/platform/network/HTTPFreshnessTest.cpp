#include "platform/network/HTTPFreshness.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

TEST(HTTPFreshnessTest, ReadsWhatTheHeadersSay) {
    constexpr std::chrono::seconds kOtherwise = 7 * 24h, kYear = std::chrono::years(1);
    const struct {
        std::map<std::string, std::string> headers;
        std::chrono::seconds lifetime;
        bool mayBeStored = true;
    } cases[] = {
        {{}, kOtherwise},
        {{{"cache-control", "public, max-age=3600"}}, 1h},
        {{{"cache-control", "Max-Age=\"3600\""}, {"age", "600"}}, 50min},
        {{{"cache-control", "max-age=60"}, {"age", "600"}}, 0s},
        {{{"cache-control", "max-age=60"}, {"expires", "Sat, 06 Nov 2094 08:49:37 GMT"}}, 60s},
        {{{"cache-control", "max-age=99999999999999999999"}}, kYear},
        {{{"cache-control", "max-age=soon"}}, 0s},
        {{{"cache-control", "no-cache, max-age=60"}}, 0s},
        {{{"cache-control", "no-store"}}, 0s, false},
        {{{"cache-control", "private"}}, kOtherwise},
        {{{"date", "Sun, 06 Nov 1994 08:49:37 GMT"}, {"expires", "Sun, 06 Nov 1994 09:49:37 GMT"}}, 1h},
        {{{"date", "Sun, 06 Nov 1994 08:49:37 GMT"}, {"expires", "Sun, 06 Nov 1994 07:00:00 GMT"}}, 0s},
        {{{"expires", "Sat, 06 Nov 2094 08:49:37 GMT"}}, kYear},
        {{{"expires", "0"}}, 0s},
    };
    const KTInstant now = KTInstantFromMilliseconds(1'600'000'000'000);
    for (const auto& each : cases) {
        const auto freshness = HTTPFreshness::of({.headers = each.headers}, now, kOtherwise);
        const std::string shown = each.headers.empty() ? "-" : each.headers.begin()->second;
        EXPECT_EQ(freshness.freshUntil - now, each.lifetime) << shown;
        EXPECT_EQ(freshness.mayBeStored, each.mayBeStored) << shown;
    }
}

} // namespace
