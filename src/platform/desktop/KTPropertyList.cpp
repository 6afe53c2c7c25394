#include "platform/desktop/KTPropertyList.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTItemReplacement.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <plist/plist.h>

namespace {

constexpr std::uintmax_t kLargestFile = 1 << 20;
constexpr int kDeepest = 32; // levels; ours have five

struct Free {
    void operator()(void* node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, Free>;

struct FreeText {
    void operator()(char* text) const { std::free(text); }
};
using Text = std::unique_ptr<char, FreeText>;

Node nodeOf(const KTValue& value) {
    if (const auto dictionary = value.dictionary()) {
        Node node(plist_new_dict());
        for (const auto& [key, element] : *dictionary)
            plist_dict_set_item(node.get(), key.c_str(), nodeOf(element).release());
        return node;
    }
    if (const auto list = value.list()) {
        Node node(plist_new_array());
        for (const KTValue& element : *list)
            plist_array_append_item(node.get(), nodeOf(element).release());
        return node;
    }
    if (const auto flag = value.flag())
        return Node(plist_new_bool(*flag ? 1 : 0));
    if (const auto integer = value.integer(); integer != nullptr && *integer >= 0)
        return Node(plist_new_uint(static_cast<std::uint64_t>(*integer)));
    if (const auto number = value.number())
        return Node(plist_new_real(number->toDouble()));
    // XML has no sign for other control characters, and a list that holds one could not be read again.
    std::string text = KTValidUTF8(value.description());
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' && c != '\n' && c != '\t'; }, ' ');
    return Node(plist_new_string(text.c_str()));
}

KTValue valueOf(plist_t node, int level);

KTValue listOf(plist_t node, int level) {
    KTValue::List list;
    for (std::uint32_t i = 0; i < plist_array_get_size(node); ++i)
        list.push_back(valueOf(plist_array_get_item(node, i), level + 1));
    return list;
}

KTValue dictionaryOf(plist_t node, int level) {
    KTValue::Dictionary dictionary;
    plist_dict_iter next = nullptr;
    plist_dict_new_iter(node, &next);
    while (true) {
        char* key = nullptr;
        plist_t element = nullptr;
        plist_dict_next_item(node, next, &key, &element);
        if (element == nullptr)
            break;
        const Text owned(key);
        dictionary.emplace(key, valueOf(element, level + 1));
    }
    std::free(next);
    return dictionary;
}

KTValue valueOf(plist_t node, int level) {
    if (level > kDeepest)
        return {};
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return dictionaryOf(node, level);
    case PLIST_ARRAY:
        return listOf(node, level);
    case PLIST_STRING: {
        char* text = nullptr;
        plist_get_string_val(node, &text);
        const Text owned(text);
        return text != nullptr ? KTValue(text) : KTValue();
    }
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_UINT: {
        std::uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return KTDecimal::fromUnsigned(number);
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return KTDecimal::fromDouble(number);
    }
    default:
        return {};
    }
}

/// Whether lists and dictionaries of an XML property list are nested deeper than any of ours: the library
/// would follow them until the stack ends.
bool isTooDeep(std::string_view xml) {
    int level = 0;
    for (auto place = xml.find('<'); place != std::string_view::npos; place = xml.find('<', place + 1)) {
        const std::string_view tag = xml.substr(place + 1, xml.find('>', place) - place - 1);
        if (tag.starts_with("/array") || tag.starts_with("/dict"))
            --level;
        else if ((tag.starts_with("array") || tag.starts_with("dict")) && !tag.ends_with('/'))
            ++level;
        if (level > kDeepest)
            return true;
    }
    return false;
}

} // namespace

KTValue KTValueFromPropertyList(const std::filesystem::path& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    if (error || size > kLargestFile)
        return {};
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    if (isTooDeep(content))
        return {};
    plist_t root = nullptr;
    plist_from_memory(content.data(), static_cast<std::uint32_t>(content.size()), &root);
    const Node owned(root);
    return root != nullptr ? valueOf(root, 0) : KTValue();
}

std::optional<std::string> KTWritePropertyList(const KTValue& value, const std::filesystem::path& file) {
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(nodeOf(value).get(), &xml, &length);
    const Text owned(xml);
    const KTItemReplacement replacement(file);
    if (replacement.error())
        return replacement.error();
    std::ofstream stream(replacement.temporaryItem(), std::ios::binary);
    stream.write(xml, xml != nullptr ? std::streamsize(length) : 0);
    stream.close();
    if (xml == nullptr || !stream)
        return KTStringWithFormat(KTLocalizedString("%@ could not be written."), {file.string()});
    return KTReplaceItem(file, replacement.temporaryItem());
}
