#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>
#include <functional>

class KTGeotaggingConsoleViewController;
class KTTimeZoneHUDController;
class QHBoxLayout;
class QLabel;
class QToolButton;

/// The geotagging console: modes and what the map shows of them; below, the
/// panel of the status, the criteria and the camera clock.
class ConsolePane : public QWidget {
    Q_OBJECT
public:
    /// All must outlive the pane. @p addTracks is offered while there are none.
    ConsolePane(KTGeotaggingConsoleViewController& consoleController, KTTimeZoneHUDController& clock,
                std::function<void()> addTracks, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* makeHead();
    void addModes(QHBoxLayout& line);
    QToolButton* addTool(QHBoxLayout& line, const QString& text, const char* icon, const QString& tip,
                         const std::function<void()>& command);
    void showPanel();
    void removePanel();
    QWidget* makePanel();
    QWidget* makeText();
    void showTracks();
    void shortenTracks();

    KTGeotaggingConsoleViewController& controller;
    const std::function<void()> addTracksCommand;
    QHBoxLayout* panelPlace = nullptr;
    QLabel* tracksLine = nullptr;
    QWidget* panel = nullptr;
    std::vector<KTObservable::Observation> observations;
};
