#include "ui/support/MenuBuilder.h"

#include "ui/support/UIText.h"

#include <QCursor>
#include <QMenu>

void appendMenuItems(QMenu& menu, const KTMenu& items) {
    for (const KTMenuItem& item : items) {
        const QString title = uiTitle(item.title);
        if (item.isSeparator()) {
            menu.addSeparator();
        } else if (!item.submenu.empty()) {
            QMenu* const submenu = menu.addMenu(title);
            submenu->setEnabled(item.isEnabled);
            appendMenuItems(*submenu, item.submenu);
        } else {
            QAction* const action = menu.addAction(title);
            action->setEnabled(item.isEnabled && item.action);
            QObject::connect(action, &QAction::triggered, &menu, [run = item.action] { run(); });
        }
    }
}

void popUpMenu(const KTMenu& items, QWidget& parent) {
    if (items.empty())
        return;
    auto* const menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    appendMenuItems(*menu, items);
    menu->popup(QCursor::pos());
}
