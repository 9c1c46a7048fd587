#include "host/fonts/FontFiles.hpp"

#include <fonts/FontProgram.hpp>
#include <fonts/FontProgramFacts.hpp>
#include <runtime/HostError.hpp>

#include <gtest/gtest.h>

namespace zm::host::fonts {
namespace {

FontFacts FactsOf(const char* file) { return ReadFontFacts(FontProgram(file, 0)); }

TEST(FontProgramFactsTest, LiberationSansIsATrueTypeRomanFont) {
    FontFacts facts = FactsOf(zm::test::kLiberationSansRegular);
    EXPECT_TRUE(facts.installed);
    EXPECT_EQ(facts.postScriptName, "LiberationSans");  // the regular face names no style
    EXPECT_EQ(facts.windowsName, "Liberation Sans");
    EXPECT_EQ(facts.fullName, "Liberation Sans");
    EXPECT_TRUE(facts.alternateName);  // "Liberation Sans" is not "LiberationSans"
    EXPECT_EQ(facts.technology, FontTechnology::TrueType);  // glyf outlines
    EXPECT_FALSE(facts.openType);  // an sfnt, but not one with CFF outlines
    EXPECT_FALSE(facts.type1);
    EXPECT_FALSE(facts.cid);
    EXPECT_FALSE(facts.bitmap);
    EXPECT_EQ(facts.script, 0);  // it declares Latin 1 beside Latin 2, Cyrillic and Greek
}

TEST(FontProgramFactsTest, TheBoldFaceKeepsItsFamilyAsItsWindowsName) {
    FontFacts facts = FactsOf(zm::test::kLiberationSansBold);
    EXPECT_EQ(facts.postScriptName, "LiberationSans-Bold");
    // Bold is one of the four styles a Windows family groups under one name.
    EXPECT_EQ(facts.windowsName, "Liberation Sans");
    EXPECT_EQ(facts.fullName, "Liberation Sans Bold");
}

TEST(FontProgramFactsTest, AnOtfFileIsAnOpenTypePostScriptOutlineFont) {
    FontFacts facts = FactsOf(zm::test::kNimbusSansBoldOpenType);
    EXPECT_EQ(facts.postScriptName, "NimbusSans-Bold");  // its .afm's FontName
    EXPECT_EQ(facts.windowsName, "Nimbus Sans");         // its .afm's FamilyName
    EXPECT_EQ(facts.technology, FontTechnology::PostScript);  // CFF outlines
    EXPECT_TRUE(facts.openType);
    EXPECT_FALSE(facts.type1);  // a CFF font in an sfnt, not a Type 1 program
    EXPECT_FALSE(facts.cid);    // name-keyed, as the base 35 fonts are
    EXPECT_EQ(facts.script, 0);  // a Latin font
}

TEST(FontProgramFactsTest, AT1FileIsAPlainType1FontWithoutCodePages) {
    FontFacts facts = FactsOf(zm::test::kNimbusSansBoldType1);
    EXPECT_EQ(facts.postScriptName, "NimbusSans-Bold");
    EXPECT_EQ(facts.fullName, "Nimbus Sans Bold");  // its FullName, as the .afm repeats it
    EXPECT_EQ(facts.windowsName, "Nimbus Sans");     // no name table: its FamilyName
    EXPECT_EQ(facts.technology, FontTechnology::PostScript);
    EXPECT_TRUE(facts.type1);
    EXPECT_FALSE(facts.openType);  // not an sfnt
    EXPECT_FALSE(facts.cid);
    EXPECT_EQ(facts.script, -1);  // a Type 1 program has no OS/2 table to declare code pages
}

TEST(FontProgramFactsTest, FontsWithoutVariationsHaveNoDesignAxes) {
    EXPECT_EQ(FontProgram(zm::test::kLiberationSansRegular, 0).DesignAxisCount(), 0);
    EXPECT_EQ(FontProgram(zm::test::kNimbusSansBoldType1, 0).DesignAxisCount(), 0);
}

TEST(FontProgramFactsTest, AFileThatIsNoFontCannotBeOpened) {
    try {
        FontProgram program("/etc/hostname", 0);
        FAIL() << "a text file opened as a font";
    } catch (const HostError& error) {
        EXPECT_EQ(error.Code(), ZM_ERR_NOT_FOUND);
    }
}

}  // namespace
}  // namespace zm::host::fonts
