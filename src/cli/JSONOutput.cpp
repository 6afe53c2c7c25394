#include "cli/JSONOutput.h"

#include "platform/common/KTCalendar.h"
#include "platform/common/KTText.h"

JSONOutput::~JSONOutput() {
    stream.Put('\n');
    stream.Flush();
}

void JSONOutput::text(std::string_view bytes) {
    const std::string valid = KTIsUTF8(bytes) ? std::string(bytes) : KTValidUTF8(bytes);
    writer.String(valid.data(), static_cast<rapidjson::SizeType>(valid.size()));
}

void JSONOutput::beginObjectWithArray(std::string_view name) {
    beginObject();
    key(name);
    beginArray();
}

void JSONOutput::endObjectWithArray() {
    endArray();
    endObject();
}

void JSONOutput::key(std::string_view name) {
    text(name);
}

void JSONOutput::value(const KTValue& value) {
    if (auto content = value.text()) {
        text(*content);
    } else if (auto number = value.number(); number && !number->isNaN()) {
        const std::string digits = number->toText();
        writer.RawValue(digits.data(), digits.size(), rapidjson::kNumberType);
    } else if (auto flag = value.flag()) {
        writer.Bool(*flag);
    } else if (auto components = value.components()) {
        text(isoReading(*components));
    } else if (auto elements = value.list()) {
        beginArray();
        for (const KTValue& element : *elements)
            this->value(element);
        endArray();
    } else if (auto date = value.date()) {
        text(KTISO8601Text(*date));
    } else {
        writer.Null();
    }
}

void JSONOutput::member(std::string_view name, const KTValue& content) {
    if (!content.isSomething() || (content.number() && content.number()->isNaN()))
        return;
    key(name);
    value(content);
}

void JSONOutput::member(std::string_view name, const KTTagDictionary& tags) {
    key(name);
    beginObject();
    for (const auto& [tagKey, tag] : tags)
        member(tagKey.text(), tag);
    endObject();
}

void JSONOutput::member(std::string_view name, const std::vector<KTPhotoOperation>& operations) {
    key(name);
    beginArray();
    for (const KTPhotoOperation& operation : operations) {
        beginObject();
        member("description", operation.operationDescription);
        member("path", operation.path());
        member("resultType", static_cast<int>(operation.resultType()));
        member("resultDescription", operation.resultDescription());
        endObject();
    }
    endArray();
}

void JSONOutput::captureDate(const std::string& key, const KTDateComponents& components) {
    member(key, components);
    if (const auto instant = KTInstantOfComponents(components)) {
        const std::string family = key.substr(0, key.rfind("Components"));
        member(family + "TimeZone", components.timeZone->offsetText(*instant));
        member(family, *instant);
    }
}

std::string isoReading(const KTDateComponents& components) {
    std::string text = components.xmpString().value_or("");
    for (std::size_t i = 0; i < std::min<std::size_t>(text.size(), 11); ++i)
        if (i < 10 ? text[i] == ':' : text[i] == ' ')
            text[i] = i < 10 ? '-' : 'T';
    return text;
}
