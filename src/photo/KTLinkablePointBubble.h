#pragma once
#include <string>
#include <vector>

class KTLinkablePoint;

/// What the bubble of a candidate location on the map says. Texts that do not apply are empty.
struct KTLinkablePointBubble {
    std::string title;       ///< "Preceding track point"
    std::string description; ///< "2 minutes before photo."
    std::string date;        ///< date and time in the application's display time zone
    std::string position;    ///< "47.55430° N, 7.59010° E, 260 m"
    std::string caution;     ///< why the position is doubtful
    std::string place;       ///< its place names, or that they are being fetched

    /// Asks the gazetteer for the place names if nobody has. Any thread.
    static KTLinkablePointBubble of(KTLinkablePoint& point);
    /// What is to be shown below the title.
    std::vector<std::string> lines() const;
};
