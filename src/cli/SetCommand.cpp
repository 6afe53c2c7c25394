#include "cli/Command.h"
#include "cli/JSONOutput.h"
#include "cli/SaveOptions.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoChangeTracker.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>

namespace {

/// What a user typed for a field, as a value of the field's type; empty text clears. Throws UsageError when
/// it is none.
KTValue valueFromText(const KTMetadataField& field, std::string_view text) {
    if (KTTrimmed(text).empty())
        return {};
    auto complain = [&](const char* expected) -> UsageError {
        return {"\"" + std::string(text) + "\" is not a value of " + field.key() + ": " + expected};
    };
    switch (field.propertyType()) {
    case KTValueType::Text:
        return text;
    case KTValueType::Decimal:
        if (auto number = KTDecimal::fromText(KTTrimmed(text)))
            return *number;
        throw complain("a decimal number is expected");
    case KTValueType::List: {
        std::vector<std::string> elements;
        for (const std::string& element : KTSplit(text, '|'))
            if (auto trimmed = KTTrimmed(element); !trimmed.empty())
                elements.emplace_back(trimmed);
        return KTValue::listOfTexts(elements);
    }
    case KTValueType::Date:
    case KTValueType::DateComponents: {
        auto components = KTDateComponents::dateComponentsWithString(text);
        if (!components)
            throw complain("YYYY-MM-DD HH:MM:SS is expected");
        components->timeZone = KTTimeZone::timeZoneWithString(text).value_or(
            KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone());
        if (field.propertyType() == KTValueType::DateComponents)
            return *components;
        return KTInstantOfComponents(*components);
    }
    default:
        throw complain("it cannot be set");
    }
}

class SetCommand : public Command {
public:
    std::vector<std::string> arguments;
    SaveOptions saving;

    int run(CommandSession& session) override {
        std::vector<std::pair<std::string, KTValue>> edits;
        std::vector<std::string> paths;
        split(edits, paths);
        saving.apply();
        CommandSession::noteInterruptions();
        const auto files = session.photoFiles(paths);
        std::optional<JSONOutput> json;
        if (session.json) {
            json.emplace();
            json->beginObject();
            json->key("photos");
            json->beginArray();
        }
        for (std::size_t i = 0; i < files.size() && !CommandSession::isInterrupted(); ++i) {
            session.showProgress("Saving photo %u of %u", i + 1, files.size());
            edit(session, json, files[i], edits);
        }
        session.endProgress();
        if (json) {
            json->endArray();
            json->endObject();
        }
        return session.exitStatus();
    }

private:
    /// The leading KEY=VALUE arguments are edits, the rest paths.
    void split(std::vector<std::pair<std::string, KTValue>>& edits, std::vector<std::string>& paths) const {
        for (const std::string& argument : arguments) {
            const auto equals = argument.find('=');
            const bool isEdit = paths.empty() && equals != std::string::npos &&
                                std::ranges::all_of(argument.substr(0, equals),
                                                    [](unsigned char c) { return std::isalnum(c); });
            if (!isEdit) {
                paths.push_back(argument);
                continue;
            }
            const std::string key = argument.substr(0, equals);
            auto field = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
            if (!field)
                throw UsageError{"there is no field \"" + key + "\" (waymark-cli fields lists them)"};
            if (field->readonly())
                throw UsageError{"the field \"" + key + "\" cannot be edited"};
            edits.emplace_back(key, valueFromText(*field, std::string_view(argument).substr(equals + 1)));
        }
        if (edits.empty() || paths.empty())
            throw UsageError{"set takes KEY=VALUE... PATH..."};
    }

    void edit(CommandSession& session, std::optional<JSONOutput>& json, const std::filesystem::path& file,
              const std::vector<std::pair<std::string, KTValue>>& edits) const {
        std::vector<KTPhotoOperation> operations;
        const bool saved = editAndSave(file, edits, operations);
        if (!saved)
            session.setFailed();
        session.messages(file, operations);
        if (!json) {
            std::printf("%s: %s\n", file.c_str(), saved ? "saved" : "not saved");
            return;
        }
        json->beginObject();
        json->member("path", file.string());
        json->member("saved", saved);
        json->member("operations", operations);
        json->endObject();
    }

    bool editAndSave(const std::filesystem::path& file,
                     const std::vector<std::pair<std::string, KTValue>>& edits,
                     std::vector<KTPhotoOperation>& operations) const {
        const auto photo = KTPhoto::initWithFile(file, {}, nullptr, {.log = &operations});
        if (!photo)
            return false;
        if (photo->isValid()) {
            const KTPhotoChangeTracker tracker(*photo);
            for (const auto& [key, value] : edits)
                photo->setValueForKey(key, value);
            const auto wanted = valuesOf(*photo, edits);
            photo->saveWithBackupToFolder(saving.backupFolder());
            for (const auto& [key, value] : wanted) // a failed save has said why
                if (!photo->hasUnsavedChanges() && !KTIsSameValue(value, photo->savedPropertyWithKey(key)))
                    photo->addPhotoOperation(notKept(file, key));
        }
        operations = photo->photoOperations();
        return photo->isValid() && !photo->hasUnsavedChanges() &&
               operations.back().resultType() != KTPhotoOperation::Failure;
    }

    /// What the photo makes of the edits.
    static KTValue::Dictionary valuesOf(const KTPhoto& photo,
                                        const std::vector<std::pair<std::string, KTValue>>& edits) {
        KTValue::Dictionary values;
        for (const auto& [key, value] : edits)
            values[key] = photo.valueForKey(key);
        return values;
    }

    static KTPhotoOperation notKept(const std::filesystem::path& file, const std::string& key) {
        KTPhotoOperation operation;
        operation.url = file;
        operation.operationDescription = KTLocalizedString("Check what was written");
        operation.failureReason = 1;
        operation.failureDescription =
            KTStringWithFormat(KTLocalizedString("The photo's files do not hold the value of “%@”."), {key});
        return operation;
    }
};

} // namespace

void addSetCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<SetCommand>();
    CLI::App* parser = app.add_subcommand("set", "Set fields by key and save");
    command->saving.addTo(*parser);
    parser
        ->add_option("KEY=VALUE... PATH...", command->arguments,
                     "Edits, then photos or folders; an empty value clears")
        ->required();
    commands.push_back({parser, std::move(command)});
}
