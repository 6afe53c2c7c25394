#include "platform/gazetteer/NominatimAnswer.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qsizetype kLongestComplaint = 200;

/// What people call a place's city, the best first. Villages stand before the municipalities that group them;
/// the parts of a city stand in where a server leaves the city itself out, as for Monaco.
constexpr const char* kCityKeys[] = {
    "city",          "town",   "village",           "municipality", "hamlet",        "borough",
    "city_district", "suburb", "isolated_dwelling", "quarter",      "neighbourhood", "locality"};
/// What countries call their first-level division.
constexpr const char* kStateKeys[] = {"state", "province"};
/// A region mostly groups first-level divisions and a county mostly is part of one, but where neither state
/// nor province exists (Finland, Ireland, Portugal), one of these is the division.
constexpr const char* kOtherStateKeys[] = {"region", "state_district", "county"};

QString textAt(const QJsonObject& object, const char* key) {
    return object[QLatin1String(key)].toString().simplified();
}

template<std::size_t Count>
QString firstTextOf(const QJsonObject& object, const char* const (&keys)[Count]) {
    for (const char* key : keys)
        if (QString text = textAt(object, key); !text.isEmpty())
            return text;
    return {};
}

/// Cities that are first-level divisions themselves (Berlin, Tokyo) come with a division's code but without
/// "state"; and where a ward is called a city too, it stands under "city" alone. The displayed name still
/// holds the division, last before postcode and country.
QString divisionInDisplayedName(const QJsonObject& answer, const QJsonObject& address) {
    if (textAt(address, "ISO3166-2-lvl4").isEmpty())
        return {};
    QStringList parts = textAt(answer, "display_name").split(", ");
    for (const char* key : {"country", "postcode"})
        if (!parts.isEmpty() && parts.last() == textAt(address, key))
            parts.removeLast();
    return parts.isEmpty() ? QString() : parts.last();
}

QString stateOf(const QJsonObject& answer, const QJsonObject& address) {
    if (QString state = firstTextOf(address, kStateKeys); !state.isEmpty())
        return state;
    if (QString state = divisionInDisplayedName(answer, address); !state.isEmpty())
        return state;
    return firstTextOf(address, kOtherStateKeys);
}

QString countryCodeOf(const QJsonObject& address) {
    const QString code = textAt(address, "country_code").toUpper();
    const bool isCode = code.size() == 2 && std::ranges::all_of(code, [](QChar letter) {
                            return letter >= u'A' && letter <= u'Z';
                        });
    return isCode ? code : QString();
}

KTValue::Dictionary placeOf(const QJsonObject& answer, const QJsonObject& address) {
    KTValue::Dictionary place;
    const std::pair<const char*, QString> texts[] = {{"city", firstTextOf(address, kCityKeys)},
                                                     {"state", stateOf(answer, address)},
                                                     {"country", textAt(address, "country")},
                                                     {"countryCode", countryCodeOf(address)}};
    for (const auto& [key, text] : texts)
        if (!text.isEmpty())
            place.emplace(key, text.toStdString());
    return place;
}

/// Some servers wrap their words: {"error": {"code": 400, "message": "…"}}.
QString complaintOf(const QJsonValue& error) {
    const QString words = error.isObject() ? textAt(error.toObject(), "message") : error.toString();
    return words.simplified().left(kLongestComplaint);
}

} // namespace

NominatimAnswer NominatimAnswer::fromJSON(std::string_view body) {
    const QJsonObject answer =
        QJsonDocument::fromJson(QByteArray::fromRawData(body.data(), qsizetype(body.size()))).object();
    if (const QJsonValue error = answer["error"]; !error.isUndefined()) {
        const QString complaint = complaintOf(error);
        if (complaint.compare(QLatin1String("Unable to geocode"), Qt::CaseInsensitive) == 0)
            return {KTValue::Dictionary(), {}};
        return {std::nullopt, complaint.toStdString()};
    }
    const QJsonValue address = answer["address"];
    if (!address.isObject())
        return {};
    return {placeOf(answer, address.toObject()), {}};
}
