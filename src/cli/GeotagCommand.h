#pragma once
#include "cli/Command.h"
#include "cli/GeotagReport.h"

class KTTrackPointSearch;

/// The main job: photos, tracks, criteria in; positions written and an account of every photo out.
class GeotagCommand : public Command {
public:
    std::vector<std::string> paths, tracks;
    std::string timeZone, backupFolder;
    std::optional<double> maximumTime, maximumDistance;
    std::optional<int> sidecarStyle;
    bool noTime = false, noDistance = false, bothCriteria = false, timeWeighted = false, overwrite = false;
    bool noPlace = false, noAltitude = false, preserveDate = false, dryRun = false;

    int run(CommandSession& session) override;

private:
    void applyOptions();
    bool importTracks(CommandSession& session);
    /// The photo's fate; writes it unless this is a dry run.
    GeotagOutcome judge(KTPhoto& photo, const KTGeotaggingCriteria& criteria,
                        const KTTrackPointSearch& search);
    static std::optional<KTGeoPoint> pointOf(const GeotagOutcome& outcome);
    void noteZone(KTInstant instant);
    void warnAboutZoneChanges(const CommandSession& session) const;

    std::unique_ptr<KTTrackManager> runTracks;
    std::optional<KTTimeZone> zone;
    std::size_t photosAtAnotherOffset = 0;
    std::string otherOffset;
};
