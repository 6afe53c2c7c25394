#include "ui/inspector/PairFieldEditor.h"

#include "ui/inspector/LineFieldEditor.h"
#include "ui/inspector/TagLineEdit.h"
#include "ui/support/UIText.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>

namespace {

constexpr int kFrames = 48; // of two lines, with the sign for the calendar

} // namespace

PairFieldEditor::PairFieldEditor(Item& edited)
    : FieldEditor(edited), lines(new QBoxLayout(QBoxLayout::LeftToRight, this)), first(new TagLineEdit),
      second(new TagLineEdit) {
    const bool isDate = item.kind() == KTMetadataFieldItemKind::DateTime;
    lines->setContentsMargins({});
    lines->setSpacing(4);
    lines->addWidget(first, isDate ? 3 : 1);
    lines->addWidget(second, isDate ? 2 : 1);
    connectLine(*first, item, Item::First);
    connectLine(*second, item, Item::Second);
    if (!isDate)
        return;
    calendar = first->addAction(QIcon::fromTheme("view-calendar"), QLineEdit::TrailingPosition);
    connect(calendar, &QAction::triggered, this, &PairFieldEditor::pickDate);
    first->installEventFilter(this);
}

QList<QWidget*> PairFieldEditor::fields() const {
    return {first, second};
}

void PairFieldEditor::setNames(const QString& name, const QString& secondName, const QString& help) {
    FieldEditor::setNames(name, secondName, help);
    if (calendar != nullptr)
        nameAction(*calendar, uiText("Pick %1").arg(name));
}

void PairFieldEditor::showValue() {
    showInLine(*first, item, Item::First);
    showInLine(*second, item, Item::Second);
}

void PairFieldEditor::resizeEvent(QResizeEvent* event) {
    FieldEditor::resizeEvent(event);
    const int needed = fontMetrics().horizontalAdvance("2014-05-03 17:41:09") + kFrames;
    lines->setDirection(width() < needed ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

/// The arrow key opens the calendar, as it opens what is offered for other fields.
bool PairFieldEditor::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down)
        return false;
    pickDate();
    return true;
}

void PairFieldEditor::pickDate() {
    auto* const picker = new QCalendarWidget(this);
    picker->setWindowFlags(Qt::Popup);
    picker->setAttribute(Qt::WA_DeleteOnClose);
    picker->setAccessibleName(calendar->toolTip());
    const QDate shownDate = QDate::fromString(first->text(), Qt::ISODate);
    if (shownDate.isValid())
        picker->setSelectedDate(shownDate);
    auto choose = [this, picker](QDate date) {
        item.setText(date.toString(Qt::ISODate).toStdString());
        item.endEditing();
        picker->close();
    };
    connect(picker, &QCalendarWidget::clicked, this, choose);
    connect(picker, &QCalendarWidget::activated, this, choose);
    const QSize size = picker->sizeHint();
    const QRect free = screen()->availableGeometry();
    const QPoint below = mapToGlobal(QPoint(width() - size.width(), first->height()));
    picker->move(std::max(free.left(), below.x()), std::min(free.bottom() - size.height(), below.y()));
    picker->show();
    picker->setFocus();
}
