#include "cli/Command.h"
#include "cli/JSONOutput.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace {

std::string pointsText(std::int64_t count) {
    return KTLocalizedCount("1 point", "%d points", std::size_t(count));
}

std::string waypointsText(std::int64_t count) {
    return KTLocalizedCount("1 waypoint", "%d waypoints", std::size_t(count));
}

class TracksImportCommand : public Command {
public:
    std::vector<std::string> files;

    int run(CommandSession& session) override {
        KTTrackManager* library = session.tracks();
        if (library == nullptr)
            return session.exitStatus();
        std::optional<JSONOutput> json;
        if (session.json)
            json.emplace().beginObjectWithArray("imports");
        for (const std::string& file : files) {
            const KTTrackImportResult result = library->importFile(file);
            if (!result.succeeded())
                session.failure(result.error);
            if (json)
                printJSON(*json, file, result);
            else if (result.succeeded())
                printText(file, result);
        }
        if (json)
            json->endObjectWithArray();
        return session.exitStatus();
    }

private:
    static void printJSON(JSONOutput& json, const std::string& file, const KTTrackImportResult& result) {
        json.beginObject();
        json.member("path", file);
        json.member("imported", result.succeeded());
        if (result.succeeded()) {
            KTValue::List ids(result.trackIDs.begin(), result.trackIDs.end());
            json.member("alreadyImported", result.alreadyImported);
            json.member("ids", KTValue(std::move(ids)));
            json.member("points", result.pointCount);
            json.member("datedPoints", result.datedPointCount);
            json.member("waypoints", result.waypointCount);
        } else {
            json.member("error", result.error);
        }
        json.endObject();
    }

    static void printText(const std::string& file, const KTTrackImportResult& result) {
        const std::string format = result.alreadyImported
                                       ? KTLocalizedString("%@: already imported, %@ (%@ with a date), %@")
                                       : KTLocalizedString("%@: %@ (%@ with a date), %@");
        std::puts(KTStringWithFormat(format, {file, pointsText(result.pointCount),
                                              std::to_string(result.datedPointCount),
                                              waypointsText(result.waypointCount)})
                      .c_str());
    }
};

class TracksListCommand : public Command {
public:
    int run(CommandSession& session) override {
        KTTrackManager* library = session.tracks();
        if (library == nullptr)
            return session.exitStatus();
        const std::vector<KTTrack> tracks = library->store().tracks();
        if (session.json)
            printJSON(tracks);
        else
            for (const KTTrack& track : tracks)
                printText(track);
        return session.exitStatus();
    }

private:
    static const char* kindName(KTTrack::Kind kind) {
        return kind == KTTrack::Kind::Track ? "track" : kind == KTTrack::Kind::Route ? "route" : "waypoints";
    }

    static void printJSON(const std::vector<KTTrack>& tracks) {
        JSONOutput json;
        json.beginObjectWithArray("tracks");
        for (const KTTrack& track : tracks) {
            json.beginObject();
            json.member("id", track.id);
            json.member("kind", kindName(track.kind));
            json.member("name", track.name);
            json.member("file", track.sourceFile);
            json.member("points", track.pointCount);
            json.member("datedPoints", track.datedPointCount);
            json.member("waypoints", track.waypointCount);
            json.member("firstDate", track.firstDate);
            json.member("lastDate", track.lastDate);
            json.endObject();
        }
        json.endObjectWithArray();
    }

    static void printText(const KTTrack& track) {
        const std::string span =
            track.firstDate
                ? KTStringWithFormat(KTLocalizedString("%@ to %@"),
                                     {KTISO8601Text(*track.firstDate), KTISO8601Text(*track.lastDate)})
                : KTLocalizedString("no dates");
        const std::string count = track.kind == KTTrack::Kind::Waypoints ? waypointsText(track.waypointCount)
                                                                         : pointsText(track.pointCount);
        std::printf("%lld\t%s\t%s\t%s\t%s\t%s\n", static_cast<long long>(track.id), kindName(track.kind),
                    track.name.c_str(), count.c_str(), span.c_str(), track.sourceFile.c_str());
    }
};

class TracksRemoveCommand : public Command {
public:
    std::vector<std::int64_t> ids;

    int run(CommandSession& session) override {
        KTTrackManager* library = session.tracks();
        if (library == nullptr)
            return session.exitStatus();
        const KTTrackStore::Deletion deletion = library->deleteTracks(ids);
        if (!deletion.error.empty())
            session.failure(deletion.error);
        for (std::int64_t id : deletion.unknown)
            session.failure(
                KTStringWithFormat(KTLocalizedString("there is no track %@"), {std::to_string(id)}));
        if (session.json) {
            JSONOutput json;
            json.beginObject();
            json.key("removed");
            json.value(KTValue(KTValue::List(deletion.deleted.begin(), deletion.deleted.end())));
            json.endObject();
        } else {
            std::printf("%s\n", KTLocalizedCount("%d removed", deletion.deleted.size()).c_str());
        }
        return session.exitStatus();
    }
};

class TracksExportCommand : public Command {
public:
    std::vector<std::int64_t> ids;
    std::string format = "gpx";

    int run(CommandSession& session) override {
        KTTrackManager* library = session.tracks();
        if (library == nullptr)
            return session.exitStatus();
        if (std::string error = library->store().exportGPX(ids, std::cout); !error.empty())
            session.failure(error);
        std::cout.flush();
        if (!std::cout)
            session.failure(KTLocalizedString("standard output could not be written"));
        return session.exitStatus();
    }
};

template<typename Commands>
Commands& add(CLI::App* parser, CommandList& commands) {
    auto command = std::make_unique<Commands>();
    Commands& reference = *command;
    commands.push_back({parser, std::move(command)});
    return reference;
}

} // namespace

void addTracksCommands(CLI::App& app, CommandList& commands) {
    CLI::App* tracks = app.add_subcommand("tracks", KTLocalizedString("The track library"));
    tracks->require_subcommand(1);

    CLI::App* import = tracks->add_subcommand(
        "import", KTLocalizedString("Import track files (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)"));
    import
        ->add_option("FILE", add<TracksImportCommand>(import, commands).files,
                     KTLocalizedString("Track files"))
        ->required();

    add<TracksListCommand>(tracks->add_subcommand("list", KTLocalizedString("List what the library holds")),
                           commands);

    CLI::App* remove = tracks->add_subcommand(
        "remove", KTLocalizedString("Delete from the library by the ids that list shows"));
    remove->add_option("ID", add<TracksRemoveCommand>(remove, commands).ids, KTLocalizedString("Ids"))
        ->required();

    CLI::App* exported =
        tracks->add_subcommand("export", KTLocalizedString("Write tracks to standard output"));
    auto& command = add<TracksExportCommand>(exported, commands);
    exported->add_option("--format", command.format, "gpx")->check(CLI::IsMember({"gpx"}));
    exported->add_option("ID", command.ids, KTLocalizedString("Ids"))->required();
}
