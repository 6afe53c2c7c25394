#pragma once
#include "cli/Command.h"
#include "cli/CommandCollection.h"
#include "cli/GeotagReport.h"
#include "cli/SaveOptions.h"
#include "geotagging/KTGeotagger.h"

/// The main job: photos, tracks, criteria in; positions written and an account of every photo out.
class GeotagCommand : public Command {
public:
    std::vector<std::string> paths, tracks;
    std::string timeZone;
    std::optional<double> maximumTime, maximumDistance;
    bool noTime = false, noDistance = false, bothCriteria = false, timeWeighted = false, overwrite = false;
    bool noPlace = false, noAltitude = false, dryRun = false;
    SaveOptions saving;

    int run(CommandSession& session) override;

private:
    void applyOptions();
    bool importTracks(CommandSession& session);
    static void save(CommandCollection& collection, const KTGeotaggingComputation& computation,
                     GeotagReport& report);
    static void askForPlaces(const KTGeotaggingComputation& computation);
    void noteZones(const KTGeotaggingComputation& computation);
    void warnAboutZoneChanges(const CommandSession& session) const;

    std::unique_ptr<KTTrackManager> runTracks;
    std::optional<KTTimeZone> zone;
    std::size_t photosAtAnotherOffset = 0;
    std::string otherOffset;
};
