#include "ui/console/ConsolePane.h"

#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingConsoleViewController.h"
#include "metadata/KTDateFormatters.h"
#include "ui/console/BatchPanel.h"
#include "ui/console/BoardsView.h"
#include "ui/console/CameraClockView.h"
#include "ui/console/CriteriaView.h"
#include "ui/console/ManualPanel.h"
#include "ui/console/StandardPanel.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/SwitchButton.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr struct {
    unsigned mode;
    const char *title, *tip;
} kModes[] = {{KTGeotaggingModeBatch, "Batch", "Geotags all selected photos at once"},
              {KTGeotaggingModeManual, "Manual", "Geotags the selected photos to a place on the map"},
              {KTGeotaggingModeStandard, "Standard", "Shows the track points around one photo"}};

} // namespace

ConsolePane::ConsolePane(KTGeotaggingConsoleViewController& consoleController, KTTimeZoneHUDController& clock,
                         std::function<void()> addTracks, QWidget* parent)
    : QWidget(parent), controller(consoleController), addTracksCommand(std::move(addTracks)) {
    setAccessibleName(uiText("Geotagging"));
    auto* const place = new QWidget;
    panelPlace = new QHBoxLayout(place);
    panelPlace->setContentsMargins({});
    auto* const boards = new BoardsView;
    boards->addBoard(uiText("Proposed locations"), {}, place, 1);
    boards->addBoard(uiText("Criteria"), uiText("Criteria"), new CriteriaView, 0);
    boards->addBoard(uiText("Camera clock"), uiText("Camera clock"), new CameraClockView(clock), 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 8);
    layout->setSpacing(6);
    layout->addWidget(makeHead());
    layout->addWidget(boards, 1);
    observations.push_back(controller.observe([this](const KTChange& change) {
        if (!change.isPrior)
            showPanel();
        else if (change.key == "panel")
            removePanel(); // its controller is about to go
    }));
    showPanel();
}

QWidget* ConsolePane::makeHead() {
    auto* const head = new QWidget;
    auto* const line = new QHBoxLayout(head);
    line->setContentsMargins({});
    line->setSpacing(4);
    addModes(*line);
    tracksLine = new QLabel;
    tracksLine->setAccessibleName(uiText("Tracks in use"));
    tracksLine->setForegroundRole(QPalette::PlaceholderText);
    tracksLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    tracksLine->installEventFilter(this);
    line->addSpacing(6);
    line->addWidget(tracksLine, 1);
    KTGeotaggingController& geotagging = controller.geotagging();
    QToolButton* const zoom =
        addTool(*line, uiText("Flags"), "zoom-fit-best", uiText("Shows all flags on the map"),
                [&geotagging] { geotagging.zoomToFitActiveLinkablePoints(); });
    QToolButton* const rotate = addTool(*line, uiText("Rotate"), "object-rotate-right",
                                        uiText("Lays the flags down or sets them upright"),
                                        [&geotagging] { geotagging.toggleFlagRotation(); });
    QToolButton* const points =
        addTool(*line, uiText("Points"), "view-visible", uiText("Shows or hides the proposed points"), {});
    points->setCheckable(true);
    connect(points, &QToolButton::clicked, this,
            [&geotagging](bool isOn) { geotagging.setShouldShowSpatialObjects(isOn); });
    auto update = [&geotagging, zoom, rotate, points] {
        zoom->setEnabled(geotagging.canZoomToFlags());
        rotate->setEnabled(geotagging.canRotateFlags());
        points->setChecked(geotagging.shouldShowSpatialObjects());
    };
    observations.push_back(observeFor(this, geotagging, {}, update));
    update();
    observations.push_back(observeFor(this, geotagging.trackPickerController().trackSourceList(),
                                      "tracksAndWaypoints", [this] { showTracks(); }));
    showTracks();
    return head;
}

void ConsolePane::addModes(QHBoxLayout& line) {
    auto* const group = new QButtonGroup(this);
    KTGeotaggingController& geotagging = controller.geotagging();
    for (const auto& [mode, title, tip] : kModes) {
        QToolButton* const button =
            addTool(line, uiText(title), nullptr, uiText(tip),
                    [&geotagging, chosen = mode] { geotagging.setGeotaggingMode(chosen); });
        button->setCheckable(true);
        group->addButton(button, int(mode));
    }
    auto check = [group, &geotagging] {
        if (QAbstractButton* const button = group->button(int(geotagging.geotaggingMode())))
            button->setChecked(true);
    };
    observations.push_back(observeFor(this, geotagging, "geotaggingMode", check));
    check();
}

QToolButton* ConsolePane::addTool(QHBoxLayout& line, const QString& text, const char* icon,
                                  const QString& tip, const std::function<void()>& command) {
    auto* const button = new SwitchButton;
    button->setText(text);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::TabFocus);
    if (icon) {
        button->setIcon(QIcon::fromTheme(icon));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    if (command)
        connect(button, &QToolButton::clicked, this, [command] { command(); });
    line.addWidget(button);
    return button;
}

/// Not at once: a button of the panel may be what had it replaced.
void ConsolePane::removePanel() {
    if (panel == nullptr)
        return;
    panel->hide();
    panel->deleteLater();
    panel = nullptr;
}

void ConsolePane::showPanel() {
    removePanel();
    panel = makePanel();
    panelPlace->addWidget(panel);
}

QWidget* ConsolePane::makePanel() {
    if (auto* const batch = controller.batchPanel())
        return new BatchPanel(*batch);
    if (auto* const single = controller.singlePanel())
        return new StandardPanel(*single);
    if (auto* const manual = controller.manualPanel())
        return new ManualPanel(*manual);
    return makeText();
}

/// What to do where there is nothing to be shown.
QWidget* ConsolePane::makeText() {
    auto* const place = new QWidget;
    auto* const column = new QVBoxLayout(place);
    column->addStretch();
    auto* const label = new QLabel(QString::fromStdString(controller.selectionDescription()));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    column->addWidget(label);
    auto add = [&](const QString& text, const std::function<void()>& command) {
        auto* const button = new PrimaryButton(text);
        connect(button, &QPushButton::clicked, place, [command] { command(); });
        column->addWidget(button, 0, Qt::AlignHCenter);
    };
    if (auto* const several = controller.severalPanel()) {
        label->setText(uiText("The standard mode shows the track points around one photo."));
        add(uiText("Use Batch Mode"), [several] { several->toggleGeotaggingMode(); });
    } else if (controller.geotaggingModeStatus() == KTGeotaggingStatusNoTracks) {
        add(uiText("Add Tracks…"), addTracksCommand);
    }
    column->addStretch();
    return place;
}

/// "from 3 tracks, 4 Jul 2014 08:55 – 12:40"
void ConsolePane::showTracks() {
    std::optional<KTInstant> first, last;
    std::size_t count = 0;
    for (const KTTrackRecord& record :
         *controller.geotagging().trackPickerController().trackSourceList().tracksAndWaypoints())
        if (const KTTrack* const track = record.track()) {
            ++count;
            if (track->firstDate && (!first || *track->firstDate < *first))
                first = track->firstDate;
            if (track->lastDate && (!last || *track->lastDate > *last))
                last = track->lastDate;
        }
    QString text = count == 0 ? QString() : uiCount("from 1 track", "from %d tracks", count);
    if (first && last) {
        const KTDateTimeFormatter formatter;
        text += ", " + QString::fromStdString(formatter.stringForObjectValue(*first)) + " – " +
                QString::fromStdString(formatter.stringForObjectValue(*last));
    }
    tracksLine->setToolTip(text);
    shortenTracks();
}

bool ConsolePane::eventFilter(QObject* object, QEvent* event) {
    if (object == tracksLine && event->type() == QEvent::Resize)
        shortenTracks();
    return QWidget::eventFilter(object, event);
}

/// What does not fit stands in the tool tip.
void ConsolePane::shortenTracks() {
    tracksLine->setText(
        tracksLine->fontMetrics().elidedText(tracksLine->toolTip(), Qt::ElideRight, tracksLine->width()));
}
