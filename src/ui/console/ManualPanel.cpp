#include "ui/console/ManualPanel.h"

#include "geotagging/KTManualGeotaggingViewController.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/UIText.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int kDigits = 6; // of a degree: a decimetre

QString degrees(const KTDecimal& value) {
    return QString::number(value.toDouble(), 'f', kDigits);
}

} // namespace

ManualPanel::ManualPanel(KTManualGeotaggingViewController& manualController, QWidget* parent)
    : QWidget(parent), controller(manualController), latitude(makeField(uiText("Latitude"))),
      longitude(makeField(uiText("Longitude"))), geotag(new PrimaryButton),
      geotagToWaypoint(new QPushButton) {
    auto* const go = new QPushButton(uiText("Go"));
    go->setAccessibleName(uiText("Go to the coordinates"));
    go->setToolTip(uiText("Moves the map to these coordinates"));
    auto* const waypoints = new QPushButton(uiText("Waypoints…"));
    waypoints->setToolTip(uiText("Shows all waypoints of the track library"));
    geotag->setToolTip(uiText("Gives the selected photos the place under the crosshairs"));
    geotagToWaypoint->setToolTip(uiText("Gives the selected photos the place of the selected waypoint"));
    connect(latitude, &QLineEdit::editingFinished, this, [this] { enter(*latitude, true); });
    connect(longitude, &QLineEdit::editingFinished, this, [this] { enter(*longitude, false); });
    connect(go, &QPushButton::clicked, this, [this] { controller.gotoLatLon(); });
    connect(waypoints, &QPushButton::clicked, this, [this] { controller.showWaypoints(); });
    connect(geotag, &QPushButton::clicked, this, [this] { controller.saveToMapCenter(); });
    connect(geotagToWaypoint, &QPushButton::clicked, this, [this] { controller.saveToSelectedWaypoint(); });

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins({});
    auto addLine = [&](int row, QLineEdit* field) {
        auto* const label = new QLabel(field->accessibleName());
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
    };
    addLine(0, latitude);
    addLine(1, longitude);
    grid->addWidget(go, 1, 2);
    grid->addWidget(new QLabel(uiText("To the map's centre:")), 2, 0);
    grid->addWidget(geotag, 2, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(new QLabel(uiText("To the waypoint:")), 3, 0);
    grid->addWidget(geotagToWaypoint, 3, 1, Qt::AlignLeft);
    grid->addWidget(waypoints, 3, 2);
    grid->setRowStretch(4, 1);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

QLineEdit* ManualPanel::makeField(const QString& name) {
    auto* const field = new QLineEdit;
    field->setAccessibleName(name);
    field->setToolTip(uiText("Degrees, or both coordinates in any usual notation"));
    return field;
}

/// Whoever pastes both coordinates into one of the fields gets both.
void ManualPanel::enter(QLineEdit& field, bool isLatitude) {
    if (field.isModified()) {
        const std::string text = field.text().trimmed().replace(',', '.').toStdString();
        if (const auto number = KTDecimal::fromText(text))
            isLatitude ? controller.setLatitude(*number) : controller.setLongitude(*number);
        else
            controller.setCoordinatesFromText(field.text().toStdString());
    }
    update(); // what was no position goes
}

void ManualPanel::update() {
    latitude->setText(degrees(controller.latitude()));
    longitude->setText(degrees(controller.longitude()));
    geotag->setText(QString::fromStdString(controller.saveToMapCenterButtonTitle()));
    geotag->setEnabled(controller.canSaveToMapCenter());
    geotag->setAccessibleName(uiText("%1 to the map's centre").arg(geotag->text()));
    geotagToWaypoint->setText(QString::fromStdString(controller.saveToSelectedWaypointButtonTitle()));
    geotagToWaypoint->setEnabled(controller.canSaveToSelectedWaypoint());
    geotagToWaypoint->setAccessibleName(uiText("%1 to the waypoint").arg(geotagToWaypoint->text()));
}
