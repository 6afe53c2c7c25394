#pragma once
#include "datetools/KTDateSetViewController.h"

#include <QWidget>

class QComboBox;
class QDateTimeEdit;
class QLabel;

/// Gives the selected photos one date, at a precision of the user's choice.
class DateSetPanel : public QWidget {
    Q_OBJECT
public:
    /// @p setController must outlive the panel.
    explicit DateSetPanel(KTDateSetViewController& setController, QWidget* parent = nullptr);

private:
    void update();
    void enter();

    KTDateSetViewController& controller;
    QDateTimeEdit* picker;
    QComboBox* precision;
    QLabel* warning;
    KTObservable::Observation observation;
};
