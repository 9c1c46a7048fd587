#include "host/suites/TextPiecesFixture.hpp"

#include <zelmora/KRXCharSuites.h>
#include <zelmora/KRXGlyphSuites.h>
#include <zelmora/KRXTextFrameSuites.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::host {
namespace {

using Strings = std::vector<std::string>;

class KRXCharSuitesTest : public zm::test::TextPiecesFixture {
protected:
    void SetUp() override {
        TextPiecesFixture::SetUp();
        Acquire(ZM_KRX_CHAR_FEATURES_SUITE_NAME, ZM_KRX_CHAR_FEATURES_SUITE_VERSION, features);
        Acquire(ZM_KRX_CHAR_STYLE_SUITE_NAME, ZM_KRX_CHAR_STYLE_SUITE_VERSION, style);
        Acquire(ZM_KRX_CHAR_STYLES_SUITE_NAME, ZM_KRX_CHAR_STYLES_SUITE_VERSION, styles);
        Acquire(ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME, ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_VERSION,
                stylesIterators);
        Acquire(ZM_KRX_GLYPH_SUITE_NAME, ZM_KRX_GLYPH_SUITE_VERSION, glyph);
        Acquire(ZM_KRX_GLYPHS_SUITE_NAME, ZM_KRX_GLYPHS_SUITE_VERSION, glyphs);
        Acquire(ZM_KRX_GLYPHS_ITERATOR_SUITE_NAME, ZM_KRX_GLYPHS_ITERATOR_SUITE_VERSION,
                glyphsIterators);
        Acquire(ZM_KRX_GLYPH_RUN_SUITE_NAME, ZM_KRX_GLYPH_RUN_SUITE_VERSION, glyphRun);
        Acquire(ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_NAME, ZM_KRX_GLYPH_RUNS_ITERATOR_SUITE_VERSION,
                glyphRunsIterators);
        Acquire(ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_LINES_ITERATOR_SUITE_VERSION,
                linesIterators);
        Acquire(ZM_KRX_TEXT_LINE_SUITE_NAME, ZM_KRX_TEXT_LINE_SUITE_VERSION, lines);
    }

    // The glyph ids of the frame's characters, through the glyphs list and its iterator.
    std::vector<KRXGlyphID> GlyphIDsOf(const char* id) {
        KRXTextRangeRef range = RangeOf(id);
        KRXGlyphsRef list = nullptr;
        EXPECT_EQ(glyphs->CreateOfRange(range, &list), ZM_ERR_NONE);
        EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
        KRXGlyphsIteratorRef iterator = nullptr;
        EXPECT_EQ(glyphsIterators->Create(list, &iterator), ZM_ERR_NONE);
        EXPECT_EQ(glyphs->Release(list), ZM_ERR_NONE);
        return Walk(
            glyphsIterators, iterator,
            [&](KRXGlyphRef item) {
                KRXGlyphID glyphID = 0xFFFF;
                EXPECT_EQ(glyph->GetGlyphID(item, &glyphID), ZM_ERR_NONE);
                return glyphID;
            },
            glyph->Release);
    }

    const KRXCharFeaturesSuite* features = nullptr;
    const KRXCharStyleSuite* style = nullptr;
    const KRXCharStylesSuite* styles = nullptr;
    const KRXCharStylesIteratorSuite* stylesIterators = nullptr;
    const KRXGlyphSuite* glyph = nullptr;
    const KRXGlyphsSuite* glyphs = nullptr;
    const KRXGlyphsIteratorSuite* glyphsIterators = nullptr;
    const KRXGlyphRunSuite* glyphRun = nullptr;
    const KRXGlyphRunsIteratorSuite* glyphRunsIterators = nullptr;
    const KRXTextLinesIteratorSuite* linesIterators = nullptr;
    const KRXTextLineSuite* lines = nullptr;
};

TEST_F(KRXCharSuitesTest, ARangesFeaturesAreItsFirstCharactersRun) {
    OpenText("two-fonts.svg");
    KRXTextRangeRef range = RangeOf("greeting");
    KRXCharFeaturesRef set = nullptr;
    ASSERT_EQ(features->CreateOfRange(range, &set), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
    // "Grüße, ": Liberation Sans, 20 px = 15 pt, red.
    KRXFontRef font = nullptr;
    int32_t assigned = 0;
    ASSERT_EQ(features->GetFont(set, &font, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 1);
    ZMFontKey key = nullptr;
    EXPECT_EQ(fonts->FontKeyFromKRXFont(font, &key), ZM_ERR_NONE);
    EXPECT_EQ(key, Key("Liberation Sans"));
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    double size = 0;
    EXPECT_EQ(features->GetFontSize(set, &size, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(size, 15.0);
    KRXApplicationPaintRef paint = nullptr;
    ASSERT_EQ(features->GetFillColor(set, &paint, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 1);
    ZMFillStyle fill{};
    EXPECT_EQ(paintConversion->GetZMFillStyle(paint, &fill), ZM_ERR_NONE);
    zm::test::ExpectRgb(fill, 1, 0, 0);
    EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
    EXPECT_EQ(features->SetFontSize(set, 9.5), ZM_ERR_NONE);
    EXPECT_EQ(features->GetFontSize(set, &size, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(size, 9.5);
    EXPECT_EQ(features->SetFontSize(set, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(features->GetFont(set, nullptr, &assigned), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(features->Release(set), ZM_ERR_NONE);
    EXPECT_EQ(features->GetFontSize(set, &size, &assigned), ZM_ERR_BAD_ARGUMENT);  // released
}

TEST_F(KRXCharSuitesTest, NewFeaturesHaveNothingAssigned) {
    KRXCharFeaturesRef set = nullptr;
    ASSERT_EQ(features->Create(&set), ZM_ERR_NONE);
    auto font = reinterpret_cast<KRXFontRef>(&set);
    int32_t assigned = -1;
    EXPECT_EQ(features->GetFont(set, &font, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 0);
    EXPECT_EQ(font, nullptr);
    KRXApplicationPaintRef paint = nullptr;
    EXPECT_EQ(features->GetFillColor(set, &paint, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 0);
    EXPECT_EQ(features->Release(set), ZM_ERR_NONE);
}

TEST_F(KRXCharSuitesTest, TheDocumentHasTheNormalCharacterStyle) {
    OpenText("two-fonts.svg");
    KRXCharStylesRef list = nullptr;
    ASSERT_EQ(styles->GetDocumentCharStyles(&list), ZM_ERR_NONE);
    KRXCharStylesIteratorRef iterator = nullptr;
    ASSERT_EQ(stylesIterators->Create(list, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(styles->Release(list), ZM_ERR_NONE);
    auto names = Walk(
        stylesIterators, iterator,
        [&](KRXCharStyleRef item) {
            char name[64] = {};
            EXPECT_EQ(style->GetName(item, name, sizeof name), ZM_ERR_NONE);
            KRXCharFeaturesRef set = nullptr;
            EXPECT_EQ(style->GetFeatures(item, &set), ZM_ERR_NONE);
            double size = 0;
            int32_t assigned = 0;
            EXPECT_EQ(features->GetFontSize(set, &size, &assigned), ZM_ERR_NONE);
            EXPECT_EQ(size, 12.0);  // the default size of text that names none
            EXPECT_EQ(features->Release(set), ZM_ERR_NONE);
            return std::string(name);
        },
        style->Release);
    EXPECT_EQ(names, Strings{"Normal Character Style"});
    runtime.documents.CloseCurrent();
    EXPECT_EQ(styles->GetDocumentCharStyles(&list), ZM_ERR_NO_DOCUMENT);
}

TEST_F(KRXCharSuitesTest, EqualCharactersOfOneFontShowOneGlyph) {
    OpenText("krx-story.svg");
    // "Second story": S e c o n d _ s t o r y. The two o's (3 and 9) share a glyph; c and d,
    // letters the font has, show glyphs of their own, none of them the missing glyph.
    std::vector<KRXGlyphID> ids = GlyphIDsOf("closing");
    ASSERT_EQ(ids.size(), 12u);
    EXPECT_EQ(ids[3], ids[9]);
    EXPECT_NE(ids[2], ids[5]);
    for (KRXGlyphID id : ids) {
        EXPECT_NE(id, 0);
    }
}

TEST_F(KRXCharSuitesTest, AFontThatIsNotInstalledShowsOnlyTheMissingGlyph) {
    OpenText("missing-font.svg");
    // "Nowhere" is set in a family no font program has: seven missing glyphs.
    EXPECT_EQ(GlyphIDsOf("missing"), std::vector<KRXGlyphID>(7, 0));
}

TEST_F(KRXCharSuitesTest, ALineHasAGlyphRunPerTextRun) {
    OpenText("krx-story.svg");
    KRXTextFrameRef frame = nullptr;
    ASSERT_EQ(textFrames->GetKRXTextFrame(Frame("opening"), &frame), ZM_ERR_NONE);
    KRXTextLinesIteratorRef linesIterator = nullptr;
    ASSERT_EQ(linesIterators->Create(frame, &linesIterator), ZM_ERR_NONE);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
    KRXTextLineRef line = nullptr;
    ASSERT_EQ(linesIterators->Item(linesIterator, &line), ZM_ERR_NONE);
    EXPECT_EQ(linesIterators->Release(linesIterator), ZM_ERR_NONE);
    KRXGlyphRunsIteratorRef iterator = nullptr;
    ASSERT_EQ(glyphRunsIterators->Create(line, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(lines->Release(line), ZM_ERR_NONE);
    auto runs = Walk(
        glyphRunsIterators, iterator,
        [&](KRXGlyphRunRef run) {
            int32_t size = -1;
            EXPECT_EQ(glyphRun->GetSize(run, &size), ZM_ERR_NONE);
            double fontSize = 0;
            EXPECT_EQ(glyphRun->GetFontSize(run, &fontSize), ZM_ERR_NONE);
            EXPECT_EQ(fontSize, 12.0);  // no size given: 16 px would be 12 pt
            KRXFontRef font = nullptr;
            EXPECT_EQ(glyphRun->GetFont(run, &font), ZM_ERR_NONE);
            EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
            KRXTextRangeRef range = nullptr;
            EXPECT_EQ(glyphRun->GetTextRange(run, &range), ZM_ERR_NONE);
            std::string text = Text(range);
            EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
            return text + ":" + std::to_string(size);
        },
        glyphRun->Release);
    // One glyph per character of each run: 7, 9 and 6.
    EXPECT_EQ(runs, (Strings{"Hello, :7", "brave new:9", " world:6"}));
}

}  // namespace
}  // namespace zm::host
