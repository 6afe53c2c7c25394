#include "cli/GeotagCommand.h"

#include "cli/GeotagReport.h"

#include "geotagging/KTPointChoice.h"
#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoChangeTracker.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "platform/tracklibrary/KTTrackPointSearch.h"

#include <CLI/CLI.hpp>

namespace {

/// Settings that an option stands for hold for this run only.
void override(std::string_view key, const KTValue& value) {
    KTUserDefaults::standardUserDefaults().setValueForThisRun(key, value);
}

} // namespace

void GeotagCommand::applyOptions() {
    if (!timeZone.empty()) {
        zone = KTTimeZone::fromText(timeZone);
        if (!zone)
            throw UsageError{"\"" + timeZone + "\" is not a time zone: +02:00, Z or Area/City is expected"};
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
    CommandSession::noteInterruptions();
    const KTTrackPointSearch search({&library->store(), &runTracks->store()});
    const auto criteria = KTGeotaggingCriteria::criteriaFromDefaults(KTUserDefaults::standardUserDefaults());
    const auto files = session.photoFiles(paths);
    const KTGazetteer::Batch batch(KTGazetteer::sharedGazetteer());
    GeotagReport report(session, criteria, dryRun);
    for (std::size_t i = 0; i < files.size() && !CommandSession::isInterrupted(); ++i) {
        session.showProgress(dryRun ? "Loading image %lu of %lu" : "Geotagging photo %u of %u", i + 1,
                             files.size());
        GeotagOutcome outcome = geotag(files[i], criteria, search);
        session.endProgress();
        report.add(outcome);
    }
    session.endProgress();
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

GeotagOutcome GeotagCommand::geotag(const std::filesystem::path& file, const KTGeotaggingCriteria& criteria,
                                    const KTTrackPointSearch& search) {
    GeotagOutcome outcome;
    outcome.path = file;
    const auto photo = KTPhoto::initWithFile(file, {}, nullptr, {.log = &outcome.operations});
    outcome.wasRead = photo && photo->isValid();
    if (outcome.wasRead)
        judge(photo, outcome, criteria, search);
    if (photo)
        outcome.operations = photo->photoOperations();
    return outcome;
}

void GeotagCommand::judge(const std::shared_ptr<KTPhoto>& photo, GeotagOutcome& outcome,
                          const KTGeotaggingCriteria& criteria, const KTTrackPointSearch& search) {
    const auto instant = photo->dateTimeOriginal();
    if (instant) {
        outcome.neighbours.preceding = search.pointPrecedingTime(*instant);
        outcome.neighbours.next = search.pointFollowingTime(*instant);
        outcome.instant = instant;
        noteZone(*instant);
    }
    outcome.verdict = KTJudgePhoto(criteria, photo->isGeotagged(), instant, outcome.neighbours);
    if (outcome.verdict == KTGeotaggingVerdict::Accepted && instant) {
        outcome.choice = KTChoosePoint(criteria, *instant, outcome.neighbours);
        outcome.point = pointOf(outcome, photo);
    }
    if (outcome.point && photo->geotaggingWantsPlaceNames())
        outcome.point->waitUntilLocationDescriptionFetchIsCompleted();
    if (outcome.point && !dryRun) {
        const KTPhotoChangeTracker tracker(*photo);
        photo->setLocationCreatedFromLinkablePoint(outcome.point);
        photo->saveWithBackupToFolder(saving.backupFolder());
        outcome.saved = !photo->hasUnsavedChanges();
    }
}

std::shared_ptr<KTLinkablePoint> GeotagCommand::pointOf(const GeotagOutcome& outcome,
                                                        std::shared_ptr<KTPhoto> photo) {
    const auto& [preceding, next] = outcome.neighbours;
    if (outcome.choice == KTPointChoice::Preceding)
        return KTLinkablePoint::initWithGeoPoint(preceding, KTLinkablePointTypePreceding, std::move(photo));
    if (outcome.choice == KTPointChoice::Next)
        return KTLinkablePoint::initWithGeoPoint(next, KTLinkablePointTypeNext, std::move(photo));
    const auto between = outcome.choice ? KTTimeWeightedPosition(*preceding, *next, *outcome.instant)
                                        : std::optional<KTGeoPoint>();
    return between
               ? KTLinkablePoint::initWithGeoPoint(between, KTLinkablePointTypeTimeWeighted, std::move(photo))
               : nullptr;
}

/// The assumed zone is one fixed offset. Where a region was named whose clocks stood elsewhere at the time of
/// some photos, the user must hear of it.
void GeotagCommand::noteZone(KTInstant instant) {
    const int assumed =
        KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone().secondsFromGMT(instant);
    if (zone && zone->secondsFromGMT(instant) != assumed) {
        ++photosAtAnotherOffset;
        otherOffset = zone->offsetText(instant);
    }
}

void GeotagCommand::warnAboutZoneChanges(const CommandSession& session) const {
    if (photosAtAnotherOffset == 0)
        return;
    session.message(
        KTStringWithFormat("%@ was taken as the fixed offset %@, but its clocks stood at %@ when %@ of the "
                           "photos were taken; give the offset itself to match those",
                           {zone->name(), zone->offsetText(KTInstantNow()), otherOffset,
                            std::to_string(photosAtAnotherOffset)}));
}

void addGeotagCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<GeotagCommand>();
    CLI::App* parser = app.add_subcommand("geotag", "Match photos against tracks and write their positions");
    parser
        ->add_option("--track", command->tracks, "A track file for this run, beside the library; repeatable")
        ->type_name("FILE")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
    parser->add_option("--time-zone", command->timeZone,
                       "Zone of the cameras' clocks: +02:00, Z or Area/City");
    parser
        ->add_option("--max-time", command->maximumTime,
                     "A neighbouring point must be nearer than this (300)")
        ->type_name("SECONDS");
    parser->add_flag("--no-time", command->noTime, "No time restriction");
    parser->add_option("--max-distance", command->maximumDistance, "The neighbours must lie no farther apart")
        ->type_name("METRES");
    parser->add_flag("--no-distance", command->noDistance, "No distance restriction");
    parser->add_flag("--and", command->bothCriteria, "Both criteria must hold, not either");
    parser->add_flag("--time-weighted", command->timeWeighted, "Interpolate between the neighbours");
    parser->add_flag("--overwrite", command->overwrite, "Also photos that already carry a location");
    parser->add_flag("--no-place", command->noPlace, "No city, state, country");
    parser->add_flag("--no-altitude", command->noAltitude, "Leave the altitude alone");
    command->saving.addTo(*parser);
    parser->add_flag("--dry-run", command->dryRun, "Judge and print, write nothing");
    parser->add_option("PATH", command->paths, "Photos, sidecars or folders")->required();
    commands.push_back({parser, std::move(command)});
}
