#include "metadata/KTMetadataHelpTexts.h"

#include "metadata/KTMetadataHelpTable.h"
#include "platform/common/KTLocalizedString.h"

#include <algorithm>

namespace {

const KTMetadataHelpRow* rowForKey(std::string_view key) {
    for (auto rows :
         {KTMetadataHelpRowsOfCapture(), KTMetadataHelpRowsOfPlaces(), KTMetadataHelpRowsOfDescription()})
        if (auto row = std::ranges::find(rows, key, &KTMetadataHelpRow::key); row != rows.end())
            return &*row;
    return nullptr;
}

} // namespace

std::string KTMetadataHelpText(std::string_view key, std::string_view englishName) {
    const KTMetadataHelpRow* row = rowForKey(key);
    if (!row)
        return "";
    std::string text = "\u2598";
    text.append(englishName).append("\n\n").append(KTLocalizedString(row->description));
    for (std::string_view example : row->examples)
        if (!example.empty())
            text.append("\n\u2192 ").append(example);
    if (!row->source.empty())
        text.append("\n\n").append(row->source);
    if (!row->note.empty())
        text.append("\n\n").append(KTLocalizedString(row->note));
    return text;
}
