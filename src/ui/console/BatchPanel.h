#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class KTMultipleSelectionLinkerViewController;
class PrimaryButton;
class QLabel;
class SignLabel;

/// What a batch would do, in sentences, and the button that has it done.
class BatchPanel : public QWidget {
    Q_OBJECT
public:
    /// @p linkerController must outlive the panel.
    explicit BatchPanel(KTMultipleSelectionLinkerViewController& linkerController, QWidget* parent = nullptr);

private:
    void update();

    KTMultipleSelectionLinkerViewController& controller;
    SignLabel *successTitle, *failureTitle;
    QLabel *success, *failure, *tip, *already;
    QWidget* rule;
    PrimaryButton* geotag;
    KTObservable::Observation observation;
};
