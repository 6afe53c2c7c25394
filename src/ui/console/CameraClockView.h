#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class KTTimeZoneHUDController;
class QPushButton;
class QRadioButton;

/// In which time zone the clocks of the cameras are taken: the computer's, GMT, or another one that is looked
/// for in a list.
class CameraClockView : public QWidget {
    Q_OBJECT
public:
    explicit CameraClockView(KTTimeZoneHUDController& zonePanel, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void update();
    void showOptions();
    void pickZone();

    KTTimeZoneHUDController& controller;
    std::vector<QRadioButton*> options;
    QPushButton* zoneButton;
    KTObservable::Observation panelObservation, zoneObservation;
};
