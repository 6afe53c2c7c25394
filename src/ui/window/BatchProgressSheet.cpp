#include "ui/window/BatchProgressSheet.h"

#include "collection/KTBatchOperationController.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QAction>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

BatchProgressSheet::BatchProgressSheet(KTBatchOperationController& runner, QWidget* window)
    : QDialog(window), controller(runner), line(new QLabel), bar(new QProgressBar),
      stop(new QPushButton(uiText("Stop"))) {
    setWindowTitle(uiText("Progress"));
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(460);
    line->setWordWrap(true);
    bar->setAccessibleName(uiText("Progress"));
    stop->setToolTip(uiText("Finishes the photo at work and leaves the others as they are"));
    connect(stop, &QPushButton::clicked, this, &BatchProgressSheet::reject);
    auto* const quit = new QAction(this); // the sheet keeps the menu from being used
    quit->setShortcut(QKeySequence("Ctrl+Q"));
    connect(quit, &QAction::triggered, window, &QWidget::close);
    addAction(quit);
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(line);
    layout->addWidget(bar);
    layout->addWidget(stop, 0, Qt::AlignRight);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

void BatchProgressSheet::reject() {
    stop->setEnabled(false);
    controller.abortBatch();
}

void BatchProgressSheet::update() {
    line->setText(QString::fromStdString(controller.batchProgressDescription()));
    bar->setRange(int(controller.batchProgressMin()),
                  int(std::max<std::uint64_t>(1, controller.batchProgressMax())));
    bar->setValue(int(controller.batchProgressValue()));
    if (controller.batchSaveInProgress() == isVisible())
        return;
    stop->setEnabled(true);
    if (controller.batchSaveInProgress())
        open();
    else
        done(Accepted);
}
