#include "ui/inspector/PairFieldEditor.h"

#include "ui/inspector/LineFieldEditor.h"
#include "ui/inspector/TagLineEdit.h"
#include "ui/support/UIText.h"

#include <QCalendarWidget>
#include <QHBoxLayout>

PairFieldEditor::PairFieldEditor(Item& edited)
    : FieldEditor(edited), first(new TagLineEdit), second(new TagLineEdit) {
    const bool isDate = item.kind() == KTMetadataFieldItemKind::DateTime;
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(first, isDate ? 3 : 1);
    layout->addWidget(second, isDate ? 2 : 1);
    connectLine(*first, item, Item::First);
    connectLine(*second, item, Item::Second);
    if (!isDate)
        return;
    calendar = first->addAction(QIcon::fromTheme("view-calendar"), QLineEdit::TrailingPosition);
    connect(calendar, &QAction::triggered, this, &PairFieldEditor::pickDate);
}

QList<QWidget*> PairFieldEditor::fields() const {
    return {first, second};
}

void PairFieldEditor::setNames(const QString& name, const QString& secondName, const QString& help) {
    FieldEditor::setNames(name, secondName, help);
    if (calendar != nullptr)
        calendar->setText(uiText("Pick %1").arg(name));
}

void PairFieldEditor::showValue() {
    showInLine(*first, item, Item::First);
    showInLine(*second, item, Item::Second);
}

void PairFieldEditor::pickDate() {
    auto* const picker = new QCalendarWidget(this);
    picker->setWindowFlags(Qt::Popup);
    picker->setAttribute(Qt::WA_DeleteOnClose);
    picker->setAccessibleName(calendar->text());
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
    picker->move(first->mapToGlobal(QPoint(0, first->height())));
    picker->show();
    picker->setFocus();
}
