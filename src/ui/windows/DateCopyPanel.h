#pragma once
#include "datetools/KTDateCopyViewController.h"

#include <QWidget>

class QCheckBox;
class QComboBox;

/// Copies one of each selected photo's dates to others of it.
class DateCopyPanel : public QWidget {
    Q_OBJECT
public:
    /// @p copyController must outlive the panel.
    explicit DateCopyPanel(KTDateCopyViewController& copyController, QWidget* parent = nullptr);

private:
    void update();

    KTDateCopyViewController& controller;
    QComboBox* source;
    std::array<QCheckBox*, 3> targets;
    KTObservable::Observation observation;
};
