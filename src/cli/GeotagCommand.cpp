#include "cli/GeotagCommand.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/gazetteer/KTGazetteer.h"

#include <CLI/CLI.hpp>

namespace {

/// Settings that an option stands for hold for this run only.
void override(std::string_view key, const KTValue& value) {
    KTUserDefaults::standardUserDefaults().setValueForThisRun(key, value);
}

/// The computation in which every photo is judged by what is known of it in the end.
KTGeotagger::Computation computationOf(const KTGeotagger& geotagger, CommandCollection& collection) {
    const std::size_t photos = collection.photoManager().numberOfPhotos();
    collection.runUntil([&] {
        const auto computation = geotagger.computation();
        return computation->fates.size() == photos && computation->photosBeingLinked == 0;
    });
    return geotagger.computation();
}

} // namespace

void GeotagCommand::applyOptions() {
    if (!timeZone.empty()) {
        zone = KTTimeZone::fromText(timeZone);
        if (!zone)
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("\"%@\" is not a time zone: +02:00, Z or Area/City is expected"),
                {timeZone})};
        override("defaultAssumedTimeZoneOffset", std::int64_t(zone->secondsFromGMT(KTInstantNow())));
    }
    if (maximumTime)
        override("timeRestriction",
                 KTDecimal::fromDouble(KTGeotaggingCriteria::restrictionFromInput(*maximumTime)));
    if (maximumTime || noTime)
        override("shouldUseTimeRestriction", !noTime);
    if (maximumDistance)
        override("distanceRestriction",
                 KTDecimal::fromDouble(KTGeotaggingCriteria::restrictionFromInput(*maximumDistance)));
    if (maximumDistance || noDistance)
        override("shouldUseDistanceRestriction", !noDistance);
    if (bothCriteria)
        override("shouldANDRestrictions", true);
    if (timeWeighted)
        override("shouldUseTimeWeightedAverage", true);
    if (overwrite)
        override("shouldIgnorePreviouslyTaggedPhotos", false);
    if (noAltitude)
        override("defaultShouldSaveAltitude", false);
    if (noPlace) {
        override("defaultLatLonCreatedShouldReverseGeocodeLocationCreated", false);
        override("defaultLatLonCreatedShouldReverseGeocodeLocationShown", false);
    }
    saving.apply();
}

int GeotagCommand::run(CommandSession& session) {
    applyOptions();
    KTTrackManager* library = session.tracks();
    if (library == nullptr || !importTracks(session))
        return kExitSomethingFailed;
    CommandCollection collection(session);
    std::vector<GeotagFile> files;
    collection.importPhotos(paths, [&](const auto& file, const auto& photo, const auto& operations) {
        files.push_back({file, photo, operations});
    });

    KTGeotagger geotagger(collection.photoController(), {library, runTracks.get()},
                          collection.batchOperationController());
    geotagger.setup();
    KTPhotoManager& photos = collection.photoManager();
    photos.setSelectedPhotos(*photos.photos());
    geotagger.setShouldActivelyGeotag(true);
    const auto computation = computationOf(geotagger, collection);
    noteZones(*computation);
    const KTGazetteer::Batch places(KTGazetteer::sharedGazetteer());
    if (dryRun) {
        askForPlaces(*computation);
    } else if (!CommandSession::isInterrupted()) {
        geotagger.batchSave();
        collection.runUntil([&] { return !geotagger.isBatchOperationInProgress(); });
    }
    GeotagReport report(session, dryRun);
    report.begin(files, *computation);
    if (!dryRun && !CommandSession::isInterrupted())
        save(collection, *computation, report);
    report.finish();
    warnAboutZoneChanges(session);
    return session.exitStatus();
}

/// The tracks of this run lie beside the library, in memory.
bool GeotagCommand::importTracks(CommandSession& session) {
    KTTrackStore::Opened opened = KTTrackStore::open(":memory:");
    if (!opened.store) {
        session.failure(opened.error);
        return false;
    }
    runTracks = std::make_unique<KTTrackManager>(std::move(opened.store));
    for (const std::string& file : tracks) {
        auto result = runTracks->importFile(file);
        if (!result.succeeded())
            session.failure(result.error);
    }
    return !session.hasFailed();
}

void GeotagCommand::save(CommandCollection& collection, const KTGeotaggingComputation& computation,
                         GeotagReport& report) {
    KTPhotoManager::Photos geotagged;
    for (const auto& point : computation.batchPointArray)
        geotagged.push_back(point->photo());
    KTBatchOperationController& batches = collection.batchOperationController();
    const KTObservable::Observation progress = batches.observe([&](const KTChange& change) {
        // Steps that were cancelled count as done.
        if (!change.isPrior && change.key == "batchProgressValue" && !CommandSession::isInterrupted())
            report.printUntilSave(batches.batchProgressValue());
    });
    collection.savePhotos(geotagged);
}

/// What a dry run tells of places; a real one fetches them as it writes.
void GeotagCommand::askForPlaces(const KTGeotaggingComputation& computation) {
    const auto wantsPlaces = [](const auto& point) { return point->photo()->geotaggingWantsPlaceNames(); };
    for (const auto& point : computation.batchPointArray)
        if (wantsPlaces(point))
            point->fetchLocationDescription();
    for (const auto& point : computation.batchPointArray)
        if (wantsPlaces(point) && !CommandSession::isInterrupted())
            point->waitUntilLocationDescriptionFetchIsCompleted();
}

/// The assumed zone is one fixed offset. Where a region was named whose clocks stood elsewhere at the time of
/// some photos, the user must hear of it.
void GeotagCommand::noteZones(const KTGeotaggingComputation& computation) {
    const KTTimeZone assumed = KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone();
    for (const KTGeotaggingFate& fate : computation.fates) {
        const auto instant = fate.links ? fate.links->instant : std::nullopt;
        if (zone && instant && zone->secondsFromGMT(*instant) != assumed.secondsFromGMT(*instant)) {
            ++photosAtAnotherOffset;
            otherOffset = zone->offsetText(*instant);
        }
    }
}

void GeotagCommand::warnAboutZoneChanges(const CommandSession& session) const {
    if (photosAtAnotherOffset == 0)
        return;
    session.message(KTStringWithFormat(
        KTLocalizedCount(
            "%@ was taken as the fixed offset %@, but its clocks stood at %@ when 1 photo was "
            "taken; give the offset itself to match it",
            "%@ was taken as the fixed offset %@, but its clocks stood at %@ when %d photos were "
            "taken; give the offset itself to match those",
            photosAtAnotherOffset),
        {zone->name(), zone->offsetText(KTInstantNow()), otherOffset}));
}

void addGeotagCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<GeotagCommand>();
    CLI::App* parser = app.add_subcommand(
        "geotag", KTLocalizedString("Match photos against tracks and write their positions"));
    parser
        ->add_option("--track", command->tracks,
                     KTLocalizedString("A track file for this run, beside the library; repeatable"))
        ->type_name("FILE")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
    parser->add_option("--time-zone", command->timeZone,
                       KTLocalizedString("Zone of the cameras' clocks: +02:00, Z or Area/City"));
    parser
        ->add_option("--max-time", command->maximumTime,
                     KTLocalizedString("A neighbouring point must be nearer than this (300)"))
        ->type_name("SECONDS");
    parser->add_flag("--no-time", command->noTime, KTLocalizedString("No time restriction"));
    parser
        ->add_option("--max-distance", command->maximumDistance,
                     KTLocalizedString("The neighbours must lie no farther apart"))
        ->type_name("METRES");
    parser->add_flag("--no-distance", command->noDistance, KTLocalizedString("No distance restriction"));
    parser->add_flag("--and", command->bothCriteria,
                     KTLocalizedString("Both criteria must hold, not either"));
    parser->add_flag("--time-weighted", command->timeWeighted,
                     KTLocalizedString("Interpolate between the neighbours"));
    parser->add_flag("--overwrite", command->overwrite,
                     KTLocalizedString("Also photos that already carry a location"));
    parser->add_flag("--no-place", command->noPlace, KTLocalizedString("No city, state, country"));
    parser->add_flag("--no-altitude", command->noAltitude, KTLocalizedString("Leave the altitude alone"));
    command->saving.addTo(*parser);
    parser->add_flag("--dry-run", command->dryRun, KTLocalizedString("Judge and print, write nothing"));
    parser->add_option("PATH", command->paths, KTLocalizedString("Photos, sidecars or folders"))->required();
    commands.push_back({parser, std::move(command)});
}
