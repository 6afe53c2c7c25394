#pragma once
#include "datetools/KTDateShiftViewController.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;

/// Corrects a camera's clock: a difference in days, hours, minutes and seconds, forward or back.
class DateShiftPanel : public QWidget {
    Q_OBJECT
public:
    /// @p shiftController must outlive the panel.
    explicit DateShiftPanel(KTDateShiftViewController& shiftController, QWidget* parent = nullptr);

private:
    using Unit = KTDateShiftViewController::Unit;

    QSpinBox* makeField(Unit unit, const QString& name, int maximum);
    void update();

    KTDateShiftViewController& controller;
    QComboBox* direction;
    std::array<QSpinBox*, 4> fields;
    QCheckBox *all, *digitized;
    QLabel* example;
    KTObservable::Observation observation;
};
