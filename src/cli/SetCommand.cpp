#include "cli/Command.h"
#include "cli/CommandCollection.h"
#include "cli/JSONOutput.h"
#include "cli/SaveOptions.h"

#include "metadata/KTMetadataFieldManager.h"
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
        return {KTStringWithFormat(KTLocalizedString("\"%@\" is not a value of %@: %@"),
                                   {std::string(text), field.key(), KTLocalizedString(expected)})};
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
        if (const auto instant = KTInstantOfComponents(*components))
            return *instant;
        throw complain("a complete date and time is expected");
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
        CommandCollection collection(session);
        std::vector<Edited> all;
        CommandCollection::Photos photos;
        collection.importPhotos(paths, [&](const auto& file, const auto& photo, const auto& operations) {
            Edited& edited = all.emplace_back(file, photo && photo->isValid() ? photo : nullptr, operations);
            if (!edited.photo)
                return;
            edit(edited, edits);
            photos.push_back(photo);
        });
        collection.savePhotos(photos);
        report(session, all);
        return session.exitStatus();
    }

private:
    /// A file and what became of it.
    struct Edited {
        std::filesystem::path file;
        std::shared_ptr<KTPhoto> photo; ///< null where it could not be read
        std::vector<KTPhotoOperation> operations;
        KTValue::Dictionary wanted = {}; ///< what the photo makes of the edits
    };

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
                throw UsageError{KTStringWithFormat(
                    KTLocalizedString("there is no field \"%@\" (waymark-cli fields lists them)"), {key})};
            if (field->readonly())
                throw UsageError{
                    KTStringWithFormat(KTLocalizedString("the field \"%@\" cannot be edited"), {key})};
            edits.emplace_back(key, valueFromText(*field, std::string_view(argument).substr(equals + 1)));
        }
        if (edits.empty() || paths.empty())
            throw UsageError{KTLocalizedString("set takes KEY=VALUE... PATH...")};
    }

    static void edit(Edited& edited, const std::vector<std::pair<std::string, KTValue>>& edits) {
        for (const auto& [key, value] : edits)
            edited.photo->setValueForKey(key, value);
        for (const auto& [key, value] : edits)
            edited.wanted[key] = edited.photo->valueForKey(key);
    }

    static void report(CommandSession& session, std::vector<Edited>& all) {
        std::optional<JSONOutput> json;
        if (session.json)
            json.emplace().beginObjectWithArray("photos");
        for (Edited& edited : all)
            report(session, json, edited);
        if (json)
            json->endObjectWithArray();
    }

    static void report(CommandSession& session, std::optional<JSONOutput>& json, Edited& edited) {
        const bool saved = isSaved(edited);
        if (!saved)
            session.setFailed();
        session.messages(edited.file, edited.operations);
        if (!json) {
            std::printf("%s: %s\n", edited.file.c_str(),
                        KTLocalizedString(saved ? "saved" : "not saved").c_str());
            return;
        }
        json->beginObject();
        json->member("path", edited.file.string());
        json->member("saved", saved);
        json->member("operations", edited.operations);
        json->endObject();
    }

    static bool isSaved(Edited& edited) {
        if (!edited.photo)
            return false;
        KTPhoto& photo = *edited.photo;
        const bool isWritten = !photo.hasUnsavedChanges();
        for (const auto& [key, value] : edited.wanted) // a failed save has said why
            if (isWritten && !KTIsSameValue(value, photo.savedPropertyWithKey(key)))
                photo.addPhotoOperation(notKept(edited.file, key));
        edited.operations = photo.photoOperations();
        return isWritten && edited.operations.back().resultType() != KTPhotoOperation::Failure;
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
    CLI::App* parser = app.add_subcommand("set", KTLocalizedString("Set fields by key and save"));
    command->saving.addTo(*parser);
    parser
        ->add_option("KEY=VALUE... PATH...", command->arguments,
                     KTLocalizedString("Edits, then photos or folders; an empty value clears"))
        ->required();
    commands.push_back({parser, std::move(command)});
}
