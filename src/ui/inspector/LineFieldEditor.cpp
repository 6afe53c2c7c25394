#include "ui/inspector/LineFieldEditor.h"

#include "app/editor/KTMetadataFieldComboBoxArrayViewItem.h"
#include "ui/inspector/TagLineEdit.h"
#include "ui/support/UIText.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStringListModel>

using Item = FieldEditor::Item;

namespace {

constexpr int kMostShownOffers = 12;

} // namespace

void connectLine(TagLineEdit& line, Item& item, Item::Half half) {
    QObject::connect(&line, &QLineEdit::textEdited, &line,
                     [&item, half](const QString& text) { item.setText(text.toStdString(), half); });
    QObject::connect(&line, &QLineEdit::editingFinished, &line, [&item] { item.endEditing(); });
    QObject::connect(&line, &TagLineEdit::cancelled, &line, [&item] { item.cancelEditing(); });
}

void showInLine(TagLineEdit& line, const Item& item, Item::Half half) {
    const QString text = QString::fromStdString(item.text(half));
    if (!item.isEditing() || line.text() != text)
        line.showText(text);
    line.setPlaceholderText(QString::fromStdString(item.placeholder(half)));
    line.setEnabled(item.isEditable());
}

void nameAction(QAction& action, const QString& name) {
    action.setText(uiTitle(name.toStdString()));
    action.setToolTip(name);
}

LineFieldEditor::LineFieldEditor(Item& edited)
    : FieldEditor(edited), offering(dynamic_cast<KTMetadataFieldComboBoxArrayViewItem*>(&edited)),
      line(new TagLineEdit) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(line, 1);
    connectLine(*line, item, Item::First);
    if (offering == nullptr)
        return;
    line->setCompletion(
        [this](const std::string& typed) { return offering->firstValueMatchingPrefix(typed); });
    line->installEventFilter(this);
    offer = line->addAction(QIcon::fromTheme("go-down"), QLineEdit::TrailingPosition);
    connect(offer, &QAction::triggered, this, &LineFieldEditor::offerValues);
    if (item.kind() != KTMetadataFieldItemKind::CountryCode)
        return;
    hint = new QLabel;
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(hint, 2);
}

QList<QWidget*> LineFieldEditor::fields() const {
    return {line};
}

void LineFieldEditor::setNames(const QString& name, const QString& secondName, const QString& help) {
    FieldEditor::setNames(name, secondName, help);
    if (offer != nullptr)
        nameAction(*offer, uiText("Values of %1").arg(name));
}

void LineFieldEditor::showValue() {
    showInLine(*line, item, Item::First);
    if (offer != nullptr)
        offer->setVisible(item.isEditable() && !offering->comboBoxArray().empty());
    if (hint != nullptr)
        hint->setText(shown(dynamic_cast<KTMetadataFieldCountryCodeArrayViewItem&>(item).countryName()));
}

bool LineFieldEditor::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down)
        return false;
    offerValues();
    return true;
}

void LineFieldEditor::offerValues() {
    QStringList values;
    for (const std::string& value : offering->comboBoxArray())
        values << shown(value);
    if (values.isEmpty() || !line->isEnabled())
        return;
    line->setFocus();
    if (offers == nullptr) {
        offers = new QCompleter(this);
        offers->setModel(new QStringListModel(offers));
        offers->setWidget(line);
        offers->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
        offers->setMaxVisibleItems(kMostShownOffers);
        connect(offers, qOverload<const QString&>(&QCompleter::activated), this, &LineFieldEditor::choose);
    }
    static_cast<QStringListModel*>(offers->model())->setStringList(values);
    offers->popup()->setAccessibleName(offer->toolTip());
    offers->complete();
}

void LineFieldEditor::choose(const QString& text) {
    item.setText(text.toStdString());
    item.endEditing();
}
