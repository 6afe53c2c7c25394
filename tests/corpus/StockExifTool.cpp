#include "tests/corpus/StockExifTool.h"

#include "tests/support/TestSupport.h"

#include <algorithm>
#include <cstdlib>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <regex>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

// Minor errors are passed over and maker notes that stand in the wrong place are read where they are, as the
// program under test does it.
constexpr const char* kProgram = "LC_ALL=C.UTF-8 nice exiftool -q -q -n -m -F ";

std::string quoted(const fs::path& path) {
    return "'" + path.string() + "'"; // of a temporary folder, without quotes of its own
}

void run(const std::string& arguments) {
    // The exit status tells of single files that could not be read or written, which is no failure here.
    if (std::system((kProgram + arguments).c_str()) == -1)
        throw std::runtime_error("cannot run exiftool");
}

std::string textOf(const rapidjson::Value& value) {
    return {value.GetString(), value.GetStringLength()};
}

void write(const rapidjson::Value& value, Writer& writer) {
    if (value.IsArray()) {
        writer.StartArray();
        for (const auto& element : value.GetArray())
            write(element, writer);
        writer.EndArray();
    } else if (value.IsObject()) {
        std::map<std::string, const rapidjson::Value*> sorted;
        for (const auto& member : value.GetObject())
            sorted.emplace(textOf(member.name), &member.value);
        writer.StartObject();
        for (const auto& [name, member] : sorted) {
            writer.Key(name.c_str());
            write(*member, writer);
        }
        writer.EndObject();
    } else {
        value.Accept(writer);
    }
}

std::string valueText(const rapidjson::Value& value) {
    if (value.IsString())
        return textOf(value);
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    write(value, writer);
    return buffer.GetString();
}

/// "EXIF:IFD1:Main:Copy2:Make" without the main document's name and the number that tells tags of one name
/// apart.
std::string keyOf(const std::string& name) {
    static const std::regex unneeded(":(Main|Copy[0-9]+)(?=:)");
    return std::regex_replace(name, unneeded, "");
}

} // namespace

bool FileTags::hasGroup(std::string_view group) const {
    return std::ranges::any_of(tags, [&](const Tag& tag) {
        return tag.key.starts_with(group) && tag.key.size() > group.size() && tag.key[group.size()] == ':';
    });
}

std::vector<std::string> FileTags::all(std::string_view groupAndName) const {
    const std::size_t colon = groupAndName.find(':');
    const std::string_view group = groupAndName.substr(0, colon + 1), name = groupAndName.substr(colon);
    std::vector<std::string> result;
    for (const Tag& tag : tags)
        if (tag.key.starts_with(group) && tag.key.ends_with(name))
            result.push_back(tag.value);
    return result;
}

std::string FileTags::textOf(std::string_view groupAndName) const {
    const std::vector<std::string> values = all(groupAndName);
    return values.empty() ? std::string() : values.back();
}

std::map<std::string, std::vector<std::string>> FileTags::byKey() const {
    std::map<std::string, std::vector<std::string>> result;
    for (const Tag& tag : tags)
        result[tag.key].push_back(tag.value);
    for (auto& [key, values] : result)
        std::ranges::sort(values);
    return result;
}

std::string listText(const std::vector<std::string>& elements) {
    if (elements.size() == 1)
        return elements.front();
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    writer.StartArray();
    for (const std::string& element : elements)
        writer.String(element.c_str());
    writer.EndArray();
    return buffer.GetString();
}

std::map<std::string, FileTags> readTags(const fs::path& folder) {
    const TemporaryFolder output;
    run("-j -G0:1:3:4 -a -U -b -struct -e " + quoted(folder) + " >" + quoted(output / "tags.json"));
    const std::string json = contentOf(output / "tags.json");
    rapidjson::Document document;
    document.Parse<rapidjson::kParseNumbersAsStringsFlag>(json.c_str(), json.size());
    if (!document.IsArray())
        throw std::runtime_error("no tags of " + folder.string());
    std::map<std::string, FileTags> result;
    for (const auto& file : document.GetArray()) {
        FileTags& found = result[fs::path(textOf(file["SourceFile"])).filename().string()];
        for (const auto& member : file.GetObject())
            found.tags.push_back({keyOf(textOf(member.name)), valueText(member.value)});
    }
    return result;
}

std::set<std::string> refusedFiles(const fs::path& folder) {
    const TemporaryFolder output;
    run("-EXIF:GPSLatitude=1 -XMP:Rating=1 -o " + quoted(output / "%f.%e") + " " + quoted(folder) +
        " 2>/dev/null");
    std::set<std::string> result;
    for (const auto& entry : fs::directory_iterator(folder))
        if (!fs::exists(output / entry.path().filename()))
            result.insert(entry.path().filename().string());
    return result;
}

void stripFiles(const fs::path& folder, const fs::path& into) {
    run("-all= -ext jpg -ext jpeg -o " + quoted(into / "%f.%e") + " " + quoted(folder) + " 2>/dev/null");
}

void makeSidecars(const fs::path& folder, const fs::path& into) {
    run("-tagsFromFile @ '-all>xmp:all' -ThumbnailImage= -o " + quoted(into / "%f.xmp") + " " +
        quoted(folder) + " 2>/dev/null");
}
