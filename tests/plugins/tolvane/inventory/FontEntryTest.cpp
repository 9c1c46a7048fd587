#include "plugins/tolvane/inventory/FontInventoryFixture.hpp"

#include <inventory/FontInventory.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;
using zm::test::DetailBlock;

// Entries of the font suite.
constexpr int32_t kGetFontInfo = 1;
constexpr int32_t kGetPostScriptName = 2;
constexpr int32_t kGetFullName = 3;

class FontEntryTest : public zm::test::FontInventoryFixture {
protected:
    ZMErr Add(const char* family, int32_t weight = 400, const char* style = "normal") {
        return tolvane::AddFont(Key(family, weight, style));
    }
};

// The PostScript name, then the type's suffix.
TEST_F(FontEntryTest, ATrueTypeFontIsListedByItsPostScriptNameAndType) {
    ASSERT_EQ(Add("Liberation Sans"), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"LiberationSans (TrueType)"}));
    EXPECT_EQ(Record().fontCount, 1);
}

// NimbusSans-Bold.otf: CFF outlines in an OpenType file.
TEST_F(FontEntryTest, AnOpenTypeCffFontIsOtf) {
    ASSERT_EQ(Add("Nimbus Sans", 700), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"NimbusSans-Bold (OTF)"}));
}

// The Type 1 program's FontName is NimbusSansNarrow-Regular.
TEST_F(FontEntryTest, AType1FontIsType1) {
    ASSERT_EQ(Add("Nimbus Sans Narrow"), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"NimbusSansNarrow-Regular (Type 1)"}));
}

// The host names a missing font by its family without blanks and its style.
TEST_F(FontEntryTest, AFontThatIsNotInstalledSaysSo) {
    ASSERT_EQ(Add("Qwertyuiop Sans", 700), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"QwertyuiopSans-Bold (not installed)"}));
    EXPECT_EQ(Record().fontCount, 1);
}

// A hundred offers of one font: one entry whose count stays 1, one details block of eight
// lines, one font counted.
TEST_F(FontEntryTest, TheSameFontOfferedAgainAndAgainIsListedAndCountedOnce) {
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(Add("Liberation Sans"), ZM_ERR_NONE);
    }
    EXPECT_EQ(CountedEntries(Lists().fontList), (Texts{"LiberationSans (TrueType):1"}));
    EXPECT_EQ(DetailLines().size(), 8u);
    EXPECT_EQ(Record().fontCount, 1);
}

// Sorted by the entry text; "LiberationSans" < "NimbusSans-Bold" < "NimbusSansNarrow-..."
// ('-' is 0x2D, 'N' 0x4E) < "QwertyuiopSans-Bold".
TEST_F(FontEntryTest, FontsAreListedInOrderOfTheirEntries) {
    Add("Qwertyuiop Sans", 700);
    Add("Nimbus Sans Narrow");
    Add("Liberation Sans");
    Add("Nimbus Sans", 700);
    EXPECT_EQ(FontList(),
              (Texts{"LiberationSans (TrueType)", "NimbusSans-Bold (OTF)",
                     "NimbusSansNarrow-Regular (Type 1)", "QwertyuiopSans-Bold (not installed)"}));
    EXPECT_EQ(Record().fontCount, 4);
}

// "LiberationSans" without its blank names no installed family, and the host names the
// missing font "LiberationSans" too: one name, two types, two fonts.
TEST_F(FontEntryTest, OneNameWithTwoTypesIsTwoFonts) {
    Add("Liberation Sans");
    Add("LiberationSans");
    EXPECT_EQ(FontList(), (Texts{"LiberationSans (TrueType)", "LiberationSans (not installed)"}));
    EXPECT_EQ(Record().fontCount, 2);
    EXPECT_EQ(DetailLines().size(), 16u);
}

// The details are written the first time a font is listed, in the order fonts are met.
TEST_F(FontEntryTest, EachNewFontWritesItsDetailsInTheOrderFontsAreMet) {
    Add("Qwertyuiop Sans", 700);
    Add("Liberation Sans");
    Add("Qwertyuiop Sans", 700);
    Texts expected = DetailBlock("QwertyuiopSans-Bold", "QwertyuiopSans-Bold", "Qwertyuiop Sans",
                                 "Unknown Zelmora Script", "Not Installed");
    Texts liberation =
        DetailBlock("LiberationSans", "LiberationSans", "Liberation Sans", "Roman", "TrueType");
    expected.insert(expected.end(), liberation.begin(), liberation.end());
    EXPECT_EQ(DetailLines(), expected);
}

// With the setting on, a font with a full name of its own is listed by it; the details
// block still opens with the PostScript name.
TEST_F(FontEntryTest, WithAlternateNamesOnAFontIsListedByItsFullName) {
    AlternateNames("true");
    ASSERT_EQ(Add("Liberation Sans"), ZM_ERR_NONE);
    ASSERT_EQ(Add("Nimbus Sans Narrow"), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"Liberation Sans (TrueType)", "Nimbus Sans Narrow (Type 1)"}));
    EXPECT_EQ(DetailLines()[0], "LiberationSans");
}

// NimbusSans-Bold.otf's full name is its PostScript name, and the name of a missing font is
// the host's own making: neither has an alternate name, so both keep the PostScript name.
TEST_F(FontEntryTest, WithAlternateNamesOnAFontWithoutOneKeepsItsPostScriptName) {
    AlternateNames("true");
    Add("Nimbus Sans", 700);
    Add("Qwertyuiop Sans", 700);
    EXPECT_EQ(FontList(), (Texts{"NimbusSans-Bold (OTF)", "QwertyuiopSans-Bold (not installed)"}));
}

TEST_F(FontEntryTest, WithAlternateNamesOffTheFullNameIsNeverAskedFor) {
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kGetFullName, ZM_ERR_INTERNAL);
    AlternateNames("false");
    EXPECT_EQ(Add("Liberation Sans"), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"LiberationSans (TrueType)"}));
}

// The list shows the full name, so the font is listed; its block, made from the PostScript
// name query, says the font has no PostScript name.
TEST_F(FontEntryTest, AListedFontWithoutAPostScriptNameIsNotInstalledInItsDetails) {
    AlternateNames("true");
    ZMFontKey key = Key("Liberation Sans");
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kGetPostScriptName, ZM_ERR_INTERNAL);
    EXPECT_EQ(tolvane::AddFont(key), ZM_ERR_NONE);
    EXPECT_EQ(FontList(), (Texts{"Liberation Sans (TrueType)"}));
    EXPECT_EQ(DetailLines(), DetailBlock("NOT Installed.", "NOT Installed.", "Liberation Sans",
                                         "Roman", "TrueType"));
}

TEST_F(FontEntryTest, AFailingInfoQueryEndsWithTheHostsCodeAndCountsNothing) {
    ZMFontKey key = Key("Liberation Sans");
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kGetFontInfo, ZM_ERR_INTERNAL);
    EXPECT_EQ(tolvane::AddFont(key), ZM_ERR_INTERNAL);
    EXPECT_TRUE(FontList().empty());
    EXPECT_TRUE(DetailLines().empty());
    EXPECT_EQ(Record().fontCount, 0);
}

TEST_F(FontEntryTest, AFailingNameQueryEndsWithTheHostsCode) {
    ZMFontKey key = Key("Liberation Sans");
    runtime.faults.FailCall(ZM_FONT_SUITE_NAME, kGetPostScriptName, ZM_ERR_INTERNAL);
    EXPECT_EQ(tolvane::AddFont(key), ZM_ERR_INTERNAL);
    EXPECT_TRUE(FontList().empty());
    EXPECT_EQ(Record().fontCount, 0);
}

// The glue suite refuses a preference that is no boolean.
TEST_F(FontEntryTest, AnAlternateNameSettingThatCannotBeReadEndsWithTheHostsCode) {
    AlternateNames("sometimes");
    EXPECT_EQ(Add("Liberation Sans"), ZM_ERR_WRONG_TYPE);
    EXPECT_TRUE(FontList().empty());
}

// The entry's node is the next block asked for. The font is counted all the same, and no
// details are written for a font that could not be listed.
TEST_F(FontEntryTest, AFontTheListCannotTakeShowsTheAlertAndGivesOutOfMemory) {
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(Add("Liberation Sans"), ZM_ERR_NO_MEMORY);
    EXPECT_TRUE(FontList().empty());
    EXPECT_TRUE(DetailLines().empty());
    EXPECT_EQ(Record().fontCount, 1);
    EXPECT_EQ(AlertTexts(), (Texts{OutOfMemoryAlert("ID =   AddFont:LinkStrAdd")}));
}

}  // namespace
