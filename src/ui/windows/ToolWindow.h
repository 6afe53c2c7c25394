#pragma once
#include "app/WaymarkUserInterface.h"
#include "platform/observing/KTObservable.h"

#include <QWidget>
#include <functional>

/// A window of a controller that says by "isWindowVisible" whether it is on the
/// screen. Its content is made when it is first shown; its place is kept under
/// its object name, if it has one.
class ToolWindow : public QWidget, public KTWindow {
    Q_OBJECT
public:
    struct Visibility {
        KTObservable& announced;
        std::string key; ///< under which it announces
        std::function<bool()> isVisible;
        std::function<void(bool)> setVisible;
        std::function<bool()> isQuiet = {}; ///< whether it is shown without taking the keyboard
    };

    ToolWindow(const QString& name, const QString& title, QSize usualSize, Visibility visibility);
    ~ToolWindow() override;

    /// Lets assistive technology know these as windows. Once a process.
    static void installAccessibility();

protected:
    /// Makes what the window shows; called once.
    virtual void makeContent() = 0;
    /// Where it comes up, if some of that is on a screen.
    void placeAt(const QRect& frame);
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void follow();
    void placeBesideMainWindow();

    const Visibility controller;
    bool isMade = false, isPlaced = false;
    KTObservable::Observation observation;
};
