#include "cli/Command.h"
#include "cli/JSONOutput.h"

#include "metadata/KTFormatter.h"
#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoReadAhead.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"

#include <CLI/CLI.hpp>

namespace {

class ReadCommand : public Command {
public:
    std::vector<std::string> paths;
    std::string only;

    int run(CommandSession& session) override {
        CommandSession::noteInterruptions();
        const auto files = session.photoFiles(paths);
        KTPhotoReadAhead photos(files);
        std::optional<JSONOutput> json;
        if (session.json) {
            json.emplace();
            json->beginObject();
            json->key("photos");
            json->beginArray();
        }
        for (std::size_t i = 0; i < files.size() && !CommandSession::isInterrupted(); ++i) {
            session.showProgress("Loading image %lu of %lu", i, files.size());
            const auto [photo, failure] = photos.next();
            if (!photo || !photo->isValid())
                session.setFailed();
            if (!photo)
                printFailure(session, json, files[i], failure);
            else if (json)
                printJSON(*json, *photo);
            else
                printText(session, *photo);
        }
        session.endProgress();
        if (json) {
            json->endArray();
            json->endObject();
        }
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

    void printJSON(JSONOutput& json, const KTPhoto& photo) const {
        json.beginObject();
        json.member("path", photo.fileURL().string());
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
            json.member(field->key(), value);
            auto components = value.components();
            auto instant = components ? KTInstantOfComponents(*components) : std::nullopt;
            if (instant) { // the zone is a property of its own: dateTimeOriginalComponents,
                           // dateTimeOriginalTimeZone
                const std::string family =
                    field->key().substr(0, field->key().size() - std::size("Components") + 1);
                json.member(family + "TimeZone", components->timeZone->offsetText(*instant));
                json.member(family, *instant);
            }
        }
        json.endObject();
    }

    static void printText(CommandSession& session, const KTPhoto& photo) {
        std::printf("%s\n", photo.fileURL().c_str());
        for (const KTPhotoOperation& operation : photo.photoOperations())
            if (operation.resultType() == KTPhotoOperation::Failure)
                session.message(photo.fileURL().string() + ": " + operation.resultDescription());
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
    CLI::App* parser = app.add_subcommand("read", "Show what photos hold");
    parser->add_option("--only", command->only, "Only the tags or only the properties")
        ->check(CLI::IsMember({"tags", "properties"}));
    parser->add_option("PATH", command->paths, "Photos, sidecars or folders")->required();
    commands.push_back({parser, std::move(command)});
}
