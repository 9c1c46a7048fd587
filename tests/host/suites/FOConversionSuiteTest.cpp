#include "host/importers/svg/ImportedDocumentFixture.hpp"

#include <zelmora/ZMCustomColorSuite.h>
#include <zelmora/ZMFOConversionSuite.h>
#include <zelmora/ZMFontSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {
namespace {

constexpr ZMErr kStop = ZM_FOUR_CHAR('S', 'T', 'O', 'P');

// What a visitor saw, and after how many calls it answers kStop (0: never).
struct Seen {
    std::vector<ZMFontKey> fonts;
    std::vector<ZMFOContentItem> items;
    size_t stopAfter = 0;
};

ZMErr ZM_API CollectFont(void* data, ZMFontKey font) {
    auto* seen = static_cast<Seen*>(data);
    seen->fonts.push_back(font);
    return seen->fonts.size() == seen->stopAfter ? kStop : ZM_ERR_NONE;
}

ZMErr ZM_API CollectItem(void* data, const ZMFOContentItem* item) {
    auto* seen = static_cast<Seen*>(data);
    seen->items.push_back(*item);
    return seen->items.size() == seen->stopAfter ? kStop : ZM_ERR_NONE;
}

// tests/fixtures/svg/foreign/foreign-content.svg: "note" names Liberation Sans and the
// missing Qwertyuiop Sans, has a half-opaque paragraph and paints with two swatches; "plain"
// holds nothing of the kind; "box" is a path.
class FOConversionSuiteTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_FO_CONVERSION_SUITE_NAME, ZM_FO_CONVERSION_SUITE_VERSION, foreign);
        Acquire(ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, fonts);
        Acquire(ZM_CUSTOM_COLOR_SUITE_NAME, ZM_CUSTOM_COLOR_SUITE_VERSION, swatches);
        Import("foreign/foreign-content.svg");
    }

    std::string PostScriptName(ZMFontKey key) {
        char name[64] = {};
        EXPECT_EQ(fonts->GetPostScriptName(key, name, sizeof name), ZM_ERR_NONE);
        return name;
    }

    // The document's swatches in the order <defs> declares them.
    ZMCustomColorHandle Swatch(int32_t index) {
        ZMCustomColorHandle color = nullptr;
        EXPECT_EQ(swatches->GetNthCustomColor(index, &color), ZM_ERR_NONE);
        return color;
    }

    const ZMFOConversionSuite* foreign = nullptr;
    const ZMFontSuite* fonts = nullptr;
    const ZMCustomColorSuite* swatches = nullptr;
};

TEST_F(FOConversionSuiteTest, TheFontsAreTheFamiliesTheContentNamesInOrder) {
    Seen seen;
    ASSERT_EQ(foreign->EnumerateFonts(ArtNamed("note"), CollectFont, &seen), ZM_ERR_NONE);
    ASSERT_EQ(seen.fonts.size(), 2u);
    // Only the first family of a list counts; "serif" is a fallback, not a font the text names.
    EXPECT_EQ(PostScriptName(seen.fonts[0]), "LiberationSans");
    // A family no font program has: its name made from the family, regular style.
    EXPECT_EQ(PostScriptName(seen.fonts[1]), "QwertyuiopSans");
    // The same family asked for by a run gives the same key.
    ZMFontKey regular = nullptr;
    ASSERT_EQ(fonts->FindFontKey("Liberation Sans", 400, "normal", &regular), ZM_ERR_NONE);
    EXPECT_EQ(seen.fonts[0], regular);
}

TEST_F(FOConversionSuiteTest, TheContentsAreTransparencyTextThenTheSwatches) {
    Seen seen;
    ASSERT_EQ(foreign->EnumerateContents(ArtNamed("note"), CollectItem, &seen), ZM_ERR_NONE);
    ASSERT_EQ(seen.items.size(), 4u);
    EXPECT_EQ(seen.items[0].kind, ZM_FO_CONTENT_TRANSPARENCY);
    EXPECT_EQ(seen.items[0].value.flag, 1);  // the paragraph's opacity 0.5
    EXPECT_EQ(seen.items[1].kind, ZM_FO_CONTENT_TEXT);
    EXPECT_EQ(seen.items[1].value.flag, 1);
    EXPECT_EQ(seen.items[2].kind, ZM_FO_CONTENT_CUSTOM_COLOR);
    EXPECT_EQ(seen.items[2].value.customColor, Swatch(0));  // "Signal Red", met first
    EXPECT_EQ(seen.items[3].kind, ZM_FO_CONTENT_CUSTOM_COLOR);
    EXPECT_EQ(seen.items[3].value.customColor, Swatch(1));  // "Deep Blue"
}

TEST_F(FOConversionSuiteTest, PlainContentIsOnlyAnOpaqueTransparencyItem) {
    Seen seen;
    ASSERT_EQ(foreign->EnumerateFonts(ArtNamed("plain"), CollectFont, &seen), ZM_ERR_NONE);
    EXPECT_TRUE(seen.fonts.empty());
    ASSERT_EQ(foreign->EnumerateContents(ArtNamed("plain"), CollectItem, &seen), ZM_ERR_NONE);
    ASSERT_EQ(seen.items.size(), 1u);
    EXPECT_EQ(seen.items[0].kind, ZM_FO_CONTENT_TRANSPARENCY);
    EXPECT_EQ(seen.items[0].value.flag, 0);
}

TEST_F(FOConversionSuiteTest, AVisitorsAnswerEndsTheEnumerationAndIsReturned) {
    Seen fontsSeen;
    fontsSeen.stopAfter = 1;
    EXPECT_EQ(foreign->EnumerateFonts(ArtNamed("note"), CollectFont, &fontsSeen), kStop);
    EXPECT_EQ(fontsSeen.fonts.size(), 1u);
    Seen itemsSeen;
    itemsSeen.stopAfter = 2;
    EXPECT_EQ(foreign->EnumerateContents(ArtNamed("note"), CollectItem, &itemsSeen), kStop);
    EXPECT_EQ(itemsSeen.items.size(), 2u);
}

TEST_F(FOConversionSuiteTest, OtherArtNoVisitorAndNoDocumentAreRefused) {
    Seen seen;
    EXPECT_EQ(foreign->EnumerateFonts(ArtNamed("box"), CollectFont, &seen),
              ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(foreign->EnumerateContents(ArtNamed("box"), CollectItem, &seen),
              ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(foreign->EnumerateFonts(nullptr, CollectFont, &seen), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(foreign->EnumerateFonts(ArtNamed("note"), nullptr, &seen), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(foreign->EnumerateContents(ArtNamed("note"), nullptr, &seen),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(seen.fonts.empty());
    EXPECT_TRUE(seen.items.empty());
    ZMArtHandle note = ArtNamed("note");
    runtime.documents.CloseCurrent();
    EXPECT_EQ(foreign->EnumerateFonts(note, CollectFont, &seen), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(foreign->EnumerateContents(note, CollectItem, &seen), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::test
