#include "ui/datetools/ShiftField.h"

#include <QSignalBlocker>

namespace {

constexpr int kMost = 999'999'999;

} // namespace

ShiftField::ShiftField(KTDateShiftViewController& shiftController, KTDateShiftViewController::Unit shownUnit)
    : controller(shiftController), unit(shownUnit) {
    setRange(0, kMost);
    setAlignment(Qt::AlignRight);
    connect(this, &QSpinBox::valueChanged, this, [this](int value) { controller.setMagnitude(unit, value); });
}

QSize ShiftField::sizeHint() const {
    const QSize usual = QSpinBox::sizeHint();
    return {usual.width() - fontMetrics().horizontalAdvance("9999"), usual.height()};
}

/// What is being typed stays as it is typed.
void ShiftField::update() {
    const auto shown = int(std::min<std::int64_t>(controller.magnitude(unit), kMost));
    if (shown == value())
        return;
    const QSignalBlocker quiet(this);
    setValue(shown);
}

void ShiftField::stepBy(int steps) {
    controller.setEditedUnit(unit);
    for (int step = 0; step < std::abs(steps); ++step)
        controller.setStepperValue(controller.stepperValue() + (steps > 0 ? 1 : -1));
    selectAll();
}

QAbstractSpinBox::StepEnabled ShiftField::stepEnabled() const {
    const bool isAtEnd = unit == KTDateShiftViewController::Days && value() == 0;
    return isAtEnd ? StepUpEnabled : StepUpEnabled | StepDownEnabled;
}

QValidator::State ShiftField::validate(QString& text, int& position) const {
    return text.isEmpty() ? QValidator::Acceptable : QSpinBox::validate(text, position);
}

int ShiftField::valueFromText(const QString& text) const {
    return text.isEmpty() ? 0 : QSpinBox::valueFromText(text);
}
