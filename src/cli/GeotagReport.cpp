#include "cli/GeotagReport.h"

#include "photo/KTLinkablePoint.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/gazetteer/KTGazetteer.h"

std::string_view GeotagOutcome::name() const {
    if (fate == nullptr)
        return "unreadable";
    switch (fate->verdict) {
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
        return point() ? "geotagged" : "noPoint";
    }
}

std::shared_ptr<KTLinkablePoint> GeotagOutcome::point() const {
    return fate != nullptr ? fate->point() : nullptr;
}

KTValue GeotagOutcome::pointName() const {
    if (!point())
        return {};
    return *fate->choice == KTPointChoice::Preceding ? "preceding"
           : *fate->choice == KTPointChoice::Next    ? "next"
                                                     : "timeWeighted";
}

bool GeotagOutcome::wasSavingTried() const {
    return isSaved() || fate->photo->photoOperations().size() > operationsBefore;
}

std::vector<KTPhotoOperation> GeotagOutcome::operations() const {
    return fate != nullptr ? fate->photo->photoOperations() : file->operations;
}

GeotagReport::GeotagReport(CommandSession& commandSession, bool isDryRun)
    : session(commandSession), dryRun(isDryRun) {
    if (!session.json)
        return;
    json.emplace();
    json->beginObject();
    json->key("photos");
    json->beginArray();
}

/// A file that was read and is not in the collection was given twice, under two names.
void GeotagReport::begin(const std::vector<GeotagFile>& files, const KTGeotaggingComputation& computation) {
    computed = &computation;
    std::unordered_map<const KTPhoto*, const KTGeotaggingFate*> fates;
    for (const KTGeotaggingFate& fate : computation.fates)
        fates.emplace(fate.photo.get(), &fate);
    for (const GeotagFile& file : files) {
        const KTPhotoManager::Photo& photo = file.photo;
        if (const auto fate = fates.find(photo.get()); fate != fates.end())
            outcomes.push_back(
                {&file, fate->second, photo->hasUnsavedChanges(), photo->photoOperations().size()});
        else if (!photo || !photo->isValid())
            outcomes.push_back({&file});
    }
}

void GeotagReport::printUntilSave(std::uint64_t saves) {
    for (; printed < outcomes.size(); ++printed) {
        if (outcomes[printed].isToBeSaved && printedSaves++ == saves) {
            --printedSaves;
            return;
        }
        print(outcomes[printed]);
    }
}

bool GeotagReport::wasLeftOut(const GeotagOutcome& outcome) const {
    return CommandSession::isInterrupted() && outcome.point() && !dryRun &&
           !(outcome.isToBeSaved && outcome.wasSavingTried());
}

void GeotagReport::print(const GeotagOutcome& outcome) {
    session.endProgress();
    const bool isUnsaved = outcome.point() && !dryRun && !outcome.isSaved();
    unreadable += outcome.fate == nullptr ? 1 : 0;
    unsaved += isUnsaved ? 1 : 0;
    if (outcome.fate == nullptr || isUnsaved)
        session.setFailed();
    printMessages(outcome);
    if (json)
        printJSON(outcome);
    else
        printText(outcome);
}

void GeotagReport::printMessages(const GeotagOutcome& outcome) const {
    const auto point = outcome.point();
    const std::string file = outcome.file->path.string() + ": ";
    for (const KTPhotoOperation& operation : outcome.operations())
        if (operation.resultType() == KTPhotoOperation::Failure ||
            (operation.resultType() == KTPhotoOperation::Warning && point))
            session.message(file + operation.resultDescription());
    if (point && !point->caution().empty())
        session.message(file + point->caution());
    if (dryRun && point && point->requestFailure())
        session.message(file + *point->requestFailure());
}

void GeotagReport::printJSON(const GeotagOutcome& outcome) {
    const auto point = outcome.point();
    const KTLinkedPoints* links = outcome.fate != nullptr ? outcome.fate->links.get() : nullptr;
    auto gap = [&](const std::optional<KTTrackNeighbour>& neighbour) -> KTValue {
        if (!neighbour || !neighbour->date || !links->instant)
            return {};
        return KTDecimal::fromDouble(KTSecondsBetween(*links->instant, *neighbour->date));
    };
    json->beginObject();
    json->member("path", outcome.file->path.string());
    json->member("outcome", outcome.name());
    json->member("point", outcome.pointName());
    if (point) {
        json->member("latitude", point->latitude());
        json->member("longitude", point->longitude());
        json->member("altitude", point->elevation());
        json->member("gpsDateTime", point->date());
    }
    if (links != nullptr) {
        json->member("secondsToPreceding", gap(links->neighbours.preceding));
        json->member("secondsToNext", gap(links->neighbours.next));
    }
    if (point) {
        const KTValue::Dictionary place = point->locationDictionary();
        for (std::string_view key : {"city", "state", "country"})
            if (const auto name = place.find(key); name != place.end())
                json->member(key, name->second);
        if (!dryRun)
            json->member("saved", outcome.isSaved());
    }
    json->member("operations", outcome.operations());
    json->endObject();
}

void GeotagReport::printText(const GeotagOutcome& outcome) const {
    std::string line = outcome.file->path.string() + ": " + std::string(outcome.name());
    if (const auto point = outcome.point()) {
        auto text = [](const std::optional<KTDecimal>& number) { return number ? number->toText() : "?"; };
        line += " " + text(point->latitude()) + ", " + text(point->longitude());
        if (point->elevation())
            line += ", " +
                    KTUnitConverter::sharedUnitConverter().heightDescriptionFromMeters(*point->elevation());
        line += " (" + outcome.pointName().description() + ")";
        const std::string place = KTGazetteer::locationDescriptionFromDictionary(point->locationDictionary());
        if (!place.empty() && !point->requestFailure())
            line += " " + place;
        line += dryRun              ? KTLocalizedString(" [dry run]")
                : outcome.isSaved() ? ""
                                    : KTLocalizedString(" NOT SAVED");
    }
    std::printf("%s\n", line.c_str());
}

void GeotagReport::finish() {
    for (; printed < outcomes.size(); ++printed)
        if (!wasLeftOut(outcomes[printed]))
            print(outcomes[printed]);
    const KTGeotaggingSummary summary =
        KTGeotaggingSummary::summaryOf(computed->counters, computed->criteria);
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

    const KTGeotaggingCounters& counters = computed->counters;
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
    const auto printCount = [](std::size_t count, const char* text) {
        if (count != 0)
            std::printf("%s\n", KTLocalizedCount(text, count).c_str());
    };
    printCount(unreadable, "%d could not be read.");
    printCount(unsaved, "%d could not be saved.");
}
