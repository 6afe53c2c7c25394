#include "tests/soak/SoakModel.h"

#include <cmath>

const std::vector<std::string>& SoakModel::keys() {
    // Not gpsVersionID: the format adds it to a position that has none.
    static const std::vector<std::string> all = {
        "title",    "headline",  "caption",  "keywords",    "rating",      "cityCreated",
        "latitude", "longitude", "altitude", "gpsDateTime", "gpsMapDatum", "dateTimeOriginalComponents"};
    return all;
}

SoakModel::Values SoakModel::valuesOf(const KTPhoto& photo) {
    Values values;
    for (const std::string& key : keys())
        values[key] = photo.valueForKey(key);
    return values;
}

bool SoakModel::isSame(const KTValue& left, const KTValue& right) {
    const auto isNothing = [](const KTValue& value) {
        return !value.isSomething() || (value.list() && value.list()->empty());
    };
    if (isNothing(left) || isNothing(right))
        return isNothing(left) && isNothing(right);
    if (left.number() && right.number()) {
        constexpr double precision = 2e-6;
        return std::abs(left.number()->toDouble() - right.number()->toDouble()) <= precision;
    }
    if (left.date() && right.date())
        return std::chrono::floor<std::chrono::seconds>(*left.date()) ==
               std::chrono::floor<std::chrono::seconds>(*right.date());
    if (left.components() && right.components())
        return left.components()->hasSameReading(*right.components());
    return left.description() == right.description();
}

bool SoakModel::isSame(const Values& left, const Values& right) {
    return std::ranges::all_of(
        left, [&](const auto& entry) { return isSame(entry.second, right.at(entry.first)); });
}

void SoakModel::addChanges(Records& step, const Records& before, const Records& after) {
    for (const auto& [file, values] : before)
        for (const auto& [key, value] : values)
            if (!isSame(value, after.at(file).at(key)))
                step[file].emplace(key, value); // what stood there first is what comes back
}

void SoakModel::note(const Records& before, const Records& after) {
    Records step;
    addChanges(step, before, after);
    noteStep(std::move(step), after);
}

void SoakModel::noteStep(Records step, const Records& after) {
    for (const auto& [file, values] : after)
        records[file] = values;
    if (step.empty())
        return;
    undoSteps.push_back(std::move(step));
    redoSteps.clear();
}

bool SoakModel::move(Steps& from, Steps& to) {
    if (from.empty())
        return false;
    Records step = std::move(from.back());
    from.pop_back();
    for (auto& [file, values] : step)
        for (auto& [key, value] : values)
            std::swap(value, records.at(file).at(key));
    to.push_back(std::move(step));
    return true;
}

void SoakModel::forget(const Path& file) {
    records.erase(file);
    refusedDates.erase(file);
    behind.erase(file); // whoever loads it again takes what a reading brings as saved
    for (Steps* steps : {&undoSteps, &redoSteps}) {
        for (Records& step : *steps)
            step.erase(file);
        std::erase_if(*steps, [](const Records& step) { return step.empty(); });
    }
}

bool SoakModel::mustBeSaved(const Path& file) const {
    const Values& shown = records.at(file);
    const auto image = behind.find(file);
    return refusedDates.contains(file) || !isSame(shown, disk.at(file)) ||
           (image != behind.end() && !isSame(image->second, shown));
}

std::optional<std::pair<double, double>> SoakModel::positionAt(std::int64_t milliseconds) const {
    constexpr std::int64_t limit = 300'000;
    const TrackPoint *preceding = nullptr, *next = nullptr;
    for (const auto& [identifier, points] : tracks)
        for (const TrackPoint& point : points) {
            const TrackPoint*& best = point.milliseconds < milliseconds ? preceding : next;
            const bool isNearer = best == nullptr || std::abs(point.milliseconds - milliseconds) <
                                                         std::abs(best->milliseconds - milliseconds);
            best = isNearer ? &point : best;
        }
    const auto gap = [&](const TrackPoint* point) {
        return point != nullptr ? std::abs(point->milliseconds - milliseconds) : INT64_MAX;
    };
    const TrackPoint* nearest = gap(preceding) <= gap(next) ? preceding : next;
    if (nearest == nullptr || gap(nearest) >= limit)
        return std::nullopt;
    return std::pair(nearest->latitude, nearest->longitude);
}
