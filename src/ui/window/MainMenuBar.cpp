#include "ui/window/MainMenuBar.h"

#include "app/WaymarkMainMenu.h"
#include "ui/support/Mnemonics.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QMenu>

MainMenuBar::MainMenuBar(WaymarkMainMenu& source, QWidget* parent) : QMenuBar(parent), mainMenu(source) {
    observation = observeFor(this, mainMenu, "mainMenu", [this] { update(); });
    update();
}

void MainMenuBar::update() {
    const KTMenu items = mainMenu.mainMenu();
    if (bringUpToDate(actions(), items))
        return;
    clear();
    Mnemonics mnemonics;
    for (const KTMenuItem& item : items) {
        QMenu* const menu = addMenu(QString());
        show(*menu->menuAction(), item, mnemonics);
        fill(*menu, item.submenu);
    }
}

/// False when the actions do not fit the items, entry by entry; some may have
/// been changed by then.
bool MainMenuBar::bringUpToDate(const QList<QAction*>& actions, const KTMenu& items) {
    if (std::size_t(actions.size()) != items.size())
        return false;
    Mnemonics mnemonics;
    for (std::size_t i = 0; i < items.size(); ++i) {
        QAction& action = *actions[qsizetype(i)];
        const KTMenuItem& item = items[i];
        if (action.isSeparator() != item.isSeparator() ||
            (action.menu() != nullptr) != !item.submenu.empty() ||
            action.data().toString().toStdString() != item.identifier)
            return false;
        show(action, item, mnemonics);
        if (action.menu() && !bringUpToDate(action.menu()->actions(), item.submenu))
            return false;
    }
    return true;
}

void MainMenuBar::fill(QMenu& menu, const KTMenu& items) {
    Mnemonics mnemonics;
    for (const KTMenuItem& item : items) {
        if (item.isSeparator()) {
            menu.addSeparator();
        } else if (!item.submenu.empty()) {
            QMenu* const submenu = menu.addMenu(QString());
            show(*submenu->menuAction(), item, mnemonics);
            fill(*submenu, item.submenu);
        } else {
            QAction* const action = menu.addAction(QString());
            show(*action, item, mnemonics);
            // An item without a name of its own runs what it was made with, others
            // what they stand for now.
            connect(action, &QAction::triggered, this, [this, name = item.identifier, run = item.action] {
                if (!name.empty())
                    mainMenu.performCommand(name);
                else if (run)
                    run();
            });
        }
    }
}

void MainMenuBar::show(QAction& action, const KTMenuItem& item, Mnemonics& mnemonics) {
    if (item.isSeparator())
        return;
    action.setText(mnemonics.mark(QString::fromStdString(item.title)));
    action.setData(QString::fromStdString(item.identifier));
    action.setEnabled(item.isEnabled);
    action.setShortcut(QKeySequence(QString::fromStdString(item.shortcut), QKeySequence::PortableText));
    action.setCheckable(item.isChecked.has_value());
    if (item.isChecked)
        action.setChecked(*item.isChecked);
}
