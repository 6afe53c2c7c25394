#include "ui/console/CameraClockView.h"

#include "geotagging/KTTimeZoneHUDController.h"
#include "ui/console/TimeZonePicker.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QString describe(const KTTimeZone& zone) {
    const QString name = QString::fromStdString(zone.name()).section('/', -1).replace('_', ' ');
    const QString offset = QString::fromStdString(zone.offsetText(KTInstantNow()));
    return zone.isFixed() ? name : name + ' ' + offset;
}

} // namespace

CameraClockView::CameraClockView(KTTimeZoneHUDController& zonePanel, QWidget* parent)
    : QWidget(parent), controller(zonePanel), zoneButton(new QPushButton) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(4);
    auto* const question = new QLabel(uiText("The photos' times are in"));
    question->setWordWrap(true);
    layout->addWidget(question);
    auto* const group = new QButtonGroup(this);
    for (std::size_t i = 0; i < controller.timeZoneOptions().size(); ++i) {
        options.push_back(new QRadioButton);
        options.back()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // it wraps
        options.back()->setToolTip(uiText("The time zone to which the camera's clock was set"));
        group->addButton(options.back(), int(i));
        layout->addWidget(options.back());
    }
    connect(group, &QButtonGroup::idClicked, this, [this](int index) {
        controller.setTimeZoneOptionsSelectedIndex(unsigned(index));
        if (!controller.shouldHideOtherTimeZoneOption())
            pickZone();
    });
    zoneButton->setToolTip(uiText("Choose another time zone"));
    zoneButton->setAutoDefault(false);
    connect(zoneButton, &QPushButton::clicked, this, &CameraClockView::pickZone);
    layout->addWidget(zoneButton, 0, Qt::AlignLeft);
    auto* const adjust = new QPushButton(uiText("Adjust Date && Time…"));
    adjust->setAccessibleName(uiText("Adjust Date & Time…"));
    adjust->setToolTip(uiText("For a clock that was wrong, not only set to another zone"));
    adjust->setAutoDefault(false);
    connect(adjust, &QPushButton::clicked, this, [this] { controller.openDateAndTimeShifter(); });
    layout->addWidget(adjust, 0, Qt::AlignLeft);
    layout->addStretch();
    panelObservation = observeFor(this, controller, {}, [this] { update(); });
    zoneObservation =
        observeFor(this, controller.photoAssumedTimeZoneController(), "timeZone", [this] { update(); });
    update();
}

void CameraClockView::update() {
    showOptions();
    const std::size_t selected =
        std::min<std::size_t>(controller.timeZoneOptionsSelectedIndex(), options.size() - 1);
    options[selected]->setChecked(true);
    const QString zone = describe(controller.photoAssumedTimeZoneController().timeZone());
    zoneButton->setText(zone);
    zoneButton->setAccessibleName(uiText("Time zone: %1").arg(zone));
    zoneButton->setVisible(!controller.shouldHideOtherTimeZoneOption());
}

void CameraClockView::resizeEvent(QResizeEvent*) {
    showOptions();
}

/// A zone in parentheses goes into a line of its own where there is no room beside the text.
void CameraClockView::showOptions() {
    for (std::size_t i = 0; i < options.size() && i < controller.timeZoneOptions().size(); ++i) {
        QRadioButton& option = *options[i];
        QString text = QString::fromStdString(controller.timeZoneOptions()[i]);
        option.setAccessibleName(text);
        option.setText(text);
        if (option.sizeHint().width() > width())
            option.setText(text.replace(" (", "\n("));
    }
}

void CameraClockView::pickZone() {
    auto* const picker = new TimeZonePicker(
        [this](const KTTimeZone& zone) {
            controller.photoAssumedTimeZoneController().setDefaultTimeZone(zone);
        },
        window());
    picker->open();
}
