#include "platform/common/KTValue.h"

#include "platform/common/KTText.h"

KTValue::KTValue(KTDateComponents components)
    : content(std::make_shared<const KTDateComponents>(std::move(components))) {}
KTValue::KTValue(KTTimeZone zone) : content(std::make_shared<const KTTimeZone>(std::move(zone))) {}
KTValue::KTValue(List list) : content(std::make_shared<const List>(std::move(list))) {}
KTValue::KTValue(Dictionary dictionary)
    : content(std::make_shared<const Dictionary>(std::move(dictionary))) {}

KTValue KTValue::listOfTexts(const std::vector<std::string>& texts) {
    return KTValue(List(texts.begin(), texts.end()));
}

const KTDateComponents* KTValue::components() const {
    auto shared = std::get_if<Shared<KTDateComponents>>(&content);
    return shared ? shared->get() : nullptr;
}

const KTTimeZone* KTValue::timeZone() const {
    auto shared = std::get_if<Shared<KTTimeZone>>(&content);
    return shared ? shared->get() : nullptr;
}

const KTValue::List* KTValue::list() const {
    auto shared = std::get_if<Shared<List>>(&content);
    return shared ? shared->get() : nullptr;
}

const KTValue::Dictionary* KTValue::dictionary() const {
    auto shared = std::get_if<Shared<Dictionary>>(&content);
    return shared ? shared->get() : nullptr;
}

std::optional<KTDecimal> KTValue::number() const {
    if (auto value = integer())
        return KTDecimal::fromInteger(*value);
    if (auto value = decimal())
        return *value;
    return std::nullopt;
}

std::vector<std::string> KTValue::texts() const {
    std::vector<std::string> result;
    if (auto elements = list())
        for (const KTValue& element : *elements)
            result.push_back(element.description());
    return result;
}

std::string KTValue::description() const {
    if (auto value = text())
        return *value;
    if (auto value = number())
        return value->toText();
    if (auto value = flag())
        return *value ? "true" : "false";
    if (auto value = date())
        return KTISO8601Text(*value);
    if (auto value = components())
        return value->xmpString().value_or("");
    if (auto value = timeZone())
        return value->name();
    if (list())
        return KTJoin(texts(), ", ");
    if (auto entries = dictionary()) {
        std::vector<std::string> parts;
        for (const auto& [key, value] : *entries)
            parts.push_back(key + " = " + value.description());
        return "{" + KTJoin(parts, "; ") + "}";
    }
    return "";
}

bool KTValue::operator==(const KTValue& other) const {
    if (isNumber() && other.isNumber())
        return number() == other.number();
    if (content.index() != other.content.index())
        return false;
    if (auto value = components())
        return *value == *other.components();
    if (auto value = timeZone())
        return *value == *other.timeZone();
    if (auto value = list())
        return *value == *other.list();
    if (auto value = dictionary())
        return *value == *other.dictionary();
    return content == other.content;
}
