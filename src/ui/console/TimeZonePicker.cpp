#include "ui/console/TimeZonePicker.h"

#include "ui/console/TimeZoneList.h"
#include "ui/support/UIText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

TimeZonePicker::TimeZonePicker(std::function<void(const KTTimeZone&)> chosen, QWidget* window)
    : QDialog(window), whenChosen(std::move(chosen)), field(new QLineEdit), list(new QTreeView),
      zones(new TimeZoneList(this)), narrowed(new QSortFilterProxyModel(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(uiText("Time Zone of the Camera Clock"));
    resize(460, 480);
    narrowed->setSourceModel(zones);
    narrowed->setFilterCaseSensitivity(Qt::CaseInsensitive);
    narrowed->setFilterKeyColumn(-1);
    field->setAccessibleName(uiText("Search time zones"));
    field->setPlaceholderText(uiText("Region, city or offset"));
    field->setClearButtonEnabled(true);
    field->installEventFilter(this);
    list->setAccessibleName(uiText("Time zones"));
    list->setModel(narrowed);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(TimeZoneList::NameColumn, QHeaderView::Stretch);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* const use = buttons->addButton(uiText("Use Time Zone"), QDialogButtonBox::AcceptRole);

    auto* const label = new QLabel(uiText("The photos' times are read as times of this zone:"));
    label->setBuddy(field);
    label->setWordWrap(true);
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(field),
                            static_cast<QWidget*>(list), static_cast<QWidget*>(buttons)})
        layout->addWidget(widget);
    use->setDefault(true); // once the dialog knows it
    connect(field, &QLineEdit::textChanged, this, &TimeZonePicker::narrow);
    connect(list, &QTreeView::doubleClicked, this, &TimeZonePicker::choose);
    connect(buttons, &QDialogButtonBox::accepted, this, &TimeZonePicker::choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    list->setCurrentIndex(narrowed->index(0, 0));
}

/// Cities are written with blanks or underscores, offsets with or without minutes.
void TimeZonePicker::narrow(const QString& text) {
    narrowed->setFilterFixedString(text.trimmed().replace('_', ' '));
    list->setCurrentIndex(narrowed->index(0, 0));
    list->scrollToTop();
}

/// The arrows move in the list while one types.
bool TimeZonePicker::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Up && key->key() != Qt::Key_Down)
        return false;
    const int row = list->currentIndex().row() + (key->key() == Qt::Key_Up ? -1 : 1);
    if (narrowed->index(row, 0).isValid())
        list->setCurrentIndex(narrowed->index(row, 0));
    return true;
}

void TimeZonePicker::choose() {
    const QModelIndex row = narrowed->mapToSource(list->currentIndex());
    if (!row.isValid())
        return;
    whenChosen(zones->zoneAt(row.row()));
    accept();
}
