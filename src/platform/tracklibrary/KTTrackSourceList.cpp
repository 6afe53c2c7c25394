#include "platform/tracklibrary/KTTrackSourceList.h"

#include <algorithm>
#include <set>

namespace {

using Identity = std::pair<std::size_t, std::int64_t>;

std::set<Identity> identitiesOf(const KTTrackSourceList::Records& records) {
    std::set<Identity> identities;
    for (const KTTrackRecord& record : records)
        identities.emplace(record.content.index(), record.id());
    return identities;
}

bool contains(const std::set<Identity>& identities, const KTTrackRecord& record) {
    return identities.contains({record.content.index(), record.id()});
}

} // namespace

void KTTrackSourceList::setTracksAndWaypoints(Records records) {
    const std::set<Identity> chosen = identitiesOf(selected);
    Records stillSelected;
    for (const KTTrackRecord& record : records)
        if (contains(chosen, record))
            stillSelected.push_back(record);
    willChange("tracksAndWaypoints");
    rows = std::make_shared<const Records>(std::move(records));
    didChange("tracksAndWaypoints");
    if (stillSelected.size() != selected.size())
        setSelectedTracksAndWaypoints(std::move(stillSelected));
}

KTTrackSourceList::Indexes KTTrackSourceList::selectedIndexes() const {
    const std::set<Identity> chosen = identitiesOf(selected);
    Indexes indexes;
    for (std::size_t row = 0; row < rows->size(); ++row)
        if (contains(chosen, (*rows)[row]))
            indexes.push_back(row);
    return indexes;
}

void KTTrackSourceList::setSelectedIndexes(const Indexes& indexes) {
    Records records;
    for (std::size_t index : indexes)
        if (index < rows->size())
            records.push_back((*rows)[index]);
    setSelectedTracksAndWaypoints(std::move(records));
}

void KTTrackSourceList::setSelectedTracksAndWaypoints(Records records) {
    willChange("selectedTracksAndWaypoints");
    selected = std::move(records);
    didChange("selectedTracksAndWaypoints");
}

std::optional<double> KTTrackSourceList::lengthOfTrack(std::int64_t track) const {
    const auto known = lengths.find(track);
    return known == lengths.end() ? std::nullopt : known->second;
}

void KTTrackSourceList::addLengths(const std::vector<std::pair<std::int64_t, std::optional<double>>>& known) {
    willChange("trackLengths");
    for (const auto& [track, length] : known)
        lengths.insert_or_assign(track, length);
    didChange("trackLengths");
}
