#include "platform/common/KTCountryNames.h"

#include <QLocale>
#include <gtest/gtest.h>

TEST(CountryNames, AreInTheUsersLanguage) {
    struct Case {
        const char* locale;
        const char* code;
        const char* name;
    };
    const QLocale before;
    for (const auto& [locale, code, name] : {Case{"C", "CH", "Switzerland"},
                                             {"en_US", "HK", "Hong Kong"},
                                             {"en_US", "XK", "Kosovo"},
                                             {"de_DE", "CH", "Schweiz"},
                                             {"de_DE", "FR", "Frankreich"},
                                             {"de_AT", "MO", "Macau"},
                                             {"fr_CA", "DE", "Allemagne"},
                                             {"sr_RS", "CH", "Швајцарска"},
                                             {"zh_TW", "CH", "瑞士"},
                                             {"en_US", "ZZ", ""},
                                             {"en_US", "QQ", ""},
                                             {"en_US", "ch", ""},
                                             {"en_US", "CHE", ""},
                                             {"en_US", "", ""}}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        EXPECT_EQ(KTCountryName(code), name) << locale << " " << code;
    }
    QLocale::setDefault(before);
}
