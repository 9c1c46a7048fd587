#include <fonts/MissingFontFacts.hpp>

#include <gtest/gtest.h>

namespace zm::host::fonts {
namespace {

TEST(MissingFontFactsTest, ABoldFamilyLosesItsBlanksAndGainsTheStyle) {
    FontFacts facts = MissingFontFacts({"Qwertyuiop Sans", 700, FontSlant::Normal});
    EXPECT_EQ(facts.postScriptName, "QwertyuiopSans-Bold");
    EXPECT_EQ(facts.fullName, "Qwertyuiop Sans Bold");
    EXPECT_EQ(facts.windowsName, "Qwertyuiop Sans");  // as the text writes it
}

TEST(MissingFontFactsTest, ARegularUprightFontHasNoStyleInItsName) {
    FontFacts facts = MissingFontFacts({"Futura", 400, FontSlant::Normal});
    EXPECT_EQ(facts.postScriptName, "Futura");
    EXPECT_EQ(facts.fullName, "Futura");
}

TEST(MissingFontFactsTest, WeightComesBeforeSlant) {
    EXPECT_EQ(MissingFontFacts({"Futura", 700, FontSlant::Italic}).postScriptName,
              "Futura-BoldItalic");
    EXPECT_EQ(MissingFontFacts({"Futura", 400, FontSlant::Oblique}).postScriptName,
              "Futura-Oblique");
    EXPECT_EQ(MissingFontFacts({"Futura", 300, FontSlant::Italic}).fullName,
              "Futura Light Italic");
}

TEST(MissingFontFactsTest, AWeightBetweenHundredsTakesTheNearestName) {
    EXPECT_EQ(MissingFontFacts({"Futura", 650, FontSlant::Normal}).postScriptName,
              "Futura-Bold");  // 650 rounds up to 700
    EXPECT_EQ(MissingFontFacts({"Futura", 449, FontSlant::Normal}).postScriptName,
              "Futura");  // 449 rounds down to 400, regular
    EXPECT_EQ(MissingFontFacts({"Futura", 1, FontSlant::Normal}).postScriptName,
              "Futura-Thin");  // below 100 is the thinnest there is
    EXPECT_EQ(MissingFontFacts({"Futura", 1000, FontSlant::Normal}).postScriptName,
              "Futura-Black");
}

TEST(MissingFontFactsTest, AFontThatIsNotInstalledHasNoTechnologyScriptOrFlags) {
    FontFacts facts = MissingFontFacts({"Qwertyuiop Sans", 700, FontSlant::Normal});
    EXPECT_FALSE(facts.installed);
    EXPECT_EQ(facts.script, -1);
    EXPECT_EQ(facts.technology, FontTechnology::Other);
    EXPECT_FALSE(facts.cid || facts.openType || facts.bitmap || facts.type1);
    EXPECT_FALSE(facts.alternateName);  // its full name is the host's making, not the font's
}

}  // namespace
}  // namespace zm::host::fonts
