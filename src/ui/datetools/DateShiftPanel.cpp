#include "ui/datetools/DateShiftPanel.h"

#include "ui/datetools/InstantEdit.h"
#include "ui/datetools/ShiftField.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

namespace {

constexpr const char* kUnitNames[] = {"days", "hours", "minutes", "seconds"}; // as the controller's units

} // namespace

DateShiftPanel::DateShiftPanel(Controller& shiftController, QWidget* parent)
    : DateToolPanel(parent), controller(shiftController), saved(new InstantEdit), corrected(new InstantEdit),
      later(new QRadioButton(uiText("later"))), earlier(new QRadioButton(uiText("earlier"))),
      digitized(new QCheckBox(uiText("Shift the digitized date, too"))),
      all(new QCheckBox(uiText("All loaded photos, not only the selected ones"))), zone(new QLabel) {
    auto* const form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setVerticalSpacing(8);
    form->addRow(labelFor(saved, uiText("Saved date:")), makeDates());
    auto* const byLabel = labelFor(later, uiText("Shift dates:"));
    form->addRow(byLabel, makeDifference());
    digitized->setToolTip(uiText("Move the date at which the picture was digitized by the same difference"));
    connect(digitized, &QCheckBox::clicked, this,
            [this](bool isOn) { controller.setShouldShiftDigitizedDate(isOn); });
    all->setToolTip(uiText("Shift every photo that is loaded, whatever is selected"));
    connect(all, &QCheckBox::clicked, this, [this](bool isOn) { controller.setShiftAllPhotos(isOn); });
    auto* const options = new QHBoxLayout;
    options->setSpacing(18);
    options->addWidget(digitized);
    options->addWidget(all);
    options->addStretch();
    form->addRow(QString(), options);
    form->addRow(note(
        uiText("For a clock that was wrong. If it was right but set to another time zone, choose that zone "
               "under the camera clock of the main window instead.")));
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

QLayout* DateShiftPanel::makeDates() {
    saved->setAccessibleName(uiText("Saved date"));
    saved->setToolTip(uiText("The date of the photo in front, as its file holds it"));
    saved->setReadOnly(true);
    saved->setCalendarPopup(false);
    saved->setButtonSymbols(QAbstractSpinBox::NoButtons);
    saved->setFocusPolicy(Qt::ClickFocus);
    corrected->setAccessibleName(uiText("Corrected date"));
    corrected->setToolTip(uiText("What the clock should have shown: the difference follows from it"));
    connect(corrected, &InstantEdit::instantEdited, this,
            [this](KTInstant instant) { controller.setCurrentImageCorrectedDate(instant); });
    auto* const line = new QHBoxLayout;
    line->addWidget(saved);
    line->addSpacing(12);
    line->addWidget(labelFor(corrected, uiText("Corrected date:")));
    line->addSpacing(6);
    line->addWidget(corrected);
    line->addSpacing(6);
    line->addWidget(zone);
    line->addStretch();
    return line;
}

QLayout* DateShiftPanel::makeDifference() {
    auto* const line = new QHBoxLayout;
    line->setSpacing(5);
    earlier->setToolTip(uiText("The clock was fast: the right dates are earlier"));
    later->setToolTip(uiText("The clock was slow: the right dates are later"));
    for (QRadioButton* const button : {later, earlier}) {
        connect(button, &QRadioButton::clicked, this,
                [this, button] { controller.setIsNegative(button == earlier); });
        line->addWidget(button);
    }
    line->addSpacing(6);
    line->addWidget(new QLabel(uiText("by")));
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = new ShiftField(controller, Controller::Unit(i));
        fields[i]->setAccessibleName(uiText(kUnitNames[i]));
        fields[i]->setToolTip(uiText("How far the dates are moved: %1").arg(uiText(kUnitNames[i])));
        line->addWidget(fields[i]);
        line->addWidget(labelFor(fields[i], uiText(kUnitNames[i])));
        line->addSpacing(4);
    }
    line->addStretch();
    return line;
}

QString DateShiftPanel::applyTip() const {
    return uiText("Gives the photos the shifted dates, counted from the saved ones; nothing is written yet");
}

void DateShiftPanel::update() {
    (controller.isNegative() ? earlier : later)->setChecked(true);
    for (ShiftField* const field : fields)
        field->update();
    const KTTimeZone clock = controller.displayTimeZone();
    saved->setInstant(controller.currentImageSavedDate(), clock);
    corrected->setInstant(controller.currentImageCorrectedDate(), clock);
    zone->setText(uiText("(%1)").arg(QString::fromStdString(clock.name())));
    zone->setToolTip(uiText("The time zone of both dates"));
    all->setChecked(controller.shiftAllPhotos());
    digitized->setChecked(controller.shouldShiftDigitizedDate());
}
