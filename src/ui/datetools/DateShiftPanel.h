#pragma once
#include "datetools/KTDateShiftViewController.h"
#include "ui/datetools/DateToolPanel.h"

class InstantEdit;
class QCheckBox;
class QLayout;
class QRadioButton;
class ShiftField;

/// Corrects a camera's clock: a difference in days, hours, minutes and seconds, forward or back, or the right
/// date of the photo in front, from which the difference follows.
class DateShiftPanel : public DateToolPanel {
    Q_OBJECT
public:
    /// @p shiftController must outlive the panel.
    explicit DateShiftPanel(KTDateShiftViewController& shiftController, QWidget* parent = nullptr);

    void apply() override { controller.shiftDateTimeOriginalApply(); }
    QString applyTip() const override;
    bool canRevert() const override { return true; }
    void revert() override { controller.shiftDateTimeOriginalRevert(); }

private:
    using Controller = KTDateShiftViewController;

    QLayout* makeDates();
    QLayout* makeDifference();
    void update();

    Controller& controller;
    InstantEdit *saved, *corrected;
    QRadioButton *later, *earlier;
    std::array<ShiftField*, 4> fields;
    QCheckBox *digitized, *all;
    QLabel* zone;
    KTObservable::Observation observation;
};
