#pragma once
#include "platform/common/KTDateComponents.h"
#include "platform/common/KTDecimal.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// A value of a photo's property, a metadata tag or a setting: absent, the null marker (delete), text,
/// integer, decimal, flag, list, dictionary, instant, date components or time zone. Lists, dictionaries,
/// components and zones are immutable and shared between copies, so copying is cheap and safe across threads.
class KTValue {
public:
    using List = std::vector<KTValue>;
    using Dictionary = std::map<std::string, KTValue, std::less<>>;
    struct Null {
        bool operator==(const Null&) const = default;
    };

    KTValue() = default; ///< absent
    KTValue(Null marker) : content(marker) {}
    KTValue(std::string text) : content(std::move(text)) {}
    KTValue(std::string_view text) : content(std::string(text)) {}
    KTValue(const char* text) : content(std::string(text)) {}
    KTValue(std::int64_t integer) : content(integer) {}
    KTValue(int integer) : content(std::int64_t(integer)) {}
    KTValue(bool flag) : content(flag) {}
    KTValue(KTDecimal decimal) : content(decimal) {}
    KTValue(KTInstant instant) : content(instant) {}
    KTValue(KTDateComponents components);
    KTValue(KTTimeZone zone);
    KTValue(List list);
    KTValue(Dictionary dictionary);
    template<typename T>
    KTValue(const std::optional<T>& value) : KTValue(value ? KTValue(*value) : KTValue()) {}
    KTValue(std::nullopt_t) {}

    static KTValue null() { return KTValue(Null{}); }
    static KTValue listOfTexts(const std::vector<std::string>& texts);

    bool isAbsent() const { return std::holds_alternative<std::monostate>(content); }
    bool isNull() const { return std::holds_alternative<Null>(content); }
    /// Neither absent nor the null marker.
    bool isSomething() const { return !isAbsent() && !isNull(); }
    bool isNumber() const { return integer() != nullptr || decimal() != nullptr; }

    /// The content when it is of that kind, else null.
    const std::string* text() const { return std::get_if<std::string>(&content); }
    const std::int64_t* integer() const { return std::get_if<std::int64_t>(&content); }
    const KTDecimal* decimal() const { return std::get_if<KTDecimal>(&content); }
    const bool* flag() const { return std::get_if<bool>(&content); }
    const KTInstant* date() const { return std::get_if<KTInstant>(&content); }
    const KTDateComponents* components() const;
    const KTTimeZone* timeZone() const;
    const List* list() const;
    const Dictionary* dictionary() const;

    /// An integer or decimal as a decimal; nothing for every other kind.
    std::optional<KTDecimal> number() const;
    /// The texts of a list, other elements by their description; empty for every other kind.
    std::vector<std::string> texts() const;
    /// For logs and raw display: text as it stands, numbers as plain decimal text, lists joined with ", ".
    std::string description() const;

    /// Numbers are equal when their values are, whether integer or decimal; everything else by kind and
    /// content.
    bool operator==(const KTValue& other) const;

private:
    template<typename T>
    using Shared = std::shared_ptr<const T>;

    std::variant<std::monostate, Null, std::string, std::int64_t, KTDecimal, bool, KTInstant,
                 Shared<KTDateComponents>, Shared<KTTimeZone>, Shared<List>, Shared<Dictionary>>
        content;
};
