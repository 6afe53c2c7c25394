#pragma once
#include "cli/Command.h"
#include "cli/GeotagReport.h"
#include "cli/SaveOptions.h"

class KTTrackPointSearch;

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
    /// The photo's fate; writes it unless this is a dry run.
    GeotagOutcome geotag(const std::filesystem::path& file, const KTGeotaggingCriteria& criteria,
                         const KTTrackPointSearch& search);
    void judge(const std::shared_ptr<KTPhoto>& photo, GeotagOutcome& outcome,
               const KTGeotaggingCriteria& criteria, const KTTrackPointSearch& search);
    static std::shared_ptr<KTLinkablePoint> pointOf(const GeotagOutcome& outcome,
                                                    std::shared_ptr<KTPhoto> photo);
    void noteZone(KTInstant instant);
    void warnAboutZoneChanges(const CommandSession& session) const;

    std::unique_ptr<KTTrackManager> runTracks;
    std::optional<KTTimeZone> zone;
    std::size_t photosAtAnotherOffset = 0;
    std::string otherOffset;
};
