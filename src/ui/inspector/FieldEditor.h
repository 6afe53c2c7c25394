#pragma once
#include "app/editor/KTMetadataFieldArrayViewItem.h"

#include <QWidget>

/// The control of one field, without its label: shows what its item holds and passes on what the user does.
class FieldEditor : public QWidget {
    Q_OBJECT
public:
    using Item = KTMetadataFieldArrayViewItem;

    /// The control for the kind of @p item, which must outlive it.
    static FieldEditor* make(Item& item);

    /// Shows what the item holds now.
    virtual void showValue() = 0;
    /// What the keyboard reaches, in its order; of the latitude's and the date's editor two.
    virtual QList<QWidget*> fields() const = 0;
    /// Names the fields for those who do not see their label, and explains them in bubbles.
    virtual void setNames(const QString& name, const QString& secondName, const QString& help);

protected:
    explicit FieldEditor(Item& edited) : item(edited) {}

    static QString shown(const std::string& text) { return QString::fromStdString(text); }

    Item& item;
};
