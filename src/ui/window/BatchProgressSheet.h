#pragma once
#include "platform/observing/KTObservable.h"

#include <QDialog>

class KTBatchOperationController;
class QLabel;
class QProgressBar;
class QPushButton;

/// The sheet that shows how far a batch is and stops it. On the screen while one is in progress.
class BatchProgressSheet : public QDialog {
    Q_OBJECT
public:
    BatchProgressSheet(KTBatchOperationController& runner, QWidget* window);

    /// Stops the batch; the sheet goes when it has ended.
    void reject() override;

private:
    void update();

    KTBatchOperationController& controller;
    QLabel* line;
    QProgressBar* bar;
    QPushButton* stop;
    KTObservable::Observation observation;
};
