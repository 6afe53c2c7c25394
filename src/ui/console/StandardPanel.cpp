#include "ui/console/StandardPanel.h"

#include "geotagging/KTSingleSelectionLinkerViewController.h"
#include "photo/KTLinkablePoint.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr const char* kAdvances = "shouldAutoAdvanceToNextPhotoDefault";
using Controller = KTSingleSelectionLinkerViewController;

} // namespace

StandardPanel::StandardPanel(Controller& linkerController, QWidget* parent)
    : QWidget(parent), controller(linkerController) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(1);
    grid->setColumnStretch(0, 1);
    addRow(*grid, &Controller::precedingPoint, &Controller::savePrecedingPointAction,
           uiText("Preceding track point"), uiText("Geotag to preceding track point"));
    addRow(*grid, &Controller::timeWeightedPoint, &Controller::saveTimeWeightedPointAction,
           uiText("Time weighted average point"), uiText("Geotag to time weighted average point"));
    addRow(*grid, &Controller::nextPoint, &Controller::saveNextPointAction, uiText("Next track point"),
           uiText("Geotag to next track point"));
    auto* const advances = new QCheckBox(uiText("then select the next photo"));
    advances->setToolTip(uiText("Selects the next photo as soon as this one is geotagged"));
    advances->setChecked(KTUserDefaults::standardUserDefaults().boolForKey(kAdvances));
    connect(advances, &QCheckBox::clicked, this,
            [](bool isOn) { KTUserDefaults::standardUserDefaults().setValue(kAdvances, isOn); });
    grid->addWidget(advances, grid->rowCount(), 0, 1, 2);
    grid->setRowStretch(grid->rowCount(), 1);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

void StandardPanel::addRow(QGridLayout& grid, Point (Controller::*point)() const, void (Controller::*save)(),
                           const QString& name, const QString& buttonName) {
    auto row = std::make_unique<Row>(
        Row{point, new QLabel(name), new QLabel, new QPushButton(uiText("Geotag")), {}, {}});
    QFont bold = row->title->font();
    bold.setBold(true);
    row->title->setFont(bold);
    row->text->setWordWrap(true);
    row->text->setForegroundRole(QPalette::PlaceholderText);
    row->button->setAccessibleName(buttonName);
    row->button->setToolTip(row->button->accessibleName());
    connect(row->button, &QPushButton::clicked, this, [this, save] { (controller.*save)(); });
    const int line = grid.rowCount();
    grid.addWidget(row->title, line, 0);
    grid.addWidget(row->button, line, 1, 2, 1, Qt::AlignTop);
    grid.addWidget(row->text, line + 1, 0);
    rows.push_back(std::move(row));
}

void StandardPanel::update() {
    for (const auto& row : rows) {
        row->shown = (controller.*row->point)();
        row->observation = {};
        if (row->shown)
            row->observation = observeFor(this, *row->shown, {}, [line = row.get()] { describe(*line); });
        describe(*row);
    }
}

void StandardPanel::describe(Row& row) {
    row.button->setEnabled(row.shown != nullptr);
    if (!row.shown) {
        row.text->setText(uiText("There is none."));
        return;
    }
    QStringList lines = {QString::fromStdString(row.shown->pointDescription()),
                         QString::fromStdString(row.shown->caution()),
                         QString::fromStdString(row.shown->locationDescription())};
    lines.removeAll(QString());
    row.text->setText(lines.join(' '));
}
