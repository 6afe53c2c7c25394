#include "platform/common/KTLocalizedString.h"

#include <QCoreApplication>

std::string KTLocalizedString(std::string_view key, std::string_view english) {
    if (QCoreApplication::instance() == nullptr)
        return std::string(english);
    std::string source(key);
    std::string translated = QCoreApplication::translate("Waymark", source.c_str()).toStdString();
    return translated == source ? std::string(english) : translated;
}

std::string KTLocalizedString(std::string_view english) {
    return KTLocalizedString(english, english);
}
