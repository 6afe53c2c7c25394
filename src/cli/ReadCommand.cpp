#include "cli/Command.h"
#include "cli/CommandCollection.h"
#include "cli/JSONOutput.h"

#include "metadata/KTFormatter.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"

#include <CLI/CLI.hpp>

namespace {

class ReadCommand : public Command {
public:
    std::vector<std::string> paths;
    std::string only;

    /// Each photo leaves the collection as soon as it is shown, so that any number of them needs no more
    /// memory than a few.
    int run(CommandSession& session) override {
        CommandCollection collection(session);
        std::optional<JSONOutput> json;
        if (session.json)
            json.emplace().beginObjectWithArray("photos");
        collection.importPhotos(paths, [&](const auto& file, const auto& photo, const auto& operations) {
            if (!photo)
                printFailure(session, json, file, operations);
            else if (json)
                printJSON(*json, file, *photo);
            else
                printText(session, file, *photo);
            if (photo)
                collection.photoManager().removePhotos({photo});
        });
        if (json)
            json->endObjectWithArray();
        return session.exitStatus();
    }

private:
    bool wants(std::string_view part) const { return only.empty() || only == part; }

    static void printFailure(CommandSession& session, std::optional<JSONOutput>& json,
                             const std::filesystem::path& file,
                             const std::vector<KTPhotoOperation>& failure) {
        session.messages(file, failure);
        if (!json)
            return;
        json->beginObject();
        json->member("path", file.string());
        json->member("valid", false);
        json->member("operations", failure);
        json->endObject();
    }

    void printJSON(JSONOutput& json, const std::filesystem::path& file, const KTPhoto& photo) const {
        json.beginObject();
        json.member("path", file.string());
        json.member("valid", photo.isValid());
        json.member("fileSize", photo.valueForKey("fileSize"));
        if (wants("tags")) {
            json.member("tags", *photo.source(KTMetadataSource::Image).saved);
            if (photo.hasXMPSidecar())
                json.member("sidecarTags", *photo.source(KTMetadataSource::Sidecar).saved);
        }
        if (wants("properties")) {
            const KTMetadataProperties flags = photo.source(KTMetadataSource::Image).properties;
            json.key("flags");
            json.beginObject();
            json.member("hasEXIFBlock", flags.hasEXIFBlock);
            json.member("hasIPTCBlock", flags.hasIPTCBlock);
            json.member("hasXMPBlock", flags.hasXMPBlock);
            json.member("hasIPTCChecksum", flags.hasIPTCChecksum);
            json.member("iptcChecksumDoesMatch", flags.iptcChecksumDoesMatch);
            json.endObject();
            printProperties(json, photo);
        }
        json.member("operations", photo.photoOperations());
        json.endObject();
    }

    static void printProperties(JSONOutput& json, const KTPhoto& photo) {
        json.key("properties");
        json.beginObject();
        for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
            const KTValue value = photo.valueForKey(field->key());
            if (const auto components = value.components())
                json.captureDate(field->key(), *components);
            else
                json.member(field->key(), value);
        }
        json.endObject();
    }

    static void printText(const CommandSession& session, const std::filesystem::path& file,
                          const KTPhoto& photo) {
        std::printf("%s\n", file.c_str());
        for (const KTPhotoOperation& operation : photo.photoOperations())
            if (operation.resultType() == KTPhotoOperation::Failure)
                session.message(file.string() + ": " + operation.resultDescription());
        for (const auto& group : KTMetadataFieldManager::sharedMetadataFieldManager().metadataGroups()) {
            bool headed = false;
            for (const auto& field : group->fields()) {
                const KTValue value = photo.valueForKey(field->key());
                const std::string shown = displayText(*field, value);
                if (shown.empty() || shown == " ")
                    continue;
                if (!std::exchange(headed, true))
                    std::printf("  %s\n", group->name().c_str());
                std::printf("    %s: %s\n", field->name().c_str(), shown.c_str());
            }
        }
    }

    static std::string displayText(const KTMetadataField& field, const KTValue& value) {
        if (!value.isSomething())
            return "";
        return field.formatter() ? field.formatter()->stringForObjectValue(value) : value.description();
    }
};

} // namespace

void addReadCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<ReadCommand>();
    CLI::App* parser = app.add_subcommand("read", KTLocalizedString("Show what photos hold"));
    parser->add_option("--only", command->only, KTLocalizedString("Only the tags or only the properties"))
        ->check(CLI::IsMember({"tags", "properties"}));
    parser->add_option("PATH", command->paths, KTLocalizedString("Photos, sidecars or folders"))->required();
    commands.push_back({parser, std::move(command)});
}
