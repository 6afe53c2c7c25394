#pragma once
#include "platform/cartography/drawing/tracks/KTTrackLayer.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/tracklibrary/KTTrackManager.h"

#include <QObject>

class KTTrackPickerController;

/// Shows on the map the tracks that the track library shows. Their lines are
/// made on another thread, once each as long as they are shown.
class MapTracks : public QObject {
    Q_OBJECT
public:
    /// Both must outlive it.
    MapTracks(KTTrackPickerController& pickerController, KTTrackLayer& trackLayer, QObject* parent);
    ~MapTracks() override;

private:
    using Lines = std::map<std::int64_t, std::shared_ptr<const KTTrackLine>>;

    void update();
    void show();

    KTTrackPickerController& picker;
    KTTrackLayer& layer;
    Lines lines; // of the tracks that are shown
    unsigned updates = 0;
    KTObservable::Observation observation;
    KTOperationQueue queue; // last: its work looks at the library
};
