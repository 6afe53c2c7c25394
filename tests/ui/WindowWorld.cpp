#include "tests/ui/WindowWorld.h"

#include "ui/support/DroppedPaths.h"

#include <QDropEvent>
#include <QMimeData>

void WindowWorld::drop(const std::vector<std::filesystem::path>& files) {
    QMimeData data;
    data.setData("text/uri-list", addressesOf(files).join("\r\n").toLatin1());
    const QPoint place(100, 300);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent fall(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window(), &fall);
    ASSERT_TRUE(fall.isAccepted());
}
