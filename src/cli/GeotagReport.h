#pragma once
#include "cli/CommandSession.h"
#include "cli/JSONOutput.h"
#include "geotagging/KTGeotaggingSummary.h"
#include "photo/KTLinkablePoint.h"

/// What became of one photo.
struct GeotagOutcome {
    std::filesystem::path path;
    bool wasRead = false;
    KTGeotaggingVerdict verdict = KTGeotaggingVerdict::Accepted;
    std::optional<KTInstant> instant;
    KTTrackNeighbours neighbours;
    std::optional<KTPointChoice> choice;
    std::shared_ptr<KTLinkablePoint> point;
    bool saved = false;
    std::vector<KTPhotoOperation> operations;

    /// "geotagged", "alreadyGeotagged", "noTimeStamp", "timeCriteria", "distanceCriteria", "timeAndDistance",
    /// "noPoint" or "unreadable".
    std::string_view name() const;
    /// "preceding", "next" or "timeWeighted"; absent without a point.
    KTValue pointName() const;
};

/// Prints the outcomes, as text or JSON, as they come about, and the summary at the end.
class GeotagReport {
public:
    GeotagReport(CommandSession& commandSession, const KTGeotaggingCriteria& usedCriteria, bool isDryRun);
    void add(const GeotagOutcome& outcome);
    void finish();

private:
    void printJSON(const GeotagOutcome& outcome);
    void printText(const GeotagOutcome& outcome) const;
    void printJSONSummary(const KTGeotaggingSummary& summary);
    void printTextSummary(const KTGeotaggingSummary& summary) const;

    CommandSession& session;
    const KTGeotaggingCriteria criteria;
    const bool dryRun;
    std::optional<JSONOutput> json;
    KTGeotaggingCounters counters;
    std::size_t unreadable = 0, unsaved = 0;
};
