#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class KTManualGeotaggingViewController;
class PrimaryButton;
class QLineEdit;
class QPushButton;

/// The map's centre as numbers, which can be typed or pasted in any notation,
/// and the buttons that take it, or a selected waypoint, as the place of the
/// selected photos.
class ManualPanel : public QWidget {
    Q_OBJECT
public:
    /// @p manualController must outlive the panel.
    explicit ManualPanel(KTManualGeotaggingViewController& manualController, QWidget* parent = nullptr);

private:
    QLineEdit* makeField(const QString& name);
    void enter(QLineEdit& field, bool isLatitude);
    void update();

    KTManualGeotaggingViewController& controller;
    QLineEdit *latitude, *longitude;
    PrimaryButton* geotag;
    QPushButton* geotagToWaypoint;
    KTObservable::Observation observation;
};
