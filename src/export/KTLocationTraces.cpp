#include "export/KTLocationTraces.h"

#include "metadata/KTExifTool.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/pictures/EmbeddedPreview.h"
#include "platform/pictures/PictureFile.h"

#include <QRegularExpression>
#include <algorithm>
#include <span>

namespace {

// Beginnings of tag names in small letters, of all blocks and makers.
constexpr std::string_view kPlaces[] = {
    "gps",      "geotag",       "geolocation", "geo:",    "latitude",    "longitude", "city",
    "state",    "province",     "country",     "sub-loc", "subloc",      "location",  "contentlocation",
    "landmark", "worldregion",  "placename",   "county",  "district",    "address",   "coordinates",
    "history",  "imagehistory", "destination", "iso3166", "positiondate"};
// What begins so and tells of no place.
constexpr std::string_view kNoPlaces[] = {"statement", "locationindex"};
// Blocks that describe the file, not the picture: its folder may well bear a place's name.
constexpr std::string_view kOtherGroups[] = {"File:", "ExifTool:", "ICC_Profile:"};
constexpr std::string_view kOfPhotographer[] = {"creator", "artist", "by-line", "copyright",   "rights",
                                                "credit",  "source", "contact", "webstatement"};
constexpr std::size_t kShortestName = 4; // "SI" is in many words
constexpr std::string_view kPositionsInXMP[] = {"GPSLatitude", "GPSLongitude", "GPSPosition"};

bool startsWithOneOf(std::string_view text, std::span<const std::string_view> beginnings) {
    return std::ranges::any_of(beginnings,
                               [&](std::string_view beginning) { return text.starts_with(beginning); });
}

/// "city" of "IPTC:City".
std::string nameOf(std::string_view key) {
    return KTLowercase(key.substr(key.find(':') + 1));
}

std::string inSmallLetters(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size())).toLower().toStdString();
}

std::vector<std::string> textsOf(const KTValue& value) {
    return value.list() != nullptr ? value.texts() : std::vector<std::string>{value.description()};
}

bool isPartOfWord(const QString& text, qsizetype at) {
    return at >= 0 && at < text.size() && text[at].isLetterOrNumber();
}

} // namespace

KTLocationTraces::KTLocationTraces(const KTTagDictionary& tags, const std::vector<std::string>& shown) {
    const auto add = [this](std::string_view text) {
        const std::string name = inSmallLetters(KTTrimmed(text));
        const bool isWord = QString::fromStdString(name).contains(QRegularExpression("\\p{L}{2}"));
        if (isWord && QString::fromStdString(name).size() >= qsizetype(kShortestName) && !isName(name))
            names.push_back(name);
    };
    for (const auto& [key, value] : tags)
        if (isPlaceKey(key) && !nameOf(key).starts_with("gps") &&
            nameOf(key).find("history") == std::string::npos)
            std::ranges::for_each(textsOf(value), add);
    std::ranges::for_each(shown, add);
}

bool KTLocationTraces::isPlaceKey(std::string_view key) {
    const std::string name = nameOf(key);
    return startsWithOneOf(name, kPlaces) && !startsWithOneOf(name, kNoPlaces) &&
           !startsWithOneOf(key, kOtherGroups);
}

bool KTLocationTraces::isName(std::string_view text) const {
    return std::ranges::count(names, inSmallLetters(KTTrimmed(text))) != 0;
}

/// The name that stands in @p text as a word of its own.
std::optional<std::string> KTLocationTraces::nameIn(std::string_view text) const {
    const QString whole = QString::fromStdString(inSmallLetters(text));
    for (const std::string& name : names) {
        const QString word = QString::fromStdString(name);
        for (qsizetype at = whole.indexOf(word); at >= 0; at = whole.indexOf(word, at + 1))
            if (!isPartOfWord(whole, at - 1) && !isPartOfWord(whole, at + word.size()))
                return name;
    }
    return std::nullopt;
}

/// A list without the elements that are names; absent for nothing else.
KTValue KTLocationTraces::withoutNames(const KTValue& value) const {
    if (value.list() == nullptr)
        return isName(value.description()) ? KTValue() : value;
    std::vector<std::string> kept = value.texts();
    const auto removed = std::erase_if(kept, [this](const std::string& text) { return isName(text); });
    return removed == 0 ? value : kept.empty() ? KTValue() : KTValue::listOfTexts(kept);
}

KTTagDictionary KTLocationTraces::removedFrom(const KTTagDictionary& tags) const {
    std::vector<KTTagDictionary::Entry> kept;
    for (const auto& [key, value] : tags)
        if (!isPlaceKey(key)) {
            const bool isContact = startsWithOneOf(nameOf(key), kOfPhotographer);
            if (KTValue rest = isContact ? value : withoutNames(value); rest.isSomething() || value.isNull())
                kept.push_back({key, rest.isSomething() ? std::move(rest) : value});
        }
    return KTTagDictionary(std::move(kept));
}

KTTagDictionary KTLocationTraces::removalsFor(const KTTagDictionary& tags) const {
    const KTTagDictionary kept = removedFrom(tags);
    KTTagDictionary removals;
    for (const auto& [key, value] : tags)
        if (key.text().starts_with("Composite:") || startsWithOneOf(key, kOtherGroups))
            continue;
        else if (const KTValue* rest = kept.find(key); rest == nullptr)
            removals.set(key, KTValue::null());
        else if (*rest != value)
            removals.set(key, *rest);
    return removals;
}

std::optional<std::string> KTLocationTraces::foundIn(const std::filesystem::path& file,
                                                     KTExifTool& tool) const {
    std::vector<KTTagDictionary::Entry> tags;
    if (const auto read = tool.extractAllTags(tags, file); !read.operationDidSucceed)
        return read.resultDescription();
    for (const auto& [key, value] : tags) {
        if (startsWithOneOf(key, kOtherGroups) || KTTrimmed(value.description()).empty())
            continue;
        const bool isContact = startsWithOneOf(nameOf(key), kOfPhotographer);
        for (const std::string& text : textsOf(value))
            if (isPlaceKey(key) || (!isContact && nameIn(text)))
                return key.text();
    }
    QFile content;
    if (!openPictureFile(content, file))
        return KTLocalizedString("a file that cannot be read");
    const QByteArray bytes = content.readAll();
    if (tellsPosition(bytes))
        return KTLocalizedString("a preview with a position");
    for (const std::string_view text : kPositionsInXMP)
        if (bytes.contains(QByteArrayView(text.data(), qsizetype(text.size()))))
            return KTLocalizedString("a preview with a position");
    return std::nullopt;
}
