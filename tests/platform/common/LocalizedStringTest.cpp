#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "tests/support/TestSupport.h"

#include <gtest/gtest.h>

namespace {

struct German {
    German() { EXPECT_TRUE(KTUseTranslation(WAYMARK_SAMPLE_TRANSLATION)); }
    ~German() { KTUseTranslation({}); }
};

constexpr std::string_view kOne = "1 photo is more than %@ away",
                           kSeveral = "%d photos are more than %@ away";

} // namespace

TEST(LocalizedString, TakesTheKeysTranslationBeforeThatOfTheEnglishText) {
    EXPECT_EQ(KTLocalizedString("Sample.title", "Title"), "Title");
    const German german;
    EXPECT_EQ(KTLocalizedString("Sample.title", "Title"), "Überschrift");
    EXPECT_EQ(KTLocalizedString("Other.title", "Title"), "Titel");
    EXPECT_EQ(KTLocalizedString("Title"), "Titel");
    EXPECT_EQ(KTLocalizedString("Untranslated"), "Untranslated");
    EXPECT_EQ(KTLocalizedString("Unknown"), "Unknown");
    EXPECT_EQ(KTLocalizedString(""), "");
}

TEST(LocalizedString, ChoosesThePluralFormByTheCount) {
    const auto english = [](std::size_t count) { return KTLocalizedCount(kOne, kSeveral, count); };
    EXPECT_EQ(english(1), "1 photo is more than %@ away");
    EXPECT_EQ(english(0), "0 photos are more than %@ away");
    EXPECT_EQ(KTLocalizedCount("%d photos", 1), "1 photos") << "a text without a singular stays as it is";
    const German german;
    EXPECT_EQ(KTStringWithFormat(KTLocalizedCount(kOne, kSeveral, 1), {"5 m"}),
              "Ein Foto ist mehr als 5 m entfernt");
    EXPECT_EQ(KTStringWithFormat(KTLocalizedCount(kOne, kSeveral, 20'000), {"5 m"}),
              "20000 Fotos sind mehr als 5 m entfernt");
}

TEST(LocalizedString, StaysAsItIsWhereATranslationCannotBeRead) {
    const German german;
    const TemporaryFolder folder;
    EXPECT_FALSE(KTUseTranslation(folder / "missing.qm"));
    EXPECT_FALSE(KTUseTranslation(folder.file("broken.qm", "this is no translation")));
    EXPECT_EQ(KTLocalizedString("Title"), "Titel");
}
