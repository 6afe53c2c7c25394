#pragma once
#include "ui/inspector/FieldEditor.h"

class KTMetadataFieldComboBoxArrayViewItem;
class QCompleter;
class QLabel;
class TagLineEdit;

/// One line, which offers what was typed before; a country code tells the country beside it.
class LineFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit LineFieldEditor(Item& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;
    void setNames(const QString& name, const QString& secondName, const QString& help) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void offerValues();
    void choose(const QString& text);

    KTMetadataFieldComboBoxArrayViewItem* const offering; // null for a line without offers
    TagLineEdit* line;
    QLabel* hint = nullptr;
    QAction* offer = nullptr;
    QCompleter* offers = nullptr; // made when they are first shown
};

/// Names the button at the end of a line; names of groups have ampersands.
void nameAction(QAction& action, const QString& name);
/// Lets @p item follow what is typed into @p line as that half of its text.
void connectLine(TagLineEdit& line, FieldEditor::Item& item, FieldEditor::Item::Half half);
/// Shows the half of the item's text in @p line.
void showInLine(TagLineEdit& line, const FieldEditor::Item& item, FieldEditor::Item::Half half);
