#include "app/editor/KTUserTemplates.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTPropertyList.h"

#include <QStandardPaths>
#include <algorithm>

namespace {

constexpr const char *kName = "TemplateName", *kGroups = "Groups", *kGroupName = "GroupName",
                     *kFields = "Fields", *kFieldKey = "FieldKey", *kFieldName = "FieldName";
constexpr std::size_t kLongestFileName = 200; // bytes; a counter and the extension follow

const KTValue& valueIn(const KTValue& dictionary, const char* key) {
    static const KTValue absent;
    if (!dictionary.dictionary())
        return absent;
    const auto entry = dictionary.dictionary()->find(key);
    return entry == dictionary.dictionary()->end() ? absent : entry->second;
}

const KTValue::List& listIn(const KTValue& dictionary, const char* key) {
    static const KTValue::List empty;
    const KTValue::List* list = valueIn(dictionary, key).list();
    return list != nullptr ? *list : empty;
}

std::string textIn(const KTValue& dictionary, const char* key, const std::string& otherwise) {
    const std::string* text = valueIn(dictionary, key).text();
    return text != nullptr ? *text : otherwise;
}

std::shared_ptr<KTMetadataField> fieldFrom(const KTValue& entry) {
    const std::string* key = valueIn(entry, kFieldKey).text();
    const auto known = key != nullptr
                           ? KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(*key)
                           : nullptr;
    if (known == nullptr)
        return nullptr;
    auto field = known->copy();
    field->setName(textIn(entry, kFieldName, field->name()));
    return field;
}

std::shared_ptr<KTMetadataGroup> groupFrom(const KTValue& entry) {
    auto group = KTMetadataGroup::initWithName(textIn(entry, kGroupName, KTLocalizedString("Untitled")));
    for (const KTValue& fieldEntry : listIn(entry, kFields))
        if (auto field = fieldFrom(fieldEntry))
            group->addField(std::move(field));
    return group;
}

KTValue entryOf(const KTMetadataGroup& group) {
    KTValue::List fields;
    for (const auto& field : group.fields())
        fields.push_back(KTValue::Dictionary{{kFieldKey, field->key()}, {kFieldName, field->name()}});
    return KTValue::Dictionary{{kGroupName, group.name()}, {kFields, fields}};
}

/// What of a name can be the name of a file.
std::string fileName(const std::string& name) {
    std::string result = KTValidUTF8(name);
    std::ranges::replace_if(
        result, [](unsigned char c) { return c == '/' || c < ' '; }, '-');
    std::size_t length = std::min(result.size(), kLongestFileName);
    while (length < result.size() && length > 0 &&
           (static_cast<unsigned char>(result[length]) & 0xC0) == 0x80)
        --length; // not inside a letter
    return result.substr(0, length);
}

} // namespace

std::filesystem::path KTUserTemplates::userFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return std::filesystem::path(data.toStdString()) / "Waymark" / "MetadataTemplates";
}

std::optional<std::filesystem::path> KTUserTemplates::userTemplatesFolderPath() const {
    std::error_code error;
    std::filesystem::create_directories(templatesFolder, error);
    if (!error)
        return templatesFolder;
    KTLog(templatesFolder.string() + ": " + error.message());
    return std::nullopt;
}

std::vector<std::filesystem::path> KTUserTemplates::userTemplatePaths() const {
    std::vector<std::filesystem::path> paths;
    const auto folder = userTemplatesFolderPath();
    std::error_code error;
    if (folder)
        for (std::filesystem::directory_iterator entry(*folder, error), end; !error && entry != end;
             entry.increment(error))
            if (entry->path().extension() == ".plist")
                paths.push_back(entry->path());
    std::ranges::sort(paths);
    return paths;
}

std::optional<KTUserTemplate> KTUserTemplates::readTemplateFromPath(const std::filesystem::path& path) {
    const KTValue content = KTValueFromPropertyList(path);
    if (!content.dictionary())
        return std::nullopt;
    KTUserTemplate result{textIn(content, kName, KTLocalizedString("Untitled template")), path, {}};
    for (const KTValue& entry : listIn(content, kGroups))
        if (entry.dictionary())
            result.groups.push_back(groupFrom(entry));
    return result;
}

std::filesystem::path KTUserTemplates::freePath(const std::filesystem::path& folder,
                                                const std::string& name) {
    const std::string base = fileName(name);
    std::filesystem::path path = folder / (base + ".plist");
    std::error_code ignored;
    for (long counter = 1; std::filesystem::exists(std::filesystem::symlink_status(path, ignored)); ++counter)
        path = folder / (base + "-" + std::to_string(counter) + ".plist");
    return path;
}

std::optional<std::string> KTUserTemplates::writeTemplate(const KTUserTemplate& userTemplate) {
    KTValue::List groups;
    for (const auto& group : userTemplate.groups)
        groups.push_back(entryOf(*group));
    return KTWritePropertyList(KTValue::Dictionary{{kName, userTemplate.templateName}, {kGroups, groups}},
                               userTemplate.templatePath);
}

std::optional<KTUserTemplate> KTUserTemplates::saveTemplate(const KTUserTemplate::Groups& groups,
                                                            const std::string& withName,
                                                            std::string& problem) const {
    const auto folder = userTemplatesFolderPath();
    if (!folder) {
        problem = KTStringWithFormat(KTLocalizedString("The folder %@ cannot be made."),
                                     {templatesFolder.string()});
        return std::nullopt;
    }
    KTUserTemplate result{withName, freePath(*folder, withName), {}};
    for (const auto& group : groups)
        result.groups.push_back(group->copy());
    const auto failure = writeTemplate(result);
    problem = failure.value_or("");
    return failure ? std::nullopt : std::optional(std::move(result));
}

bool KTUserTemplates::removeTemplate(const KTUserTemplate& userTemplate) {
    std::error_code error;
    std::filesystem::remove(userTemplate.templatePath, error);
    if (error)
        KTLog(userTemplate.templatePath.string() + ": " + error.message());
    return !error;
}
