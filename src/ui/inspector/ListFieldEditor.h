#pragma once
#include "ui/inspector/FieldEditor.h"

class KTMetadataFieldMultipleValueArrayViewItem;
class ListFieldView;
class QLabel;

/// The elements of a list as rows. Tells above them when photos hold others, too.
class ListFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit ListFieldEditor(KTMetadataFieldMultipleValueArrayViewItem& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;

private:
    QLabel* others;
    ListFieldView* list;
};
