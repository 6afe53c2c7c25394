#pragma once
#include "collection/KTPhotoController.h"

#include <QAbstractItemView>

/// Shows the context menu for a right click on @p index of a view of photos.
void showPhotoMenu(QAbstractItemView& view, KTPhotoController& controller, const QModelIndex& index);

/// Drags the selected photos of a view: their files for others, which may only copy them.
void startPhotoDrag(QAbstractItemView& view);
