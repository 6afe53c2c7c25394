#pragma once
#include "platform/common/KTDecimal.h"

#include <optional>
#include <string_view>
#include <vector>

/// Reads latitudes and longitudes from a text, for KTCoordinates alone.
class CoordinateReader {
public:
    enum class Axis { Unknown, Latitude, Longitude };
    struct Coordinate {
        KTDecimal degrees;
        Axis axis = Axis::Unknown; ///< as a letter or a label says
    };

    /// The coordinates of @p text, one or two, which are not yet looked at for their range; empty for every
    /// other text. @p commaIsDecimal takes a comma between two digits as part of the number.
    static std::vector<Coordinate> coordinatesOf(std::string_view text, bool commaIsDecimal);

private:
    enum class Kind { Number, Degrees, Minutes, Seconds, Letter, Label, Separator };
    struct Token {
        Kind kind;
        std::string_view text = {}; ///< of a number, without its sign
        bool isNegative = false;    ///< a number with a minus sign, a letter for south or west
        bool hasSign = false;
        Axis axis = Axis::Unknown; ///< of a letter or a label
    };
    using Tokens = std::vector<Token>;

    CoordinateReader(std::string_view readText, bool comma) : text(readText), commaIsDecimal(comma) {}
    bool tokenize();
    bool takeNumber();
    bool takeWord();
    bool takeMark();
    bool skip(std::initializer_list<std::string_view> alternatives);
    std::vector<Tokens> parts() const;
    std::vector<Tokens> partsAt(std::size_t second) const;
    static std::optional<Coordinate> coordinateOf(const Tokens& part);
    static std::optional<KTDecimal> sum(const std::vector<Token>& numbers);

    std::string_view text; // what is still to be read
    const bool commaIsDecimal;
    Tokens tokens;
};
