#include "platform/common/KTTextFolding.h"

#include "platform/common/KTText.h"

#include <QString>
#include <algorithm>

namespace {

bool isPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

QString decoded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

std::string KTCaseFolded(std::string_view text) {
    return isPlain(text) ? KTLowercase(text) : decoded(text).toCaseFolded().toStdString();
}

std::string KTCaseAndDiacriticsFolded(std::string_view text) {
    if (isPlain(text))
        return KTLowercase(text);
    const QString parts = decoded(text).normalized(QString::NormalizationForm_D).toCaseFolded();
    QString result;
    for (QChar part : parts)
        if (!part.isMark())
            result += part;
    return result.toStdString();
}
