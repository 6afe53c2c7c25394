#pragma once
#include "app/WaymarkUserInterface.h"
#include "platform/observing/KTObservable.h"

#include <QWidget>
#include <functional>

/// A window of a controller that says by "isWindowVisible" whether it is on the
/// screen. Its content is made when it is first shown; its place is kept under
/// its object name.
class ToolWindow : public QWidget, public KTWindow {
    Q_OBJECT
public:
    struct Visibility {
        KTObservable& announced;
        std::string key; ///< under which it announces
        std::function<bool()> isVisible;
        std::function<void(bool)> setVisible;
    };

    ToolWindow(const QString& name, const QString& title, QSize usualSize, Visibility visibility);
    ~ToolWindow() override;

protected:
    /// Makes what the window shows; called once.
    virtual void makeContent() = 0;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void follow();

    const Visibility controller;
    bool isMade = false;
    KTObservable::Observation observation;
};
