#include "cli/GeotagReport.h"

#include "platform/common/KTUnitConverter.h"
#include "platform/gazetteer/KTGazetteer.h"

std::string_view GeotagOutcome::name() const {
    if (!wasRead)
        return "unreadable";
    switch (verdict) {
    case KTGeotaggingVerdict::PreviouslyGeotagged:
        return "alreadyGeotagged";
    case KTGeotaggingVerdict::NoDateTimeOriginal:
        return "noTimeStamp";
    case KTGeotaggingVerdict::TimeCriteriaFailure:
        return "timeCriteria";
    case KTGeotaggingVerdict::DistanceCriteriaFailure:
        return "distanceCriteria";
    case KTGeotaggingVerdict::TimeAndDistanceFailure:
        return "timeAndDistance";
    default:
        return point ? "geotagged" : "noPoint";
    }
}

KTValue GeotagOutcome::pointName() const {
    if (!point)
        return {};
    return *choice == KTPointChoice::Preceding ? "preceding"
           : *choice == KTPointChoice::Next    ? "next"
                                               : "timeWeighted";
}

GeotagReport::GeotagReport(CommandSession& commandSession, const KTGeotaggingCriteria& usedCriteria,
                           bool isDryRun)
    : session(commandSession), criteria(usedCriteria), dryRun(isDryRun) {
    if (!session.json)
        return;
    json.emplace();
    json->beginObject();
    json->key("photos");
    json->beginArray();
}

void GeotagReport::add(const GeotagOutcome& outcome) {
    if (outcome.wasRead)
        counters.count(outcome.verdict, outcome.point ? outcome.choice : std::nullopt);
    else
        ++unreadable;
    if (!outcome.wasRead || (outcome.point && !dryRun && !outcome.saved))
        session.setFailed();
    unsaved += outcome.point && !dryRun && !outcome.saved ? 1 : 0;
    for (const KTPhotoOperation& operation : outcome.operations)
        if (operation.resultType() == KTPhotoOperation::Failure ||
            (operation.resultType() == KTPhotoOperation::Warning && outcome.point))
            session.message(outcome.path.string() + ": " + operation.resultDescription());
    if (dryRun && outcome.point && outcome.point->requestFailure())
        session.message(outcome.path.string() + ": " + *outcome.point->requestFailure());
    if (json)
        printJSON(outcome);
    else
        printText(outcome);
}

void GeotagReport::printJSON(const GeotagOutcome& outcome) {
    auto gap = [&](const std::optional<KTGeoPoint>& neighbour) -> KTValue {
        if (!neighbour || !neighbour->date || !outcome.instant)
            return {};
        return KTDecimal::fromDouble(KTSecondsBetween(*outcome.instant, *neighbour->date));
    };
    json->beginObject();
    json->member("path", outcome.path.string());
    json->member("outcome", outcome.name());
    json->member("point", outcome.pointName());
    if (outcome.point) {
        json->member("latitude", outcome.point->latitude());
        json->member("longitude", outcome.point->longitude());
        json->member("altitude", outcome.point->elevation());
        json->member("gpsDateTime", outcome.point->date());
    }
    json->member("secondsToPreceding", gap(outcome.neighbours.preceding));
    json->member("secondsToNext", gap(outcome.neighbours.next));
    if (outcome.point) {
        const KTValue::Dictionary place = outcome.point->locationDictionary();
        for (std::string_view key : {"city", "state", "country"})
            if (const auto name = place.find(key); name != place.end())
                json->member(key, name->second);
    }
    if (!dryRun && outcome.point)
        json->member("saved", outcome.saved);
    json->member("operations", outcome.operations);
    json->endObject();
}

void GeotagReport::printText(const GeotagOutcome& outcome) const {
    std::string line = outcome.path.string() + ": " + std::string(outcome.name());
    if (outcome.point) {
        auto text = [](const std::optional<KTDecimal>& number) { return number ? number->toText() : "?"; };
        line += " " + text(outcome.point->latitude()) + ", " + text(outcome.point->longitude());
        if (outcome.point->elevation())
            line += ", " + KTUnitConverter::sharedUnitConverter().heightDescriptionFromMeters(
                               *outcome.point->elevation());
        line += " (" + outcome.pointName().description() + ")";
        const std::string place =
            KTGazetteer::locationDescriptionFromDictionary(outcome.point->locationDictionary());
        if (!place.empty() && !outcome.point->requestFailure())
            line += " " + place;
        line += dryRun ? " [dry run]" : outcome.saved ? "" : " NOT SAVED";
    }
    std::printf("%s\n", line.c_str());
}

void GeotagReport::finish() {
    const KTGeotaggingSummary summary = KTGeotaggingSummary::summaryOf(counters, criteria);
    if (json)
        printJSONSummary(summary);
    else
        printTextSummary(summary);
    json.reset();
}

void GeotagReport::printJSONSummary(const KTGeotaggingSummary& summary) {
    auto text = [&](std::string_view name, const std::string& value) {
        json->member(name, value.empty() ? KTValue() : KTValue(value));
    };
    json->endArray();
    json->key("summary");
    json->beginObject();
    text("successTitle", summary.successTitle);
    text("successDescription", summary.successDescription);
    text("failureTitle", summary.failureTitle);
    text("failureDescription", summary.failureDescription);
    text("failureTip", summary.failureTip);
    text("alreadyGeotaggedDescription", summary.alreadyGeotaggedDescription);
    json->endObject();

    const std::pair<std::string_view, std::size_t> counts[] = {
        {"totalSuccesses", counters.totalSuccesses},
        {"totalPreceding", counters.totalPreceding},
        {"totalNext", counters.totalNext},
        {"previouslyGeotaggedFailures", counters.previouslyGeotaggedFailures},
        {"noDateTimeOriginalFailures", counters.noDateTimeOriginalFailures},
        {"timeCriteriaFailures", counters.timeCriteriaFailures},
        {"distanceCriteriaFailures", counters.distanceCriteriaFailures},
        {"timeAndDistanceFailures", counters.timeAndDistanceFailures}};
    json->key("counts");
    json->beginObject();
    for (const auto& [name, count] : counts)
        json->member(name, static_cast<std::int64_t>(count));
    json->endObject();
    json->endObject();
}

void GeotagReport::printTextSummary(const KTGeotaggingSummary& summary) const {
    for (const std::string* text :
         {&summary.successTitle, &summary.successDescription, &summary.failureTitle,
          &summary.failureDescription, &summary.failureTip, &summary.alreadyGeotaggedDescription})
        if (!text->empty())
            std::printf("%s\n", text->c_str());
    if (unreadable != 0)
        std::printf("%zu could not be read.\n", unreadable);
    if (unsaved != 0)
        std::printf("%zu could not be saved.\n", unsaved);
}
