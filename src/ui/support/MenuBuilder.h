#pragma once
#include "platform/presentation/KTMenu.h"

class QMenu;

/// Appends the entries of @p items to @p menu. Their actions run when they are chosen.
void appendMenuItems(QMenu& menu, const KTMenu& items);

/// Shows @p items at the pointer as a context menu, which deletes itself; nothing for an empty one.
void popUpMenu(const KTMenu& items, class QWidget& parent);
