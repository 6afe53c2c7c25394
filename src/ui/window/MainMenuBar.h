#pragma once
#include "platform/observing/KTObservable.h"
#include "platform/presentation/KTMenu.h"

#include <QMenuBar>

class Mnemonics;
class WaymarkMainMenu;

/// Shows the application's menu bar and follows it: what is only enabled,
/// checked or named otherwise keeps its action, so that open menus and
/// shortcuts live on.
class MainMenuBar : public QMenuBar {
    Q_OBJECT
public:
    explicit MainMenuBar(WaymarkMainMenu& source, QWidget* parent = nullptr);

private:
    void update();
    bool bringUpToDate(const QList<QAction*>& actions, const KTMenu& items);
    void fill(QMenu& menu, const KTMenu& items);
    void show(QAction& action, const KTMenuItem& item, Mnemonics& mnemonics);

    WaymarkMainMenu& mainMenu;
    KTObservable::Observation observation;
};
