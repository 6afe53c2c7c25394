#pragma once
#include "datetools/KTDateShiftViewController.h"

#include <QSpinBox>

/// The field of one unit of a shift. Its arrows are the controller's up and down control; typed may be any
/// number, also more seconds than a minute has. Emptied it is 0.
class ShiftField : public QSpinBox {
    Q_OBJECT
public:
    ShiftField(KTDateShiftViewController& shiftController, KTDateShiftViewController::Unit shownUnit);

    void update();
    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    StepEnabled stepEnabled() const override;
    QValidator::State validate(QString& text, int& position) const override;
    int valueFromText(const QString& text) const override;

private:
    KTDateShiftViewController& controller;
    const KTDateShiftViewController::Unit unit;
};
