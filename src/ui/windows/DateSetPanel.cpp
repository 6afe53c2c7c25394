#include "ui/windows/DateSetPanel.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/UIText.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace {

using Controller = KTDateSetViewController;

constexpr struct {
    Controller::Precision precision;
    const char *title, *format; ///< ISO, as far as it goes
} kPrecisions[] = {{Controller::Year, "Year", "yyyy"},
                   {Controller::Month, "Month", "yyyy-MM"},
                   {Controller::Day, "Day", "yyyy-MM-dd"},
                   {Controller::Hour, "Hour", "yyyy-MM-dd HH"},
                   {Controller::Minute, "Minute", "yyyy-MM-dd HH:mm"},
                   {Controller::Second, "Second", "yyyy-MM-dd HH:mm:ss"}};

} // namespace

DateSetPanel::DateSetPanel(Controller& setController, QWidget* parent)
    : QWidget(parent), controller(setController), picker(new QDateTimeEdit), precision(new QComboBox),
      warning(new QLabel(uiText("Some of the photos have a date already, which is replaced."))) {
    picker->setToolTip(uiText("The date that the photos get"));
    for (const auto& each : kPrecisions)
        precision->addItem(uiText(each.title));
    precision->setToolTip(uiText("How much of the date is known"));
    warning->setWordWrap(true);
    connect(picker, &QDateTimeEdit::dateTimeChanged, this, &DateSetPanel::enter);
    connect(precision, &QComboBox::activated, this,
            [this](int index) { controller.setSelectedPrecision(kPrecisions[index].precision); });
    auto* const apply = new PrimaryButton(uiText("Apply"));
    apply->setToolTip(uiText("Sets the date; nothing is written yet"));
    connect(apply, &QPushButton::clicked, this, [this] { controller.setDateTimeOriginalApply(); });
    auto* const form = new QFormLayout(this);
    form->setContentsMargins({});
    form->addRow(uiText("Precision:"), precision);
    form->addRow(uiText("Date:"), picker);
    form->addRow(warning);
    form->addRow(apply);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

/// The picker shows and takes the clock of the controller's zone.
void DateSetPanel::enter() {
    const QDateTime shown = picker->dateTime();
    const std::chrono::local_time<std::chrono::milliseconds> reading(
        std::chrono::milliseconds(QDateTime(shown.date(), shown.time(), Qt::UTC).toMSecsSinceEpoch()));
    controller.setPrecisionVariableDate(controller.pickerTimeZone().instantOfLocalTime(reading));
}

void DateSetPanel::update() {
    const auto shown = std::ranges::find_if(
        kPrecisions, [this](const auto& each) { return each.precision == controller.selectedPrecision(); });
    const QSignalBlocker quiet(picker);
    if (shown != std::end(kPrecisions)) {
        precision->setCurrentIndex(int(shown - std::begin(kPrecisions)));
        picker->setDisplayFormat(shown->format);
    }
    const KTInstant instant = controller.precisionVariableDate();
    picker->setTimeSpec(Qt::UTC);
    picker->setDateTime(QDateTime::fromMSecsSinceEpoch(
        instant.time_since_epoch().count() + controller.pickerTimeZone().secondsFromGMT(instant) * 1000LL,
        Qt::UTC));
    warning->setVisible(controller.hasDateTimeOriginalTag());
}
