#pragma once
#include "app/editor/KTMetadataFieldArrayViewItem.h"

/// The editor of a position: the latitude in the first half, the longitude in the second. Each takes every
/// common notation, and a whole position, pasted into either half, fills both. A half that was not typed
/// stays as it is; a position becomes one undo step.
class KTMetadataFieldLonLatArrayViewItem : public KTMetadataFieldArrayViewItem {
public:
    using KTMetadataFieldArrayViewItem::KTMetadataFieldArrayViewItem;

    std::string placeholder(Half half = First) const override;

protected:
    std::vector<std::string> keys() const override;
    Texts editingTexts() const override;
    KTFieldText::Parsed parse(const Typed& typed) const override;
};
