#include "ui/inspector/FieldEditor.h"

#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"
#include "ui/inspector/FieldLabel.h"
#include "ui/inspector/LineFieldEditor.h"
#include "ui/inspector/ListFieldEditor.h"
#include "ui/inspector/MarkedFieldEditor.h"
#include "ui/inspector/PairFieldEditor.h"
#include "ui/inspector/RatingFieldEditor.h"
#include "ui/inspector/StaticFieldEditor.h"
#include "ui/inspector/TextFieldEditor.h"

FieldEditor* FieldEditor::make(Item& item) {
    using Kind = KTMetadataFieldItemKind;
    switch (item.kind()) {
    case Kind::LonLat:
    case Kind::DateTime:
        return new PairFieldEditor(item);
    case Kind::Rating:
        return new RatingFieldEditor(item);
    case Kind::Marked:
        return new MarkedFieldEditor(item);
    case Kind::ResizeableTextView:
        return new TextFieldEditor(item);
    case Kind::Static:
        return new StaticFieldEditor(item);
    case Kind::MultipleValue:
        return new ListFieldEditor(dynamic_cast<KTMetadataFieldMultipleValueArrayViewItem&>(item));
    default:
        return new LineFieldEditor(item);
    }
}

void FieldEditor::setNames(const QString& name, const QString& secondName, const QString& help) {
    bool isFirst = true;
    for (QWidget* const field : fields()) {
        const QString& ofField = std::exchange(isFirst, false) ? name : secondName;
        field->setAccessibleName(ofField);
        field->setToolTip(FieldLabel::bubble(ofField, help));
    }
}
