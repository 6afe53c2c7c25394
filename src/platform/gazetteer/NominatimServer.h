#pragma once
#include <optional>
#include <string>
#include <string_view>

/// Where a Nominatim server is found.
struct NominatimServer {
    std::string url;  ///< percent-encoded, without slash at the end: "https://nominatim.example.org/service"
    std::string name; ///< host, and port where it is not the usual one

    /// Reads an address as people write it; without scheme it is taken as https. Nothing unless it is a web
    /// address of scheme, host, port and path alone: a user's name, a query or a fragment would be sent or
    /// lost without the user knowing.
    static std::optional<NominatimServer> fromAddress(std::string_view address);
};
