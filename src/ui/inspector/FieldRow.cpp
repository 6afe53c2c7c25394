#include "ui/inspector/FieldRow.h"

#include "metadata/KTMetadataField.h"
#include "ui/inspector/FieldEditor.h"
#include "ui/inspector/FieldLabel.h"
#include "ui/inspector/RowUpdates.h"
#include "ui/photos/PhotoStatus.h"
#include "ui/support/UIText.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTimer>

namespace {

constexpr int kSyncingEdge = 16, kRoomAround = 6;

/// Where the text of a line stands below its upper edge, so that the label stands as high.
int textInset(const QWidget& widget) {
    static const int lineHeight = QLineEdit().sizeHint().height();
    return std::max(0, (lineHeight - widget.fontMetrics().height()) / 2);
}

QMenu* standardMenuOf(QWidget& field, QPoint place) {
    if (auto* const line = qobject_cast<QLineEdit*>(&field))
        return line->createStandardContextMenu();
    if (auto* const text = qobject_cast<QPlainTextEdit*>(&field))
        return text->createStandardContextMenu(place);
    return nullptr;
}

/// Tells what becomes of the field in a photo library.
QLabel* syncingSign(const FieldRow::Item& item, const QWidget& row) {
    const bool isTaken = item.representedObject()->iPhotoSupported();
    auto* const sign = new QLabel;
    const QIcon icon = QIcon::fromTheme("folder-sync");
    sign->setPixmap(icon.pixmap(QSize(kSyncingEdge, kSyncingEdge), row.devicePixelRatioF()));
    sign->setContentsMargins(0, textInset(row), 0, 0);
    sign->setAccessibleName(uiText("Photo library"));
    sign->setToolTip(isTaken ? uiText("Saving changes this field in the photo library, too")
                             : uiText("Saving writes this list into files only, not into the photo library"));
    sign->hide();
    return sign;
}

} // namespace

FieldRow::FieldRow(std::unique_ptr<Item> edited, const QString& group, RowUpdates& rowUpdates)
    : fieldItem(std::move(edited)), groupName(group), updates(rowUpdates), label(new FieldLabel),
      problem(new QLabel), editor(FieldEditor::make(*fieldItem)) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    label->setContentsMargins(label->contentsMargins() + QMargins(0, textInset(*this), 0, 0));
    grid->addWidget(label, 0, 0, Qt::AlignTop);
    grid->addWidget(editor, 0, 1);
    grid->addWidget(problem, 1, 1);
    if (fieldItem->hasSyncingView())
        grid->addWidget(syncing = syncingSign(*fieldItem, *this), 0, 2, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    label->setBuddy(editor->fields().first());
    problem->setWordWrap(true);
    problem->hide();
    for (QWidget* const field : editor->fields())
        field->installEventFilter(this);
    showLabel();
    observation = fieldItem->observe([this](const KTChange& change) {
        if (!change.isPrior)
            itemDidChange(change.key);
    });
}

/// What is being typed is committed by the item, which ends before the editor on it.
FieldRow::~FieldRow() {
    observation.stop();
    delete editor;
}

/// "City, Geotags": several fields have the same name.
void FieldRow::showLabel() {
    const QString name = QString::fromStdString(fieldItem->label());
    const QString second = QString::fromStdString(fieldItem->secondaryLabel());
    const QString help = QString::fromStdString(fieldItem->helpText());
    label->setText(name);
    label->setHelp(help);
    const auto inGroup = [this](const QString& text) { return text + ", " + groupName; };
    editor->setNames(inGroup(name), inGroup(second.isEmpty() ? name : second), help);
}

void FieldRow::itemDidChange(std::string_view key) {
    if (key == "label") {
        showLabel();
        return;
    }
    isDue = true;
    if (hasKeyboard())
        bringUpToDate();
    else if (isVisible())
        updates.add(*this);
}

bool FieldRow::hasKeyboard() const {
    const QWidget* const focus = QApplication::focusWidget();
    return fieldItem->isEditing() || (focus != nullptr && isAncestorOf(focus));
}

void FieldRow::bringUpToDate() {
    if (!std::exchange(isDue, false))
        return;
    editor->showValue();
    label->setUnsaved(fieldItem->hasUnsavedEdit());
    const QString why = QString::fromStdString(fieldItem->problem());
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, PhotoStatus::colour(PhotoStatus::Failed, palette()));
    problem->setPalette(warning);
    problem->setText(why.isEmpty() ? why : "⚠ " + why);
    problem->setVisible(!why.isEmpty());
    if (syncing != nullptr)
        syncing->setVisible(!fieldItem->isSyncingViewHidden());
}

/// What comes below the edge of the page while one types is scrolled to, once the page knows its new height.
void FieldRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    QTimer::singleShot(0, this, [this] {
        const QWidget* const focus = QApplication::focusWidget();
        for (QWidget* outer = parentWidget(); outer != nullptr; outer = outer->parentWidget())
            if (auto* const page = qobject_cast<QScrollArea*>(outer); page && focus && isAncestorOf(focus))
                return page->ensureWidgetVisible(this, 0, kRoomAround);
    });
}

void FieldRow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (isDue)
        updates.add(*this);
}

/// What is typed must never be added to the value of photos that were selected before.
bool FieldRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        bringUpToDate();
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto& request = static_cast<QContextMenuEvent&>(*event);
    QMenu* const standard = standardMenuOf(static_cast<QWidget&>(*watched), request.pos());
    if (standard == nullptr)
        return false;
    showMenu(standard, request.globalPos());
    return true;
}

void FieldRow::contextMenuEvent(QContextMenuEvent* event) {
    showMenu(new QMenu(this), event->globalPos());
}

void FieldRow::showMenu(QMenu* menu, QPoint place) {
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!menu->isEmpty())
        menu->addSeparator();
    QAction* const revert = menu->addAction(uiText("Revert to Saved"));
    revert->setEnabled(fieldItem->hasUnsavedEdit() || fieldItem->isEditing() ||
                       !fieldItem->problem().empty());
    connect(revert, &QAction::triggered, this, [this] { fieldItem->revertToSaved(); });
    QAction* const clear = menu->addAction(uiText("Clear Value"));
    clear->setEnabled(fieldItem->isEditable() &&
                      fieldItem->selectedValue().state != KTSelectedValue::State::Absent);
    connect(clear, &QAction::triggered, this, [this] { fieldItem->clearValue(); });
    menu->popup(place);
}
