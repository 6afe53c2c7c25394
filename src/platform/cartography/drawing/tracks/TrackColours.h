#pragma once
#include <QColor>

/// Colours of tracks, which can be told apart from each other and from the map below, also by most people who
/// see fewer colours: neighbours in the table differ in brightness as well.
struct TrackColours {
    static constexpr std::size_t kCount = 10;

    /// @p number is taken modulo the count.
    static QColor line(std::size_t number, bool isDark);
    /// What a line is set off with from the map and from the tracks below it.
    static QColor casing(bool isDark);
};
