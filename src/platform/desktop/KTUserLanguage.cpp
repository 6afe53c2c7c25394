#include "platform/desktop/KTUserLanguage.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/desktop/KTResources.h"

#include <QLocale>
#include <algorithm>

namespace {

constexpr const char *kLanguages[] = {"de", "en", "es", "fr"}, *kEnglish = "en";

} // namespace

std::string KTLanguageAmong(const std::vector<std::string>& wanted) {
    for (const std::string& name : wanted) {
        const std::string code = name.substr(0, name.find_first_of("-_.@"));
        if (const auto* language = std::ranges::find(kLanguages, code); language != std::end(kLanguages))
            return *language;
    }
    return kEnglish;
}

std::string KTUseLanguageOfUser() {
    std::vector<std::string> wanted;
    for (const QString& name : QLocale::system().uiLanguages())
        wanted.push_back(name.toStdString());
    const std::string language = KTLanguageAmong(wanted);
    return language != kEnglish &&
                   KTUseTranslation(KTResourcePath("translations/waymark_" + language + ".qm"))
               ? language
               : kEnglish;
}
