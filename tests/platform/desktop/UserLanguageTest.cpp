#include "platform/desktop/KTUserLanguage.h"

#include <gtest/gtest.h>

TEST(UserLanguage, IsTheFirstWantedOneThatTheProgramSpeaks) {
    EXPECT_EQ(KTLanguageAmong({"de-AT", "de", "en"}), "de");
    EXPECT_EQ(KTLanguageAmong({"fr_CA.UTF-8"}), "fr");
    EXPECT_EQ(KTLanguageAmong({"it", "es-MX", "de"}), "es");
    EXPECT_EQ(KTLanguageAmong({"en-GB", "de"}), "en") << "English is no stopgap for who wants it first";
    EXPECT_EQ(KTLanguageAmong({"C"}), "en");
    EXPECT_EQ(KTLanguageAmong({"deu"}), "en") << "a longer code is another language";
    EXPECT_EQ(KTLanguageAmong({}), "en");
}
