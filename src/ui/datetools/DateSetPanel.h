#pragma once
#include "datetools/KTDateSetViewController.h"
#include "ui/datetools/DateToolPanel.h"

class InstantEdit;
class QComboBox;
class QPushButton;

/// Gives the selected photos one date, at a precision of the user's choice.
class DateSetPanel : public DateToolPanel {
    Q_OBJECT
public:
    /// @p setController must outlive the panel.
    explicit DateSetPanel(KTDateSetViewController& setController, QWidget* parent = nullptr);

    void apply() override { controller.setDateTimeOriginalApply(); }
    QString applyTip() const override;

private:
    void takeDateOfPhoto();
    void update();

    KTDateSetViewController& controller;
    QComboBox* precision;
    InstantEdit* picker;
    QPushButton* ofPhoto;
    QLabel *zone, *warning;
    KTObservable::Observation observation;
};
