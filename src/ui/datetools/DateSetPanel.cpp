#include "ui/datetools/DateSetPanel.h"

#include "ui/datetools/InstantEdit.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

using Controller = KTDateSetViewController;

constexpr struct {
    Controller::Precision precision;
    const char *title, *format; ///< ISO, as far as it goes
    bool hasDay;
} kPrecisions[] = {{Controller::Year, "Year", "yyyy", false},
                   {Controller::Month, "Month", "yyyy-MM", false},
                   {Controller::Day, "Day", "yyyy-MM-dd", true},
                   {Controller::Hour, "Hour", "yyyy-MM-dd HH", true},
                   {Controller::Minute, "Minute", "yyyy-MM-dd HH:mm", true},
                   {Controller::Second, "Second", "yyyy-MM-dd HH:mm:ss", true}};

} // namespace

DateSetPanel::DateSetPanel(Controller& setController, QWidget* parent)
    : DateToolPanel(parent), controller(setController), precision(new QComboBox), picker(new InstantEdit),
      ofPhoto(new QPushButton(uiText("Take from Photo in Front"))), zone(new QLabel),
      warning(note(uiText("Some of the selected photos have a date already, which is replaced."))) {
    for (const auto& each : kPrecisions)
        precision->addItem(uiText(each.title));
    precision->setAccessibleName(uiText("Precision"));
    precision->setToolTip(uiText("How much of the date is known; finer parts stay open"));
    connect(precision, &QComboBox::activated, this,
            [this](int index) { controller.setSelectedPrecision(kPrecisions[index].precision); });
    picker->setAccessibleName(uiText("Date"));
    picker->setToolTip(uiText("The date that the photos get"));
    connect(picker, &InstantEdit::instantEdited, this,
            [this](KTInstant instant) { controller.setPrecisionVariableDate(instant); });
    ofPhoto->setToolTip(uiText("Starts from the date that the photo in front has now"));
    ofPhoto->setAutoDefault(false);
    connect(ofPhoto, &QPushButton::clicked, this, &DateSetPanel::takeDateOfPhoto);

    auto* const line = new QHBoxLayout;
    line->addWidget(picker);
    line->addWidget(zone);
    line->addSpacing(12);
    line->addWidget(ofPhoto);
    line->addStretch();
    auto* const form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(labelFor(precision, uiText("Known to the:")), precision);
    form->addRow(labelFor(picker, uiText("Original date:")), line);
    QSizePolicy policy = warning->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    warning->setSizePolicy(policy);
    form->addRow(warning);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

void DateSetPanel::takeDateOfPhoto() {
    const auto photo = controller.currentPhoto();
    const KTValue date = photo ? photo->valueForKey("dateTimeOriginal") : KTValue();
    if (date.date())
        controller.setPrecisionVariableDate(*date.date());
}

QString DateSetPanel::applyTip() const {
    return uiText("Gives all selected photos this date; nothing is written yet");
}

void DateSetPanel::update() {
    const auto shown = std::ranges::find_if(
        kPrecisions, [this](const auto& each) { return each.precision == controller.selectedPrecision(); });
    if (shown != std::end(kPrecisions)) {
        precision->setCurrentIndex(int(shown - std::begin(kPrecisions)));
        picker->setDisplayFormat(shown->format);
        picker->setCalendarPopup(shown->hasDay);
    }
    const KTTimeZone clock = controller.pickerTimeZone();
    picker->setInstant(controller.precisionVariableDate(), clock);
    zone->setText(uiText("(%1)").arg(QString::fromStdString(clock.name())));
    zone->setToolTip(uiText("The time zone in which the date is given"));
    const auto photo = controller.currentPhoto();
    ofPhoto->setEnabled(photo && photo->valueForKey("dateTimeOriginal").date());
    warning->setVisible(controller.hasDateTimeOriginalTag());
}
