#include "cli/GeotagCommand.h"
#include "collection/DemoTrip.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>

namespace fs = std::filesystem;

namespace {

class DemoCommand : public Command {
public:
    std::string folder;

    int run(CommandSession& session) override {
        DemoTrip trip;
        const fs::path place = folder.empty() ? unusedFolder() : fs::path(folder);
        if (auto failure = trip.makeIn(place)) {
            session.failure(*failure);
            return session.exitStatus();
        }
        if (!session.json)
            std::printf("%s\n\n",
                        KTStringWithFormat(KTLocalizedString("Made a small trip in %@: 12 photos (camera "
                                                             "clock at UTC%@) and the track of the walk."),
                                           {place.string(), DemoTrip::kTimeZone})
                            .c_str());
        session.libraryFile = ":memory:";
        GeotagCommand geotag;
        geotag.paths = {trip.photos.string()};
        geotag.tracks = {trip.track.string()};
        geotag.timeZone = DemoTrip::kTimeZone;
        const int status = geotag.run(session);
        if (!session.json)
            sayWhatNext(trip);
        return status;
    }

private:
    static fs::path unusedFolder() {
        fs::path name = "waymark-demo";
        for (int number = 1; fs::exists(name); ++number)
            name = "waymark-demo-" + std::to_string(number);
        return name;
    }

    static void sayWhatNext(const DemoTrip& trip) {
        const std::string photos = trip.photos.string(), track = trip.track.string();
        std::printf(
            "\n%s\n"
            "  exiftool -n -gps:all %s/IMG_0101.jpg\n"
            "  waymark-cli read %s/IMG_0101.jpg\n"
            "  waymark-cli set \"caption=%s\" \"keywords=%s\" %s\n"
            "  waymark-cli geotag --track %s --time-zone %s --time-weighted --overwrite --dry-run %s\n"
            "%s\n"
            "  waymark-cli geotag --track TRACK.gpx --time-zone +02:00 --backup FOLDER PHOTOS\n",
            KTLocalizedString("The positions are in the photos now. Try next:").c_str(), photos.c_str(),
            photos.c_str(), KTLocalizedString("By the lake").c_str(), KTLocalizedString("lake|walk").c_str(),
            photos.c_str(), track.c_str(), DemoTrip::kTimeZone, photos.c_str(),
            KTLocalizedString("With your own photos:").c_str());
    }
};

} // namespace

void addDemoCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<DemoCommand>();
    CLI::App* parser = app.add_subcommand(
        "demo", KTLocalizedString("Make a small trip, geotag it and say what to try next"));
    parser->add_option("FOLDER", command->folder, KTLocalizedString("A new folder for the trip"));
    commands.push_back({parser, std::move(command)});
}
