#include "cli/Command.h"
#include "cli/CommandCollection.h"
#include "cli/JSONOutput.h"

#include "geotagging/KTPhotoAssumedTimeZoneController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>

namespace {

class ZoneCommand : public Command {
public:
    std::string offset;
    std::vector<std::string> paths;

    int run(CommandSession& session) override {
        const auto zone = KTTimeZone::fromText(offset);
        if (!zone)
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("\"%@\" is not a time zone: +02:00, Z or Area/City is expected"),
                {offset})};
        CommandCollection collection(session);
        std::vector<Row> rows;
        collection.importPhotos(paths, [&](const auto& file, const auto& photo, const auto& operations) {
            session.messages(file, operations);
            if (photo && photo->isValid())
                rows.push_back({file, photo});
        });
        if (!CommandSession::isInterrupted())
            choose(*zone, session, collection.photoManager());
        if (session.json)
            printJSON(rows);
        else
            printText(rows);
        return session.exitStatus();
    }

private:
    struct Row {
        std::filesystem::path file;
        std::shared_ptr<KTPhoto> photo;
    };

    /// As a choice in the time zone panel: for these photos, and for the runs to come.
    static void choose(const KTTimeZone& zone, const CommandSession& session, KTPhotoManager& photos) {
        KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
        KTPhotoAssumedTimeZoneController controller(catalogue);
        controller.setup();
        controller.setTimeZone(zone);
        controller.tearDown();
        photos.finishZoneChange();
        if (!zone.isFixed())
            session.message(KTStringWithFormat(
                KTLocalizedString("%@ is taken as the fixed offset %@, in summer and winter."),
                {zone.name(), offsetText()}));
    }

    static std::string offsetText() {
        return KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone().offsetText(
            KTInstantNow());
    }

    static void printJSON(const std::vector<Row>& rows) {
        static constexpr const char* kKeys[] = {"dateTimeOriginalComponents", "dateTimeDigitizedComponents"};
        JSONOutput json;
        json.beginObject();
        json.member("timeZone", offsetText());
        json.key("photos");
        json.beginArray();
        for (const Row& row : rows) {
            json.beginObject();
            json.member("path", row.file.string());
            for (const char* key : kKeys)
                if (const KTValue value = row.photo->valueForKey(key); const auto date = value.components())
                    json.captureDate(key, *date);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }

    static void printText(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            const auto instant = row.photo->dateTimeOriginal();
            std::printf("%s: %s\n", row.file.c_str(),
                        instant ? KTISO8601Text(*instant).c_str()
                                : KTLocalizedString("no capture date").c_str());
        }
    }
};

} // namespace

void addZoneCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<ZoneCommand>();
    CLI::App* parser = app.add_subcommand(
        "zone",
        KTLocalizedString(
            "Set the zone of the cameras' clocks, for later runs too, and show the photos' instants"));
    parser
        ->add_option("OFFSET", command->offset,
                     KTLocalizedString("+02:00, Z or Area/City (-- before negative ones)"))
        ->required();
    parser->add_option("PATH", command->paths, KTLocalizedString("Photos, sidecars or folders"))->required();
    commands.push_back({parser, std::move(command)});
}
