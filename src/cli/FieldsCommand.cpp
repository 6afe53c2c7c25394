#include "cli/Command.h"
#include "cli/JSONOutput.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>

namespace {

std::string_view typeName(KTValueType type) {
    switch (type) {
    case KTValueType::Text:
        return "text";
    case KTValueType::Decimal:
        return "decimal";
    case KTValueType::List:
        return "list";
    case KTValueType::Date:
        return "date";
    case KTValueType::DateComponents:
        return "date components";
    default:
        return "none";
    }
}

std::string_view editingName(const KTMetadataField& field) {
    return field.directlyUserEditable() ? "direct" : field.readonly() ? "read-only" : "tools";
}

class FieldsCommand : public Command {
public:
    int run(CommandSession& session) override {
        if (session.json)
            printJSON();
        else
            printText();
        return kExitDone;
    }

private:
    static void printJSON() {
        JSONOutput json;
        json.beginObject();
        json.key("fields");
        json.beginArray();
        for (const auto& group : KTMetadataFieldManager::sharedMetadataFieldManager().metadataGroups())
            for (const auto& field : group->fields()) {
                json.beginObject();
                json.member("key", field->key());
                json.member("name", field->name());
                json.member("group", group->name());
                json.member("type", typeName(field->propertyType()));
                json.member("editing", editingName(*field));
                json.member("tagKeys", KTValue::listOfTexts(field->exifToolKeys()));
                json.endObject();
            }
        json.endArray();
        json.endObject();
    }

    static void printText() {
        for (const auto& group : KTMetadataFieldManager::sharedMetadataFieldManager().metadataGroups()) {
            std::printf("%s\n", group->name().c_str());
            for (const auto& field : group->fields())
                std::printf("  %-28s %-20s %-16s %-10s %s\n", field->key().c_str(), field->name().c_str(),
                            std::string(typeName(field->propertyType())).c_str(),
                            std::string(editingName(*field)).c_str(),
                            KTJoin(field->exifToolKeys(), ", ").c_str());
        }
    }
};

} // namespace

void addFieldsCommand(CLI::App& app, CommandList& commands) {
    CLI::App* parser = app.add_subcommand("fields", KTLocalizedString("List the metadata fields by key"));
    commands.push_back({parser, std::make_unique<FieldsCommand>()});
}
