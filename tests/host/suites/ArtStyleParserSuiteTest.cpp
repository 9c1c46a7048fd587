#include "host/suites/DocumentSuiteFixture.hpp"
#include "host/suites/StyledDocument.hpp"

#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>
#include <zelmora/ZMBrushMgrSuite.h>
#include <zelmora/ZMDictionarySuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

using zm::test::HandleOf;

class ArtStyleParserSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, styles);
        Acquire(ZM_ART_STYLE_PARSER_SUITE_NAME, ZM_ART_STYLE_PARSER_SUITE_VERSION, parsers);
        Acquire(ZM_DICTIONARY_SUITE_NAME, ZM_DICTIONARY_SUITE_VERSION, dictionaries);
        Acquire(ZM_BRUSH_MGR_SUITE_NAME, ZM_BRUSH_MGR_SUITE_VERSION, brushes);
        ASSERT_EQ(parsers->NewParser(&parser), ZM_ERR_NONE);
    }

    void TearDown() override {
        EXPECT_EQ(parsers->DisposeParser(parser), ZM_ERR_NONE);
        DocumentSuiteFixture::TearDown();
    }

    // Parses the style of art and gives the number of paint fields.
    int32_t Parse(document::Art* art) {
        ZMArtStyleHandle style = nullptr;
        EXPECT_EQ(styles->GetArtStyle(HandleOf(art), &style), ZM_ERR_NONE);
        EXPECT_EQ(parsers->ParseStyle(parser, style), ZM_ERR_NONE);
        int32_t count = -1;
        EXPECT_EQ(parsers->CountPaintFields(parser, &count), ZM_ERR_NONE);
        return count;
    }

    ZMParserPaintField Field(int32_t index) {
        ZMParserPaintField field = nullptr;
        EXPECT_EQ(parsers->GetNthPaintField(parser, index, &field), ZM_ERR_NONE);
        return field;
    }

    ZMBool IsFill(ZMParserPaintField field) {
        ZMBool fill = -1;
        EXPECT_EQ(parsers->IsFill(field, &fill), ZM_ERR_NONE);
        return fill;
    }

    ZMBool IsStroke(ZMParserPaintField field) {
        ZMBool stroke = -1;
        EXPECT_EQ(parsers->IsStroke(field, &stroke), ZM_ERR_NONE);
        return stroke;
    }

    const ZMArtStyleSuite* styles = nullptr;
    const ZMArtStyleParserSuite* parsers = nullptr;
    const ZMDictionarySuite* dictionaries = nullptr;
    const ZMBrushMgrSuite* brushes = nullptr;
    zm::test::StyledDocument art{Open()};
    ZMStyleParser parser = nullptr;
};

TEST_F(ArtStyleParserSuiteTest, ANewParserHoldsNoFields) {
    int32_t count = -1;
    EXPECT_EQ(parsers->CountPaintFields(parser, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 0);
    ZMDictionaryRef blend = nullptr;
    EXPECT_EQ(parsers->GetBlendDictionary(parser, &blend), ZM_ERR_NOT_FOUND);  // nothing parsed
}

TEST_F(ArtStyleParserSuiteTest, AFilledPathHasOneFillField) {
    ASSERT_EQ(Parse(art.plain), 1);  // a fill, no stroke
    ZMParserPaintField field = Field(0);
    EXPECT_EQ(IsFill(field), 1);
    EXPECT_EQ(IsStroke(field), 0);
    ZMFillStyle fill{};
    EXPECT_EQ(parsers->GetFill(field, &fill), ZM_ERR_NONE);
    EXPECT_EQ(fill.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(fill.color.c.three.red, 1.0);
    EXPECT_EQ(fill.color.c.three.green, 0.0);
    ZMStrokeStyle stroke{};
    EXPECT_EQ(parsers->GetStroke(field, &stroke), ZM_ERR_BAD_ARGUMENT);  // a fill field
    int32_t effects = -1;
    EXPECT_EQ(parsers->CountLiveEffects(field, &effects), ZM_ERR_NONE);
    EXPECT_EQ(effects, 0);
}

TEST_F(ArtStyleParserSuiteTest, ABrushedStrokeHasOneStrokeFieldWithTheBrushEffectFirst) {
    ASSERT_EQ(Parse(art.brushed), 1);  // no fill, a stroke
    ZMParserPaintField field = Field(0);
    EXPECT_EQ(IsFill(field), 0);
    EXPECT_EQ(IsStroke(field), 1);
    ZMStrokeStyle stroke{};
    EXPECT_EQ(parsers->GetStroke(field, &stroke), ZM_ERR_NONE);
    EXPECT_EQ(stroke.color.kind, ZM_COLOR_FOUR);
    EXPECT_EQ(stroke.color.c.four.cyan, 0.1);
    EXPECT_EQ(stroke.width, 2.0);
    ZMFillStyle fill{};
    EXPECT_EQ(parsers->GetFill(field, &fill), ZM_ERR_BAD_ARGUMENT);  // a stroke field
    int32_t effects = -1;
    EXPECT_EQ(parsers->CountLiveEffects(field, &effects), ZM_ERR_NONE);
    EXPECT_EQ(effects, 1);
    ZMLiveEffectHandle effect = nullptr;
    EXPECT_EQ(parsers->GetLiveEffect(field, 0, &effect), ZM_ERR_NONE);
    ASSERT_NE(effect, nullptr);
    // The brush manager finds the brush behind the effect.
    ZMBrushHandle brush = nullptr;
    EXPECT_EQ(brushes->GetBrushForLiveEffect(effect, &brush), ZM_ERR_NONE);
    EXPECT_EQ(brush, reinterpret_cast<ZMBrushHandle>(art.brush));
}

TEST_F(ArtStyleParserSuiteTest, AnEffectIndexPastTheEffectsGivesNoEffect) {
    ASSERT_EQ(Parse(art.brushed), 1);
    int sentinel = 0;
    auto effect = reinterpret_cast<ZMLiveEffectHandle>(&sentinel);
    EXPECT_EQ(parsers->GetLiveEffect(Field(0), 1, &effect), ZM_ERR_NONE);
    EXPECT_EQ(effect, nullptr);
    EXPECT_EQ(parsers->GetLiveEffect(Field(0), -1, &effect), ZM_ERR_BAD_ARGUMENT);
    ASSERT_EQ(Parse(art.plain), 1);
    EXPECT_EQ(parsers->GetLiveEffect(Field(0), 0, &effect), ZM_ERR_NONE);  // no effect
    EXPECT_EQ(effect, nullptr);
}

TEST_F(ArtStyleParserSuiteTest, AFillAndAStrokeComeFillFirst) {
    art.plain->style.strokePaint = true;  // before the style is first asked for
    art.plain->style.stroke = document::Color::Black();
    ASSERT_EQ(Parse(art.plain), 2);
    EXPECT_EQ(IsFill(Field(0)), 1);
    EXPECT_EQ(IsStroke(Field(1)), 1);
}

TEST_F(ArtStyleParserSuiteTest, AGroupHasNoPaintFields) { EXPECT_EQ(Parse(art.group), 0); }

TEST_F(ArtStyleParserSuiteTest, TheBlendDictionaryHoldsModeAndOpacity) {
    Parse(art.brushed);
    ZMDictionaryRef blend = nullptr;
    ASSERT_EQ(parsers->GetBlendDictionary(parser, &blend), ZM_ERR_NONE);
    ZMDictKey modeKey = nullptr;
    ZMDictKey opacityKey = nullptr;
    ASSERT_EQ(dictionaries->Key("Mode", &modeKey), ZM_ERR_NONE);
    ASSERT_EQ(dictionaries->Key("Opacity", &opacityKey), ZM_ERR_NONE);
    int32_t mode = -1;
    double opacity = -1;
    EXPECT_EQ(dictionaries->GetIntegerEntry(blend, modeKey, &mode), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->GetRealEntry(blend, opacityKey, &opacity), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_MULTIPLY);
    EXPECT_DOUBLE_EQ(opacity, 0.4);  // object 0.5 times its stroke's 0.8
    int32_t count = 0;
    EXPECT_EQ(dictionaries->CountEntries(blend, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(dictionaries->Release(blend), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(blend), 0);  // the caller's reference was the only one
}

TEST_F(ArtStyleParserSuiteTest, ANewParseReplacesTheFieldsOfTheLast) {
    ASSERT_EQ(Parse(art.brushed), 1);
    ZMParserPaintField old = Field(0);
    ASSERT_EQ(Parse(art.group), 0);
    ZMBool fill = 0;
    EXPECT_EQ(parsers->IsFill(old, &fill), ZM_ERR_BAD_ARGUMENT);  // gone with its parse
}

TEST_F(ArtStyleParserSuiteTest, ParsersAndFieldsTheHostDidNotMakeAreRefused) {
    auto foreignParser = zm::test::ForeignHandle<ZMStyleParser>();
    auto foreignField = zm::test::ForeignHandle<ZMParserPaintField>();
    int32_t count = 0;
    ZMBool flag = 0;
    ZMFillStyle fill{};
    ZMStrokeStyle stroke{};
    ZMLiveEffectHandle effect = nullptr;
    ZMParserPaintField field = nullptr;
    ZMDictionaryRef blend = nullptr;
    ZMArtStyleHandle style = nullptr;
    ASSERT_EQ(styles->GetArtStyle(HandleOf(art.plain), &style), ZM_ERR_NONE);
    EXPECT_EQ(parsers->ParseStyle(foreignParser, style), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->ParseStyle(parser, zm::test::ForeignHandle<ZMArtStyleHandle>()),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->CountPaintFields(foreignParser, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetNthPaintField(foreignParser, 0, &field), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->IsFill(foreignField, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->IsStroke(nullptr, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetFill(foreignField, &fill), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetStroke(foreignField, &stroke), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->CountLiveEffects(foreignField, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetLiveEffect(foreignField, 0, &effect), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetBlendDictionary(foreignParser, &blend), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->DisposeParser(foreignParser), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->DisposeParser(nullptr), ZM_ERR_NONE);  // ignored
}

TEST_F(ArtStyleParserSuiteTest, BadIndexesAndMissingArgumentsAreRefused) {
    ASSERT_EQ(Parse(art.plain), 1);
    ZMParserPaintField field = nullptr;
    EXPECT_EQ(parsers->GetNthPaintField(parser, 1, &field), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetNthPaintField(parser, -1, &field), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetNthPaintField(parser, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->CountPaintFields(parser, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->IsFill(Field(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetFill(Field(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->CountLiveEffects(Field(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetLiveEffect(Field(0), 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->GetBlendDictionary(parser, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->NewParser(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtStyleParserSuiteTest, ParsingNeedsADocument) {
    ZMArtStyleHandle style = nullptr;
    ASSERT_EQ(styles->GetArtStyle(HandleOf(art.plain), &style), ZM_ERR_NONE);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(parsers->ParseStyle(parser, style), ZM_ERR_NO_DOCUMENT);
}

TEST_F(ArtStyleParserSuiteTest, ADisposedParserIsGone) {
    ZMStyleParser second = nullptr;
    ASSERT_EQ(parsers->NewParser(&second), ZM_ERR_NONE);
    EXPECT_EQ(parsers->DisposeParser(second), ZM_ERR_NONE);
    int32_t count = 0;
    EXPECT_EQ(parsers->CountPaintFields(second, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(parsers->DisposeParser(second), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
