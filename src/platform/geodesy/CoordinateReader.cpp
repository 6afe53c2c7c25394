#include "platform/geodesy/CoordinateReader.h"

#include "platform/common/KTText.h"

#include <algorithm>

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isASCIILetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

KTDecimal decimalOf(std::string_view digits) {
    std::string plain(digits);
    std::ranges::replace(plain, ',', '.');
    return KTDecimal::fromText(plain).value_or(KTDecimal::notANumber());
}

bool isWhole(const KTDecimal& number) {
    return number.rounded(0) == number;
}

} // namespace

std::vector<CoordinateReader::Coordinate> CoordinateReader::coordinatesOf(std::string_view text,
                                                                          bool commaIsDecimal) {
    CoordinateReader reader(text, commaIsDecimal);
    if (!reader.tokenize())
        return {};
    std::vector<Coordinate> coordinates;
    for (const Tokens& part : reader.parts()) {
        const auto coordinate = coordinateOf(part);
        if (!coordinate)
            return {};
        coordinates.push_back(*coordinate);
    }
    return coordinates;
}

bool CoordinateReader::skip(std::initializer_list<std::string_view> alternatives) {
    for (std::string_view alternative : alternatives)
        if (text.starts_with(alternative)) {
            text.remove_prefix(alternative.size());
            return true;
        }
    return false;
}

bool CoordinateReader::tokenize() {
    while (!text.empty()) {
        if (skip({" ", "\t", "\r", "\u00A0", "\u202F", "\u2009", ":", "=", "(", ")", "[", "]", "{", "}"}))
            continue;
        if (skip({",", ";", "\n", "/", "|"})) {
            tokens.push_back({.kind = Kind::Separator});
            continue;
        }
        if (!takeMark() && !takeNumber() && !takeWord())
            return false;
    }
    return true;
}

bool CoordinateReader::takeMark() {
    const bool followsNumber = !tokens.empty() && tokens.back().kind == Kind::Number;
    if (skip({"°", "º", "˚"}))
        tokens.push_back({.kind = Kind::Degrees});
    else if (skip({"″", "”", "“", "''", "′′", "’’"}) || (followsNumber && skip({"\""})))
        tokens.push_back({.kind = Kind::Seconds});
    else if (skip({"′", "’", "‘", "'", "´"}))
        tokens.push_back({.kind = Kind::Minutes});
    else
        return skip({"\""}); // around the names of a dictionary
    return true;
}

bool CoordinateReader::takeNumber() {
    Token number{.kind = Kind::Number};
    const std::string_view before = text;
    if (skip({"-", "−", "–"}))
        number.isNegative = number.hasSign = true;
    else if (skip({"+"}))
        number.hasSign = true;
    std::size_t length = 0;
    bool hasPoint = false, hasDigit = false;
    for (; length < text.size(); ++length) {
        const char c = text[length];
        const bool isPoint = c == '.' || (commaIsDecimal && c == ',' && hasDigit &&
                                          length + 1 < text.size() && isDigit(text[length + 1]));
        if (isPoint && hasPoint)
            return false;
        if (!isPoint && !isDigit(c))
            break;
        hasPoint |= isPoint;
        hasDigit |= isDigit(c);
    }
    // A sign right behind a number would be a dash between two numbers, or nothing that one writes.
    const bool touchesNumber =
        !tokens.empty() && tokens.back().kind == Kind::Number && tokens.back().text.end() == before.begin();
    if (!hasDigit || touchesNumber) {
        text = before;
        return false;
    }
    number.text = text.substr(0, length);
    text.remove_prefix(length);
    tokens.push_back(number);
    return true;
}

bool CoordinateReader::takeWord() {
    struct Word {
        std::string_view word;
        Token token;
    };
    static const Word words[] = {
        {"n", {.kind = Kind::Letter, .axis = Axis::Latitude}},
        {"north", {.kind = Kind::Letter, .axis = Axis::Latitude}},
        {"s", {.kind = Kind::Letter, .isNegative = true, .axis = Axis::Latitude}},
        {"south", {.kind = Kind::Letter, .isNegative = true, .axis = Axis::Latitude}},
        {"e", {.kind = Kind::Letter, .axis = Axis::Longitude}},
        {"east", {.kind = Kind::Letter, .axis = Axis::Longitude}},
        {"w", {.kind = Kind::Letter, .isNegative = true, .axis = Axis::Longitude}},
        {"west", {.kind = Kind::Letter, .isNegative = true, .axis = Axis::Longitude}},
        {"lat", {.kind = Kind::Label, .axis = Axis::Latitude}},
        {"latitude", {.kind = Kind::Label, .axis = Axis::Latitude}},
        {"lon", {.kind = Kind::Label, .axis = Axis::Longitude}},
        {"lng", {.kind = Kind::Label, .axis = Axis::Longitude}},
        {"long", {.kind = Kind::Label, .axis = Axis::Longitude}},
        {"longitude", {.kind = Kind::Label, .axis = Axis::Longitude}},
        {"deg", {.kind = Kind::Degrees}},
        {"degrees", {.kind = Kind::Degrees}},
        {"min", {.kind = Kind::Minutes}},
        {"sec", {.kind = Kind::Seconds}},
    };
    const auto end = std::ranges::find_if_not(text, isASCIILetter);
    const std::string_view read = text.substr(0, std::size_t(end - text.begin()));
    const auto found =
        std::ranges::find_if(words, [&](const Word& word) { return KTEqualIgnoringCase(word.word, read); });
    if (found == std::end(words))
        return false;
    tokens.push_back(found->token);
    text.remove_prefix(read.size());
    return true;
}

std::vector<CoordinateReader::Tokens> CoordinateReader::partsAt(std::size_t second) const {
    return {Tokens(tokens.begin(), tokens.begin() + std::ptrdiff_t(second)),
            Tokens(tokens.begin() + std::ptrdiff_t(second), tokens.end())};
}

/// Where one coordinate ends and the next begins: at separators; else at the letters or labels, the second of
/// which begins the second part, or ends it when the first one ends the first; else at the second sign for
/// degrees; else in the middle.
std::vector<CoordinateReader::Tokens> CoordinateReader::parts() const {
    if (std::ranges::count(tokens, Kind::Separator, &Token::kind) != 0) {
        std::vector<Tokens> separated(1);
        for (const Token& token : tokens)
            if (token.kind == Kind::Separator)
                separated.emplace_back();
            else
                separated.back().push_back(token);
        std::erase_if(separated, [](const Tokens& part) { return part.empty(); });
        return separated.size() <= 2 ? separated : std::vector<Tokens>{{}};
    }
    for (Kind kind : {Kind::Label, Kind::Letter}) {
        const auto first = std::ranges::find(tokens, kind, &Token::kind);
        if (first == tokens.end())
            continue;
        const auto second = std::ranges::find(first + 1, tokens.end(), kind, &Token::kind);
        if (first == tokens.begin() && second != tokens.end())
            return partsAt(std::size_t(second - tokens.begin()));
        if (kind == Kind::Letter && first != tokens.begin() && first + 1 != tokens.end())
            return partsAt(std::size_t(first - tokens.begin()) + 1);
        return {tokens};
    }
    const auto first = std::ranges::find(tokens, Kind::Degrees, &Token::kind);
    if (first != tokens.end()) {
        const auto second = std::ranges::find(first + 1, tokens.end(), Kind::Degrees, &Token::kind);
        return second == tokens.end() ? std::vector<Tokens>{tokens}
                                      : partsAt(std::size_t(second - tokens.begin()) - 1);
    }
    const auto numbers = std::size_t(std::ranges::count(tokens, Kind::Number, &Token::kind));
    const bool isPair = numbers == tokens.size() && numbers % 2 == 0;
    return isPair ? partsAt(numbers / 2) : std::vector<Tokens>{tokens};
}

std::optional<CoordinateReader::Coordinate> CoordinateReader::coordinateOf(const Tokens& part) {
    constexpr Kind kMarks[] = {Kind::Degrees, Kind::Minutes, Kind::Seconds};
    std::vector<Token> numbers;
    const Token* letter = nullptr;
    Coordinate coordinate;
    bool isMarked = true;    // the number that was read last
    bool isComplete = false; // by a letter behind the numbers
    for (const Token& token : part) {
        if (isComplete)
            return std::nullopt;
        switch (token.kind) {
        case Kind::Number:
            numbers.push_back(token);
            isMarked = false;
            break;
        case Kind::Letter:
        case Kind::Label:
            if ((token.kind == Kind::Letter && letter != nullptr) ||
                (coordinate.axis != Axis::Unknown && coordinate.axis != token.axis))
                return std::nullopt;
            coordinate.axis = token.axis;
            if (token.kind == Kind::Letter) {
                letter = &token;
                isComplete = !numbers.empty();
            }
            break;
        default:
            if (isMarked || numbers.size() > std::size(kMarks) || kMarks[numbers.size() - 1] != token.kind)
                return std::nullopt;
            isMarked = true;
        }
    }
    const auto degrees = sum(numbers);
    if (!degrees || (letter != nullptr && numbers.front().isNegative))
        return std::nullopt;
    const bool isNegative = numbers.front().isNegative || (letter != nullptr && letter->isNegative);
    coordinate.degrees = isNegative ? -*degrees : *degrees;
    return coordinate;
}

/// Degrees, minutes and seconds, of which only the last may have decimals, without their sign.
std::optional<KTDecimal> CoordinateReader::sum(const std::vector<Token>& numbers) {
    if (numbers.empty() || numbers.size() > 3)
        return std::nullopt;
    const KTDecimal sixty = KTDecimal::fromInteger(60);
    KTDecimal degrees, unit = KTDecimal::fromInteger(1);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const KTDecimal number = decimalOf(numbers[i].text);
        const bool isLast = i + 1 == numbers.size();
        if (number.isNaN() || (!isLast && !isWhole(number)) ||
            (i > 0 && (numbers[i].hasSign || number >= sixty)))
            return std::nullopt;
        degrees = degrees + number / unit;
        unit = unit * sixty;
    }
    // Rounded where the division does not come out even, to a hundredth of a millimetre.
    return numbers.size() == 1 ? degrees : degrees.rounded(10);
}
