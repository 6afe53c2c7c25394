#pragma once
#include "app/editor/KTMetadataFieldArrayViewItem.h"

/// The editor of a date: "2014-05-03" in the first half and "17:41:09" in the second; a whole date with time
/// may be typed, or pasted, into the first. Where photos differ and one half alone is typed, each photo keeps
/// its own other half.
class KTMetadataFieldDateTimeArrayViewItem : public KTMetadataFieldArrayViewItem {
public:
    using KTMetadataFieldArrayViewItem::KTMetadataFieldArrayViewItem;

protected:
    Texts editingTexts() const override;
    KTFieldText::Parsed parse(const Typed& typed) const override;

private:
    static Texts textsOf(const KTMetadataField& field, const KTValue& date);
};
