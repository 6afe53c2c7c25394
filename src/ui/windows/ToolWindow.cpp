#include "ui/windows/ToolWindow.h"

#include "ui/support/ObservationLink.h"
#include "ui/window/WindowState.h"

#include <QCloseEvent>

ToolWindow::ToolWindow(const QString& name, const QString& title, QSize usualSize, Visibility visibility)
    : controller(std::move(visibility)) {
    setObjectName(name);
    setWindowTitle(title);
    resize(usualSize);
    WindowState().restoreGeometry(name, *this);
    observation = observeFor(this, controller.announced, controller.key, [this] { follow(); });
}

ToolWindow::~ToolWindow() {
    if (isMade)
        WindowState().saveGeometry(objectName(), *this);
}

void ToolWindow::follow() {
    if (!controller.isVisible()) {
        hide();
        return;
    }
    if (!isMade)
        makeContent();
    isMade = true;
    show();
    raise();
    activateWindow();
}

void ToolWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the controller has it hidden
    QMetaObject::invokeMethod(
        this, [this] { controller.setVisible(false); }, Qt::QueuedConnection);
}

void ToolWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}
