#include "ui/map/MapTracks.h"

#include "platform/concurrency/KTMainThread.h"
#include "platform/tracklibrary/KTTrackPickerController.h"
#include "ui/support/ObservationLink.h"

MapTracks::MapTracks(KTTrackPickerController& pickerController, KTTrackLayer& trackLayer, QObject* parent)
    : QObject(parent), picker(pickerController), layer(trackLayer) {
    observation = observeFor(this, picker.trackSourceList(), "tracksAndWaypoints", [this] { update(); });
    update();
}

MapTracks::~MapTracks() {
    queue.cancelAllOperations();
}

/// Tracks that are known show at once, the others when their lines are made.
void MapTracks::update() {
    Lines wanted;
    std::vector<std::int64_t> missing;
    for (const KTTrackRecord& record : *picker.trackSourceList().tracksAndWaypoints())
        if (const KTTrack* const track = record.track()) {
            const auto known = lines.find(track->id);
            wanted[track->id] = known == lines.end() ? nullptr : known->second;
            if (wanted[track->id] == nullptr)
                missing.push_back(track->id);
        }
    lines = std::move(wanted);
    show();
    queue.cancelAllOperations();
    for (const std::int64_t id : missing)
        queue.addOperationWithBlock([id, &store = picker.trackManager().store(), guard = QPointer(this)] {
            const auto line = std::make_shared<const KTTrackLine>(store.positions(id));
            KTPerformOnMainThread([id, line, guard] {
                if (!guard || !guard->lines.contains(id))
                    return;
                guard->lines[id] = line;
                guard->show();
            });
        });
}

void MapTracks::show() {
    std::vector<KTMapTrack> tracks;
    for (const KTTrackRecord& record : *picker.trackSourceList().tracksAndWaypoints())
        if (const KTTrack* const track = record.track(); track && lines[track->id])
            tracks.push_back({track->id, track->name, lines[track->id]});
    layer.setTracks(std::move(tracks));
}
