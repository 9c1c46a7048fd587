#include "localization/Localizer.hpp"

#include <gtest/gtest.h>

namespace {

using zm::host::Localizer;

TEST(LocalizerTest, TheDefaultLocaleIsEnUs) {
    EXPECT_EQ(Localizer().Locale(), "en-US");
}

TEST(LocalizerTest, AKeyGivesTheDefaultTextAfterTheFirstEqualsSign) {
    Localizer localizer;
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResOther/6=NONE"), "NONE");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/Formula=a=b"), "a=b");
}

TEST(LocalizerTest, TheDefaultTextKeepsItsLeadingBlank) {
    EXPECT_EQ(Localizer().Localize("$$$/Tolvane/Str/ResSave/2/Win= Info.txt"), " Info.txt");
}

TEST(LocalizerTest, AKeyWithoutDefaultTextOrTranslationIsEmpty) {
    EXPECT_EQ(Localizer().Localize("$$$/Tolvane/Str/Missing"), "");
}

TEST(LocalizerTest, ATranslationWinsOverTheDefaultText) {
    Localizer localizer;
    localizer.AddTranslation("$$$/Tolvane/Str/ResOther/6", "KEINE");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResOther/6=NONE"), "KEINE");
}

TEST(LocalizerTest, AKeyWithAPlatformTagFindsTheTranslationOfTheKeyWithout) {
    Localizer localizer;
    localizer.AddTranslation("$$$/Tolvane/Str/ResSave/2", " Angaben.txt");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResSave/2/Win= Info.txt"), " Angaben.txt");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResSave/2/Mac= Info.txt"), " Angaben.txt");
}

TEST(LocalizerTest, ATranslationAddedWithAPlatformTagAnswersEveryForm) {
    Localizer localizer;
    localizer.AddTranslation("$$$/Tolvane/Str/ResSave/2/Mac", " Angaben.txt");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResSave/2= Info.txt"), " Angaben.txt");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResSave/2/Win= Info.txt"), " Angaben.txt");
}

TEST(LocalizerTest, ATranslationOfOneKeyLeavesOthersAtTheirDefault) {
    Localizer localizer;
    localizer.AddTranslation("$$$/Tolvane/Str/ResOther/6", "KEINE");
    EXPECT_EQ(localizer.Localize("$$$/Tolvane/Str/ResOther/7=NONE"), "NONE");
}

TEST(LocalizerTest, TextThatIsNotAKeyComesBackAsItIs) {
    Localizer localizer;
    EXPECT_EQ(localizer.Localize("Fonts: a=b"), "Fonts: a=b");
    EXPECT_EQ(localizer.Localize(""), "");
}

}  // namespace
