#pragma once
#include "app/AppPreferencesWindowController.h"
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

protected:
    void makeContent() override;

private:
    QWidget* makePane(const AppPreferencesWindowController::Pane& pane);
    void addBackups(QFormLayout& form);
    void addAltitude(QFormLayout& form);
    void addSample(QFormLayout& form);
    void addMapStart(QFormLayout& form);

    AppPreferencesWindowController& controller;
    std::vector<KTObservable::Observation> observations;
};
