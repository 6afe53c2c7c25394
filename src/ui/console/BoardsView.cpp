#include "ui/console/BoardsView.h"

#include "ui/application/ApplicationLook.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>

BoardsView::BoardsView(QWidget* parent)
    : QScrollArea(parent), boards(new QBoxLayout(QBoxLayout::LeftToRight)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* const place = new QWidget;
    boards->setContentsMargins({});
    boards->setSpacing(8);
    place->setLayout(boards);
    setWidget(place);
    for (QWidget* each : {place, viewport()})
        each->setAutoFillBackground(false);
}

void BoardsView::addBoard(const QString& name, const QString& title, QWidget* content, int stretch) {
    auto* const board = new QFrame;
    board->setAccessibleName(name);
    board->setFrameShape(QFrame::StyledPanel);
    board->setAutoFillBackground(true);
    // Fields must stand out from the board, which in the dark they do by their ground alone.
    board->setBackgroundRole(isDarkPalette(QApplication::palette()) ? QPalette::AlternateBase
                                                                    : QPalette::Base);
    auto* const column = new QVBoxLayout(board);
    column->setContentsMargins(10, 6, 10, 6);
    column->setSpacing(4);
    if (!title.isEmpty()) {
        auto* const heading = new QLabel(title);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        column->addWidget(heading);
    }
    column->addWidget(content, 1);
    boards->addWidget(board, stretch);
}

void BoardsView::resizeEvent(QResizeEvent* event) {
    arrange();
    QScrollArea::resizeEvent(event);
}

/// What a board shows may need more or less room than before.
bool BoardsView::eventFilter(QObject* object, QEvent* event) {
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        arrange();
    return QScrollArea::eventFilter(object, event);
}

/// As if there always were a scroll bar, which would come and go with the arrangement.
void BoardsView::arrange() {
    int wanted = boards->spacing() * (boards->count() - 1) + verticalScrollBar()->sizeHint().width();
    for (int i = 0; i < boards->count(); ++i)
        wanted += boards->itemAt(i)->minimumSize().width();
    boards->setDirection(wanted <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}
