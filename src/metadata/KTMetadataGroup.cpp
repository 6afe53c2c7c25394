#include "metadata/KTMetadataGroup.h"

#include "platform/common/KTLocalizedString.h"

#include <utility>

namespace {

constexpr std::string_view kName = "name";
constexpr std::string_view kFields = "fields";

} // namespace

KTMetadataGroup::KTMetadataGroup() : KTMetadataGroup(KTLocalizedString("Untitled")) {}

std::shared_ptr<KTMetadataGroup> KTMetadataGroup::initWithName(std::string name) {
    return std::make_shared<KTMetadataGroup>(std::move(name));
}

void KTMetadataGroup::setName(std::string newName) {
    willChange(kName);
    std::string oldName = std::exchange(groupName, std::move(newName));
    didChange(kName, KTChange::Kind::Setting, {}, oldName);
}

void KTMetadataGroup::setFields(Fields newFields) {
    willChange(kFields);
    groupFields = std::move(newFields);
    didChange(kFields);
}

bool KTMetadataGroup::addField(std::shared_ptr<KTMetadataField> field) {
    return addField(std::move(field), groupFields.size());
}

bool KTMetadataGroup::addField(std::shared_ptr<KTMetadataField> field, std::size_t atIndex) {
    if (!field || atIndex > groupFields.size())
        return false;
    willChange(kFields, KTChange::Kind::Insertion, {atIndex});
    groupFields.insert(groupFields.begin() + std::ptrdiff_t(atIndex), std::move(field));
    didChange(kFields, KTChange::Kind::Insertion, {atIndex});
    return true;
}

void KTMetadataGroup::removeAtIndex(std::size_t index) {
    willChange(kFields, KTChange::Kind::Removal, {index});
    groupFields.erase(groupFields.begin() + std::ptrdiff_t(index));
    didChange(kFields, KTChange::Kind::Removal, {index});
}

bool KTMetadataGroup::removeField(const KTMetadataField& field) {
    auto place = std::ranges::find(groupFields, &field, [](const auto& element) { return element.get(); });
    if (place == groupFields.end())
        return false;
    removeAtIndex(std::size_t(place - groupFields.begin()));
    return true;
}

bool KTMetadataGroup::moveFieldFromIndex(std::size_t from, std::size_t toIndex) {
    if (from >= groupFields.size() || toIndex >= groupFields.size())
        return false;
    auto field = groupFields[from];
    removeAtIndex(from);
    return addField(std::move(field), toIndex);
}

std::shared_ptr<KTMetadataGroup> KTMetadataGroup::copy() const {
    auto result = initWithName(groupName);
    for (const auto& field : groupFields)
        result->groupFields.push_back(field->copy());
    return result;
}

KTValue::Dictionary KTMetadataGroup::encode() const {
    KTValue::List archivedFields;
    for (const auto& field : groupFields)
        archivedFields.emplace_back(field->encode());
    return {{std::string(kName), groupName}, {std::string(kFields), archivedFields}};
}

std::shared_ptr<KTMetadataGroup> KTMetadataGroup::decode(const KTValue::Dictionary& archive) {
    auto result = std::make_shared<KTMetadataGroup>();
    if (auto name = archive.find(kName); name != archive.end() && name->second.text())
        result->groupName = *name->second.text();
    auto fields = archive.find(kFields);
    if (fields == archive.end() || !fields->second.list())
        return result;
    for (const KTValue& archivedField : *fields->second.list())
        if (auto field =
                archivedField.dictionary() ? KTMetadataField::decode(*archivedField.dictionary()) : nullptr)
            result->groupFields.push_back(std::move(field));
    return result;
}
