#pragma once
#include "datetools/KTDateCopyViewController.h"
#include "ui/datetools/DateToolPanel.h"

class QCheckBox;
class QRadioButton;

/// Copies one of each selected photo's dates to others of it.
class DateCopyPanel : public DateToolPanel {
    Q_OBJECT
public:
    /// @p copyController must outlive the panel.
    explicit DateCopyPanel(KTDateCopyViewController& copyController, QWidget* parent = nullptr);

    void apply() override { controller.copyDateTimeApply(); }
    QString applyTip() const override;

private:
    using Date = KTDateCopyViewController::Date;

    void update();

    KTDateCopyViewController& controller;
    std::array<QRadioButton*, 3> sources;
    std::array<QCheckBox*, 3> targets;
    KTObservable::Observation observation;
};
