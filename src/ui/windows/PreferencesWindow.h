#pragma once
#include "app/AppPreferencesWindowController.h"
#include "ui/window/WindowPresenter.h"
#include "ui/windows/ToolWindow.h"

class QFormLayout;
class QLabel;
class QListWidget;
class QStackedWidget;

/// The preferences: a list of panes and the controls of the chosen one. What is
/// changed holds at once.
class PreferencesWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit PreferencesWindow(AppPreferencesWindowController& preferencesController);
    ~PreferencesWindow() override;

protected:
    void makeContent() override;

private:
    QWidget* makePane(const AppPreferencesWindowController::Pane& pane);
    void addBackups(QFormLayout& form);
    void addAltitude(QFormLayout& form);
    void addSample(QFormLayout& form);
    void addMapStart(QFormLayout& form);

    AppPreferencesWindowController& controller;
    WindowPresenter presenter;
    std::vector<KTObservable::Observation> observations;
};
