#include "plugins/tolvane/inventory/FontInventoryFixture.hpp"
#include "plugins/tolvane/inventory/StandInFontSuites.hpp"

#include <inventory/FontInventory.hpp>

#include <gtest/gtest.h>

namespace {

using tolvane::FontTypeIndex;

// The glue suite's design-axis count.
constexpr int32_t kCountDesignAxes = 1;

class FontTypeIndexTest : public zm::test::FontInventoryFixture {
protected:
    // An installed font with PostScript outlines that says nothing more of itself; each test
    // sets what it is about.
    static ZMFontInfo PostScriptFont() {
        ZMFontInfo info{};
        info.installed = 1;
        info.technology = ZM_FONT_TECHNOLOGY_POSTSCRIPT;
        return info;
    }
};

// Rule 1: whatever else the record says.
TEST_F(FontTypeIndexTest, AFontThatIsNotInstalledIsNothingElse) {
    ZMFontInfo info = PostScriptFont();
    info.installed = 0;
    info.openType = 1;
    info.cid = 1;
    info.type1 = 1;
    EXPECT_EQ(FontTypeIndex(info), 9);
    info.technology = ZM_FONT_TECHNOLOGY_TRUETYPE;
    EXPECT_EQ(FontTypeIndex(info), 9);
}

// Rule 2 comes before the technology and the CID and Type 1 flags.
TEST_F(FontTypeIndexTest, AnOpenTypeFontIsOpenTypeWhateverItsOutlines) {
    ZMFontInfo info = PostScriptFont();
    info.openType = 1;
    EXPECT_EQ(FontTypeIndex(info), 7);
    info.cid = 1;
    info.type1 = 1;
    EXPECT_EQ(FontTypeIndex(info), 7);  // a CFF font is never CID Type 1 or Type 1
    info.technology = ZM_FONT_TECHNOLOGY_TRUETYPE;
    EXPECT_EQ(FontTypeIndex(info), 7);
}

// Rule 3.
TEST_F(FontTypeIndexTest, TrueTypeOutlinesAreTrueType) {
    ZMFontInfo info = PostScriptFont();
    info.technology = ZM_FONT_TECHNOLOGY_TRUETYPE;
    EXPECT_EQ(FontTypeIndex(info), 3);
    info.type1 = 1;
    info.bitmap = 1;
    EXPECT_EQ(FontTypeIndex(info), 3);
}

// Rule 4: any technology but the two known ones, before the CID flag is looked at.
TEST_F(FontTypeIndexTest, AnyOtherTechnologyIsUnknown) {
    ZMFontInfo info = PostScriptFont();
    info.technology = ZM_FONT_TECHNOLOGY_OTHER;
    EXPECT_EQ(FontTypeIndex(info), 8);
    info.technology = 77;
    info.cid = 1;
    EXPECT_EQ(FontTypeIndex(info), 8);
}

// Rule 5 comes before the Type 1 flag.
TEST_F(FontTypeIndexTest, CidKeyedPostScriptOutlinesAreCidType1) {
    ZMFontInfo info = PostScriptFont();
    info.cid = 1;
    info.type1 = 1;
    EXPECT_EQ(FontTypeIndex(info), 2);
}

// Rule 6 comes before the bitmap flag.
TEST_F(FontTypeIndexTest, APlainType1FontIsType1) {
    ZMFontInfo info = PostScriptFont();
    info.type1 = 1;
    info.bitmap = 1;
    EXPECT_EQ(FontTypeIndex(info), 1);
}

// Rule 7 comes before the composite flag.
TEST_F(FontTypeIndexTest, ABitmapFontIsABitmapFont) {
    ZMFontInfo info = PostScriptFont();
    info.bitmap = 1;
    info.composite = 1;
    EXPECT_EQ(FontTypeIndex(info), 6);
}

// Rule 8 with a real program: Liberation Sans has no design axes, so the record that says
// nothing more is Type 1.
TEST_F(FontTypeIndexTest, APostScriptFontWithoutDesignAxesIsType1) {
    ZMFontInfo info = PostScriptFont();
    info.platformFont = Info(Key("Liberation Sans")).platformFont;
    ASSERT_NE(info.platformFont, nullptr);
    EXPECT_EQ(FontTypeIndex(info), 1);
}

// Rule 8 with axes: no multiple-master or variable font is installed, so the count is the
// stand-in's 2.
TEST_F(FontTypeIndexTest, APostScriptFontWithDesignAxesIsAMultipleMaster) {
    zm::test::StandInGlueSuite glue(2);
    EXPECT_EQ(FontTypeIndex(PostScriptFont()), 5);
    EXPECT_EQ(glue.Asked(), 1);
}

// The host refuses a null platform font; a count it cannot give is no axes.
TEST_F(FontTypeIndexTest, DesignAxesThatCannotBeCountedAreNone) {
    EXPECT_EQ(FontTypeIndex(PostScriptFont()), 1);
    runtime.faults.FailCall(ZM_FONT_GLUE_SUITE_NAME, kCountDesignAxes, ZM_ERR_INTERNAL);
    ZMFontInfo info = PostScriptFont();
    info.platformFont = Info(Key("Liberation Sans")).platformFont;
    EXPECT_EQ(FontTypeIndex(info), 1);
}

// Rule 9: the axes are not asked for.
TEST_F(FontTypeIndexTest, ACompositeFontIsNwd) {
    zm::test::StandInGlueSuite glue(2);
    ZMFontInfo info = PostScriptFont();
    info.composite = 1;
    EXPECT_EQ(FontTypeIndex(info), 4);
    EXPECT_EQ(glue.Asked(), 0);
}

// The installed fonts, through the host's own records.
TEST_F(FontTypeIndexTest, LiberationSansIsTrueType) {
    EXPECT_EQ(FontTypeIndex(Info(Key("Liberation Sans"))), 3);
}

TEST_F(FontTypeIndexTest, NimbusSansFromItsOpenTypeCffFileIsOpenType) {
    EXPECT_EQ(FontTypeIndex(Info(Key("Nimbus Sans", 700))), 7);
}

TEST_F(FontTypeIndexTest, NimbusSansNarrowFromItsType1FileIsType1) {
    EXPECT_EQ(FontTypeIndex(Info(Key("Nimbus Sans Narrow"))), 1);
}

TEST_F(FontTypeIndexTest, AFamilyNoProgramHasIsNotInstalled) {
    EXPECT_EQ(FontTypeIndex(Info(Key("Qwertyuiop Sans", 700))), 9);
}

}  // namespace
