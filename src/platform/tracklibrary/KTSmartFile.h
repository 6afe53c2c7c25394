#pragma once
#include "platform/observing/KTObservable.h"
#include "platform/tracklibrary/KTTrackPredicate.h"

/// An entry of the track library's source list that shows what its predicates mean. Observable under the
/// names of its properties. Main thread.
class KTSmartFile : public KTObservable {
public:
    using Predicate = std::optional<KTTrackPredicate>;

    explicit KTSmartFile(std::string title) : label(std::move(title)) {}

    const std::string& name() const { return label; }
    /// Which tracks and routes it shows; all of them where there is none.
    const Predicate& trackPredicate() const { return tracks; }
    void setTrackPredicate(Predicate predicate) { set("trackPredicate", tracks, std::move(predicate)); }
    /// The same of waypoints.
    const Predicate& waypointPredicate() const { return waypoints; }
    void setWaypointPredicate(Predicate predicate) {
        set("waypointPredicate", waypoints, std::move(predicate));
    }

private:
    void set(std::string_view key, Predicate& property, Predicate predicate) {
        willChange(key);
        property = std::move(predicate);
        didChange(key);
    }

    const std::string label;
    Predicate tracks, waypoints;
};
