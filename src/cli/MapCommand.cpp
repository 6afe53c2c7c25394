#include "cli/Command.h"

#include "photo/KTPhoto.h"
#include "platform/cartography/drawing/KTMapScene.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QThread>
#include <cmath>

namespace {

constexpr std::chrono::seconds kLongestWaitForTiles{30};
constexpr double kLargestSide = 20'000; // physical pixels

/// The photos of one run as a layer.
class Photos final : public KTSpatialObjectController {
public:
    Objects list;

    std::string name() const override { return "Photos"; }
    Objects spatialObjects() const override { return list; }
    Indexes spatialObjectSelectionIndexes() const override { return {}; }
    bool addSelectedSpatialObjects(const Objects&) override { return false; }
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }
};

class MapCommand : public Command {
public:
    std::string out, size = "1600x1000", tiles;
    double scale = 1;
    bool isDark = false;
    std::vector<std::string> trackFiles, paths;

    bool drawsPictures() const override { return true; }

    int run(CommandSession& session) override {
        const auto [width, height] = parsedSize();
        KTMapController map;
        map.setMapDataSource(tiles);
        map.setViewSize(width, height, scale);
        Photos photos;
        KTMapScene scene(map);
        if (!tiles.empty() && !scene.tiles().store())
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("there is no source of map tiles named \"%@\""), {tiles})};
        readPhotos(photos, session);
        readTracks(scene.tracks(), session);
        scene.addPhotos(photos);
        goTo(map, photos, scene.tracks());
        waitForTiles(scene, map, session);
        const QImage picture = scene.picture({.isDark = isDark});
        if (KTBaseMapStore::sharedStore()->failure())
            session.setFailed(); // the log has said why
        if (picture.isNull() || !picture.save(QString::fromLocal8Bit(out.c_str()), "PNG"))
            session.failure(
                KTStringWithFormat(KTLocalizedString("the picture cannot be written to %@"), {out}));
        return session.exitStatus();
    }

private:
    std::pair<double, double> parsedSize() const {
        int width = 0, height = 0, end = 0;
        if (std::sscanf(size.c_str(), "%dx%d%n", &width, &height, &end) != 2 ||
            end != static_cast<int>(size.size()) || width < 16 || height < 16)
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("\"%@\" is not a size: WIDTHxHEIGHT in pixels is expected"), {size})};
        if (!(scale >= 0.5 && scale <= 8) || width * scale > kLargestSide || height * scale > kLargestSide)
            throw UsageError{
                KTLocalizedString("the picture is too large, or its scale is not one from 0.5 to 8")};
        return {width, height};
    }

    void readPhotos(Photos& photos, CommandSession& session) const {
        if (paths.empty())
            return;
        const auto files = session.photoFiles(paths);
        for (std::size_t i = 0; i < files.size(); ++i) {
            session.showProgress("Loading image %lu of %lu", i + 1, files.size());
            const auto photo = KTPhoto::initWithFile(files[i]);
            if (photo && photo->isValid())
                photos.list.push_back(photo);
            else
                session.failure(
                    KTStringWithFormat(KTLocalizedString("%@ cannot be read"), {files[i].string()}));
        }
        session.endProgress();
    }

    void readTracks(KTTrackLayer& layer, CommandSession& session) const {
        if (trackFiles.empty())
            return;
        KTTrackStore::Opened opened = KTTrackStore::open(":memory:");
        if (!opened.store)
            return session.failure(opened.error);
        KTTrackManager manager(std::move(opened.store));
        for (const std::string& file : trackFiles)
            if (const auto result = manager.importFile(file); !result.succeeded())
                session.failure(result.error);
        std::vector<KTMapTrack> shown;
        for (const KTTrack& track : manager.store().tracks())
            shown.push_back(
                {track.id, track.name, std::make_shared<KTTrackLine>(manager.store().positions(track.id))});
        layer.setTracks(std::move(shown));
    }

    /// All photos and tracks; the default place where there are none.
    static void goTo(KTMapController& map, const Photos& photos, const KTTrackLayer& tracks) {
        std::vector<KTMapPoint> corners;
        const auto add = [&corners](const std::optional<KTMapBounds>& bounds) {
            if (bounds)
                corners.insert(corners.end(), {bounds->southWest(), bounds->northEast()});
        };
        add(KTMapController::boundsOf(photos.list));
        for (const KTMapTrack& track : tracks.tracks())
            add(track.line->bounds());
        if (const auto bounds = KTMapBounds::ofPoints(corners))
            map.fitBounds(*bounds);
    }

    static void waitForTiles(KTMapScene& scene, const KTMapController& map, CommandSession& session) {
        const auto store = scene.tiles().store();
        if (!store)
            return;
        scene.tiles().willShow(map.viewState());
        const auto limit = std::chrono::steady_clock::now() + kLongestWaitForTiles;
        while (!store->isSettled() && std::chrono::steady_clock::now() < limit) {
            QCoreApplication::processEvents();
            QThread::msleep(10);
        }
        for (const std::string& problem : store->problems())
            session.failure(problem);
    }
};

} // namespace

void addMapCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<MapCommand>();
    CLI::App* parser =
        app.add_subcommand("map", KTLocalizedString("Draw photos and tracks on a map, as a picture"));
    parser->add_option("--out", command->out, KTLocalizedString("The picture to write"))
        ->type_name("FILE.png")
        ->required();
    parser->add_option("--size", command->size, KTLocalizedString("Its size before scaling"))
        ->type_name("WxH");
    parser->add_option("--scale", command->scale, KTLocalizedString("Pixels for each of these"))
        ->type_name("N");
    parser->add_flag("--dark", command->isDark, KTLocalizedString("Light on dark"));
    parser
        ->add_option("--tiles", command->tiles,
                     KTLocalizedString("A source of map tiles instead of the offline map"))
        ->type_name("NAME");
    parser->add_option("--track", command->trackFiles, KTLocalizedString("A track file to draw; repeatable"))
        ->type_name("FILE")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
    parser->add_option("PATH", command->paths, KTLocalizedString("Photos, sidecars or folders"));
    commands.push_back({parser, std::move(command)});
}
