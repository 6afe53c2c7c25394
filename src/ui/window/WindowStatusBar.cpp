#include "ui/window/WindowStatusBar.h"

#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoManagerToolbarController.h"
#include "ui/support/ImportProgressLine.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QHBoxLayout>
#include <QLabel>

WindowStatusBar::WindowStatusBar(KTPhotoManagerToolbarController& toolbar, KTPhotoManager& collection,
                                 QWidget* parent)
    : QWidget(parent), controller(toolbar), manager(collection), counts(new QLabel),
      progress(new ImportProgressLine([this] { controller.cancelImport(); })) {
    setAccessibleName(uiText("Status"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 3, 10, 3);
    layout->addWidget(counts);
    layout->addStretch();
    layout->addWidget(progress);
    controllerObservation = observeFor(this, controller, {}, [this] { showCounts(); });
    managerObservation = manager.observe([this](const KTChange& change) {
        if (!change.isPrior && change.key.starts_with("import"))
            showImport();
    });
    showCounts();
    showImport();
}

void WindowStatusBar::showCounts() {
    counts->setText(QString::fromStdString(controller.unsavedPhotosDescription()));
}

/// The number of photos read is the first of the two in the line.
void WindowStatusBar::showImport() {
    const QString line = QString::fromStdString(manager.importDescription());
    if (manager.importInProgress())
        progress->show(line, line.section(' ', -3, -3).toInt(), int(manager.importMax()));
    else
        progress->showNothing();
}
