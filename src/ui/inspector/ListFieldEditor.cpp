#include "ui/inspector/ListFieldEditor.h"

#include "ui/inspector/ListFieldView.h"

ListFieldEditor::ListFieldEditor(KTMetadataFieldMultipleValueArrayViewItem& edited)
    : FieldEditor(edited), others(new QLabel), list(new ListFieldView(edited)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(others);
    layout->addWidget(list);
    others->setForegroundRole(QPalette::PlaceholderText);
    others->hide();
}

QList<QWidget*> ListFieldEditor::fields() const {
    return {list};
}

void ListFieldEditor::showValue() {
    const QString text = shown(item.placeholder());
    others->setText(text);
    others->setVisible(!text.isEmpty());
    list->showValue();
}
