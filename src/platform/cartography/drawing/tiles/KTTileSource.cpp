#include "platform/cartography/drawing/tiles/KTTileSource.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"

#include <QUrl>

namespace {

constexpr qsizetype kLongestAttribution = 200;

KTTileSource openStreetMap() {
    return {.name = "OpenStreetMap",
            .pattern = "https://tile.openstreetmap.org/{z}/{x}/{y}.png",
            .needsContact = true,
            .attribution = "© OpenStreetMap contributors"};
}

/// One letter a sub-domain ("abc"), or words parted by commas ("tiles1,tiles2").
std::vector<std::string> subdomainsFromText(std::string_view text) {
    std::vector<std::string> names;
    if (text.find(',') == std::string_view::npos) {
        for (const char letter : KTTrimmed(text))
            names.emplace_back(1, letter);
        return names;
    }
    for (const std::string& part : KTSplit(text, ','))
        if (const std::string_view name = KTTrimmed(part); !name.empty())
            names.emplace_back(name);
    return names;
}

KTTileSource custom(const KTUserDefaults& settings) {
    KTTileSource source{.name = {},
                        .pattern = std::string(KTTrimmed(settings.textForKey("mapTilesPattern")))};
    source.subdomains = subdomainsFromText(settings.textForKey("mapTilesSubdomains"));
    source.key = KTTrimmed(settings.textForKey("mapTilesKey"));
    source.countsFromSouth = settings.boolForKey("mapTilesCountFromSouth");
    const auto number = [&](std::string_view settingKey) { // what is no sensible one is refused later
        return int(std::clamp<std::int64_t>(settings.integerForKey(settingKey), -1, 10'000));
    };
    source.minimumZoom = number("mapTilesMinimumZoom");
    source.maximumZoom = number("mapTilesMaximumZoom");
    source.tileSize = number("mapTilesSize");
    source.attribution = KTPlainAttribution(settings.textForKey("mapTilesAttribution"));
    source.name = source.host();
    return source;
}

/// The pattern's text with each placeholder replaced by what @p valueFor gives for the word in its braces.
std::string filledPattern(std::string_view pattern, const auto& valueFor) {
    std::string filled;
    for (std::size_t at = 0; at < pattern.size();) {
        const std::size_t open = pattern.find('{', at), close = pattern.find('}', open);
        if (open == std::string_view::npos || close == std::string_view::npos)
            return filled.append(pattern.substr(at));
        filled.append(pattern.substr(at, open - at));
        filled.append(valueFor(pattern.substr(open + 1, close - open - 1)));
        at = close + 1;
    }
    return filled;
}

std::string percentEncoded(const std::string& text) {
    return QUrl::toPercentEncoding(QString::fromStdString(text)).toStdString();
}

std::string text(std::string_view sentence, std::initializer_list<std::string> arguments = {}) {
    return KTStringWithFormat(KTLocalizedString(sentence), arguments);
}

bool isUsableAddress(const QUrl& url) {
    return url.isValid() && (url.scheme() == "https" || url.scheme() == "http") && !url.host().isEmpty() &&
           url.userInfo().isEmpty() && !url.hasFragment() && url.port() != 0;
}

std::optional<std::string> problemOfPattern(const KTTileSource& source) {
    bool hasZoom = false, hasColumn = false, hasRow = false, hasSubdomain = false, hasKey = false;
    std::string unknown;
    const std::string example = filledPattern(source.pattern, [&](std::string_view word) -> std::string {
        if (word == "z" || word == "x" || word == "y" || word == "-y") {
            (word == "z" ? hasZoom : word == "x" ? hasColumn : hasRow) = true;
            return "0";
        }
        if (word == "s" || word == "key") {
            (word == "s" ? hasSubdomain : hasKey) = true;
            return "a";
        }
        if (word != "r")
            unknown = word;
        return {};
    });
    if (!unknown.empty())
        return text("The address of the map tiles contains “{%@}”, which means nothing.", {unknown});
    if (!hasZoom || !hasColumn || !hasRow)
        return text("The address of the map tiles must contain {z}, {x} and {y}.");
    if (hasSubdomain && source.subdomains.empty())
        return text("The address of the map tiles contains {s}, but no sub-domains are set.");
    if (hasKey && source.key.empty())
        return text("The address of the map tiles contains {key}, but no key is set.");
    if (example.find_first_of(" \t\r\n{}") != std::string::npos ||
        !isUsableAddress(QUrl(QString::fromStdString(example), QUrl::StrictMode)))
        return text("“%@” is not the address of a web server.", {source.pattern});
    return std::nullopt;
}

} // namespace

std::optional<KTTileSource> KTTileSource::named(std::string_view name, const KTUserDefaults& settings) {
    if (name != "openstreetmap" && name != "custom")
        return std::nullopt;
    KTTileSource source = name == "custom" ? custom(settings) : openStreetMap();
    source.contact = KTTrimmed(settings.textForKey("mapTilesContact"));
    return source;
}

std::optional<std::string> KTTileSource::problem() const {
    if (pattern.empty())
        return text("No address of map tiles is set.");
    if (auto found = problemOfPattern(*this))
        return found;
    if (minimumZoom < 0 || minimumZoom > maximumZoom || maximumZoom > KTTileAddress::kLargestZoom)
        return text("The zooms of the map tiles must lie between 0 and %@, the minimum first.",
                    {std::to_string(KTTileAddress::kLargestZoom)});
    if (tileSize < 64 || tileSize > 1024)
        return text("The size of the map tiles must lie between 64 and 1024.");
    if (needsContact && contact.empty())
        return text("%@ gives its tiles only to those who say how they can be reached. Set an e-mail or web "
                    "address (mapTilesContact).",
                    {name});
    return std::nullopt;
}

bool KTTileSource::hasHighResolution() const {
    return pattern.find("{r}") != std::string::npos;
}

std::string KTTileSource::host() const {
    const QUrl url(QString::fromStdString(filledPattern(pattern, [&](std::string_view word) {
        return word == "s" && !subdomains.empty() ? subdomains.front() : std::string("0");
    })));
    return url.authority(QUrl::PrettyDecoded).toStdString();
}

std::string KTTileSource::urlFor(const KTTileAddress& tile) const {
    const std::string filled = filledPattern(pattern, [&](std::string_view word) -> std::string {
        if (word == "z")
            return std::to_string(tile.z);
        if (word == "x")
            return std::to_string(tile.x);
        if (word == "y" || word == "-y") {
            const bool fromSouth = countsFromSouth || word == "-y";
            return std::to_string(fromSouth ? (1 << tile.z) - 1 - tile.y : tile.y);
        }
        if (word == "s") // the same for the same tile, so that caches on the way know it again
            return subdomains[std::size_t(tile.x + tile.y) % subdomains.size()];
        if (word == "key")
            return percentEncoded(key);
        return tile.isHighResolution ? "@2x" : "";
    });
    return QUrl(QString::fromStdString(filled)).toEncoded().toStdString();
}

std::string KTTileSource::userAgent() const {
    const std::string agent = "Waymark/" WAYMARK_VERSION " (geotagging of photos";
    std::string reachable; // a header takes printable ASCII only
    for (const char letter : contact)
        if (letter >= ' ' && letter <= '~' && letter != '(' && letter != ')')
            reachable += letter;
    return reachable.empty() ? agent + ")" : agent + "; " + reachable + ")";
}

std::string KTPlainAttribution(std::string_view given) {
    const QString markup = QString::fromStdString(KTValidUTF8(given));
    QString plain;
    bool isInTag = false;
    for (const QChar character : markup) {
        if (character == '<')
            isInTag = true;
        else if (character == '>')
            isInTag = false;
        else if (!isInTag)
            plain += character.isSpace() ? QChar(' ') : character;
    }
    for (const auto& [entity, character] : {std::pair("&copy;", "©"),
                                            {"&nbsp;", " "},
                                            {"&lt;", "<"},
                                            {"&gt;", ">"},
                                            {"&quot;", "\""},
                                            {"&amp;", "&"}})
        plain.replace(QString(entity), QString::fromUtf8(character));
    plain.removeIf([](QChar character) { // control characters, and those that turn the direction of writing
        return character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
    });
    plain = plain.simplified();
    if (plain.size() > kLongestAttribution)
        plain = plain.left(kLongestAttribution - 1) + QChar(0x2026);
    return plain.toStdString();
}
