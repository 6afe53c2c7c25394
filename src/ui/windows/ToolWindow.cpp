#include "ui/windows/ToolWindow.h"

#include "ui/support/ObservationLink.h"
#include "ui/window/WindowState.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QScreen>

void ToolWindow::installAccessibility() {
    QAccessible::installFactory([](const QString& className, QObject* object) -> QAccessibleInterface* {
        auto* const window = className == "ToolWindow" ? qobject_cast<ToolWindow*>(object) : nullptr;
        return window ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
    });
}

ToolWindow::ToolWindow(const QString& name, const QString& title, QSize usualSize, Visibility visibility)
    : controller(std::move(visibility)) {
    setObjectName(name);
    setWindowTitle(title);
    resize(usualSize);
    isPlaced = !name.isEmpty() && WindowState().restoreGeometry(name, *this);
    observation = observeFor(this, controller.announced, controller.key, [this] { follow(); });
}

ToolWindow::~ToolWindow() {
    if (isMade && !objectName().isEmpty())
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
    if (!std::exchange(isPlaced, true))
        placeBesideMainWindow();
    const bool isQuiet = controller.isQuiet && controller.isQuiet();
    setAttribute(Qt::WA_ShowWithoutActivating, isQuiet);
    show();
    raise();
    if (!isQuiet)
        activateWindow();
}

void ToolWindow::placeAt(const QRect& frame) {
    if (QGuiApplication::screenAt(frame.center()) == nullptr)
        return;
    resize(frame.size());
    move(frame.topLeft());
    isPlaced = true;
}

/// In the upper right corner of the main window: beside the photos and above the console, with which one
/// goes on working.
void ToolWindow::placeBesideMainWindow() {
    constexpr int kMargin = 24;
    for (const QWidget* const window : QApplication::topLevelWidgets())
        if (window->inherits("QMainWindow") && window->isVisible()) {
            const QRect room = window->screen()->availableGeometry();
            const QRect main = window->geometry() & room;
            resize(size().boundedTo(room.size() - QSize(2 * kMargin, 3 * kMargin)));
            const int lowest = room.bottom() - height() - 2 * kMargin; // with a frame
            move(main.right() - width() - kMargin, std::min(main.top() + 3 * kMargin, lowest));
        }
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
