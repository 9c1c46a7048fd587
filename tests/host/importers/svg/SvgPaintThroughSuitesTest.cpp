#include <gtest/gtest.h>
#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>
#include <zelmora/ZMBrushMgrSuite.h>
#include <zelmora/ZMDictionarySuite.h>
#include <zelmora/ZMMaskSuite.h>
#include <zelmora/ZMMeshSuite.h>
#include <zelmora/ZMPathStyleSuite.h>

#include <string>
#include <vector>

#include "ImportedDocumentFixture.hpp"

namespace zm::test {
namespace {

// Paint, blending, masks, meshes and art styles of imported art, read through their suites.
class SvgPaintThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_PATH_STYLE_SUITE_NAME, ZM_PATH_STYLE_SUITE_VERSION, pathStyles);
        Acquire(ZM_BLEND_STYLE_SUITE_NAME, ZM_BLEND_STYLE_SUITE_VERSION, blends);
        Acquire(ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, artStyles);
    }

    ZMPathStyle StyleOf(ZMArtHandle handle) {
        ZMPathStyle style{};
        style.fillPaint = style.strokePaint = -1;
        EXPECT_EQ(pathStyles->GetPathStyle(handle, &style), ZM_ERR_NONE);
        return style;
    }

    ZMArtStyleHandle ArtStyleOf(ZMArtHandle handle) {
        ZMArtStyleHandle style = nullptr;
        EXPECT_EQ(artStyles->GetArtStyle(handle, &style), ZM_ERR_NONE);
        return style;
    }

    const ZMPathStyleSuite* pathStyles = nullptr;
    const ZMBlendStyleSuite* blends = nullptr;
    const ZMArtStyleSuite* artStyles = nullptr;
};

// paint.svg: shapes painted by default, through a group, and in device colours.
class SvgPathStyleThroughSuitesTest : public SvgPaintThroughSuitesTest {
protected:
    void SetUp() override {
        SvgPaintThroughSuitesTest::SetUp();
        Import("paint.svg");
    }
};

TEST_F(SvgPathStyleThroughSuitesTest, AShapeWithoutPaintIsFilledRgbBlackAndNotStroked) {
    ZMPathStyle style = StyleOf(ArtNamed("default"));
    EXPECT_EQ(style.fillPaint, 1);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(style.fill.color.c.three.red, 0);
    EXPECT_EQ(style.fill.color.c.three.green, 0);
    EXPECT_EQ(style.fill.color.c.three.blue, 0);
    EXPECT_EQ(style.strokePaint, 0);
    EXPECT_EQ(style.clip, 0);
}

TEST_F(SvgPathStyleThroughSuitesTest, AGroupPaintsNothingWhatItHoldsInheritsItsPaint) {
    ZMPathStyle group = StyleOf(ArtNamed("group"));
    EXPECT_EQ(group.fillPaint, 0);
    EXPECT_EQ(group.strokePaint, 0);
    // fill #ff0000, stroke blue, stroke-width 2 px = 1.5 pt, all from the group.
    ZMPathStyle inherits = StyleOf(ArtNamed("inherits"));
    EXPECT_EQ(inherits.fillPaint, 1);
    EXPECT_EQ(inherits.fill.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(inherits.fill.color.c.three.red, 1);
    EXPECT_EQ(inherits.fill.color.c.three.green, 0);
    EXPECT_EQ(inherits.strokePaint, 1);
    EXPECT_EQ(inherits.stroke.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(inherits.stroke.color.c.three.blue, 1);
    EXPECT_DOUBLE_EQ(inherits.stroke.width, 1.5);
    // fill="none" on the rect beats the group's fill; the stroke is still inherited.
    ZMPathStyle overrides = StyleOf(ArtNamed("overrides"));
    EXPECT_EQ(overrides.fillPaint, 0);
    EXPECT_EQ(overrides.strokePaint, 1);
}

TEST_F(SvgPathStyleThroughSuitesTest, DeviceCmykIsAFourColour) {
    ZMPathStyle style = StyleOf(ArtNamed("cmyk"));
    ASSERT_EQ(style.fill.color.kind, ZM_COLOR_FOUR);
    EXPECT_DOUBLE_EQ(style.fill.color.c.four.cyan, 0.1);
    EXPECT_DOUBLE_EQ(style.fill.color.c.four.magenta, 0.2);
    EXPECT_DOUBLE_EQ(style.fill.color.c.four.yellow, 0.3);
    EXPECT_DOUBLE_EQ(style.fill.color.c.four.black, 0.4);
}

TEST_F(SvgPathStyleThroughSuitesTest, DeviceGrayIsAGrayOfThatMuchBlackLess) {
    ZMPathStyle style = StyleOf(ArtNamed("gray"));
    ASSERT_EQ(style.fill.color.kind, ZM_COLOR_GRAY);
    // device-gray(0.25) is a lightness; the record holds the amount of black.
    EXPECT_DOUBLE_EQ(style.fill.color.c.gray.gray, 0.75);
}

// structure.svg: a rect clipped by a rect and a circle.
TEST_F(SvgPaintThroughSuitesTest, AClipGroupsClippingPathsAreFlaggedTheClippedArtIsNot) {
    Import("structure.svg");
    ZMArtHandle clipped = ArtNamed("clipped");
    ZMArtHandle group = Parent(clipped);
    ASSERT_EQ(TypeOf(group), ZM_ART_GROUP);
    ZMArtHandle rect = FirstChild(group);
    ZMArtHandle circle = Sibling(rect);
    EXPECT_EQ(StyleOf(rect).clip, 1);
    EXPECT_EQ(StyleOf(circle).clip, 1);
    EXPECT_EQ(Sibling(circle), clipped);  // the clipped art comes last
    EXPECT_EQ(StyleOf(clipped).clip, 0);
    EXPECT_EQ(StyleOf(group).clip, 0);  // the group itself paints nothing
}

// blending.svg: opacity and blend modes as presentation attributes and in style attributes.
class SvgBlendThroughSuitesTest : public SvgPaintThroughSuitesTest {
protected:
    void SetUp() override {
        SvgPaintThroughSuitesTest::SetUp();
        Import("blending.svg");
    }

    ZMBlendingMode Mode(ZMArtHandle handle) {
        ZMBlendingMode mode = -1;
        EXPECT_EQ(blends->GetBlendingMode(handle, &mode), ZM_ERR_NONE);
        return mode;
    }

    double Opacity(ZMArtHandle handle) {
        double opacity = -1;
        EXPECT_EQ(blends->GetOpacity(handle, &opacity), ZM_ERR_NONE);
        return opacity;
    }

    bool NormalOpaque(ZMArtHandle handle) {
        ZMBool normal = -1;
        EXPECT_EQ(blends->IsNormalOpaque(handle, &normal), ZM_ERR_NONE);
        return normal == 1;
    }
};

TEST_F(SvgBlendThroughSuitesTest, TheStyleAttributeBeatsThePresentationAttribute) {
    ZMArtHandle art = ArtNamed("styleWins");
    EXPECT_EQ(Mode(art), ZM_BLEND_MULTIPLY);  // not the attribute's screen
    EXPECT_DOUBLE_EQ(Opacity(art), 0.6);      // not the attribute's 0.2
    EXPECT_FALSE(NormalOpaque(art));
}

TEST_F(SvgBlendThroughSuitesTest, PresentationAttributesAloneSetTheBlend) {
    ZMArtHandle art = ArtNamed("attributes");
    EXPECT_EQ(Mode(art), ZM_BLEND_DARKEN);
    EXPECT_DOUBLE_EQ(Opacity(art), 0.4);
}

TEST_F(SvgBlendThroughSuitesTest, OpacityIsTheObjectsTimesTheFainterOfFillAndStroke) {
    ZMArtHandle art = ArtNamed("fainterFill");
    EXPECT_EQ(Mode(art), ZM_BLEND_NORMAL);
    EXPECT_DOUBLE_EQ(Opacity(art), 0.25);  // 0.5 * min(0.5, 0.8)
    EXPECT_FALSE(NormalOpaque(art));
}

TEST_F(SvgBlendThroughSuitesTest, ArtWithoutBlendSettingsIsNormalAndOpaque) {
    ZMArtHandle art = ArtNamed("opaque");
    EXPECT_EQ(Mode(art), ZM_BLEND_NORMAL);
    EXPECT_DOUBLE_EQ(Opacity(art), 1);
    EXPECT_TRUE(NormalOpaque(art));
}

TEST_F(SvgBlendThroughSuitesTest, TheArtsStyleCarriesTheSameBlend) {
    ZMArtStyleHandle style = ArtStyleOf(ArtNamed("styleWins"));
    ZMBlendingMode mode = -1;
    ASSERT_EQ(blends->GetStyleBlendingMode(style, &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_MULTIPLY);
    double opacity = -1;
    ASSERT_EQ(blends->GetStyleOpacity(style, &opacity), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(opacity, 0.6);
}

TEST_F(SvgBlendThroughSuitesTest, TheParsedStylesBlendDictionaryHoldsModeAndOpacity) {
    const ZMArtStyleParserSuite* parsers = nullptr;
    const ZMDictionarySuite* dictionaries = nullptr;
    Acquire(ZM_ART_STYLE_PARSER_SUITE_NAME, ZM_ART_STYLE_PARSER_SUITE_VERSION, parsers);
    Acquire(ZM_DICTIONARY_SUITE_NAME, ZM_DICTIONARY_SUITE_VERSION, dictionaries);
    ZMStyleParser parser = nullptr;
    ASSERT_EQ(parsers->NewParser(&parser), ZM_ERR_NONE);
    ASSERT_EQ(parsers->ParseStyle(parser, ArtStyleOf(ArtNamed("styleWins"))), ZM_ERR_NONE);
    ZMDictionaryRef blend = nullptr;
    ASSERT_EQ(parsers->GetBlendDictionary(parser, &blend), ZM_ERR_NONE);
    ZMDictKey modeKey = nullptr, opacityKey = nullptr;
    ASSERT_EQ(dictionaries->Key("Mode", &modeKey), ZM_ERR_NONE);
    ASSERT_EQ(dictionaries->Key("Opacity", &opacityKey), ZM_ERR_NONE);
    int32_t mode = -1;
    double opacity = -1;
    EXPECT_EQ(dictionaries->GetIntegerEntry(blend, modeKey, &mode), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->GetRealEntry(blend, opacityKey, &opacity), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_MULTIPLY);
    EXPECT_DOUBLE_EQ(opacity, 0.6);
    EXPECT_EQ(dictionaries->Release(blend), ZM_ERR_NONE);
    EXPECT_EQ(parsers->DisposeParser(parser), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(parser), 0);  // the parser is gone
}

// structure.svg: "masked" carries an opacity mask of one half-black CMYK rect.
class SvgMaskThroughSuitesTest : public SvgPaintThroughSuitesTest {
protected:
    void SetUp() override {
        SvgPaintThroughSuitesTest::SetUp();
        Acquire(ZM_MASK_SUITE_NAME, ZM_MASK_SUITE_VERSION, masks);
        Import("structure.svg");
    }

    const ZMMaskSuite* masks = nullptr;
};

TEST_F(SvgMaskThroughSuitesTest, TheMaskArtIsAGroupOutsideTheLayersHoldingTheMasksContent) {
    ZMMaskHandle mask = nullptr;
    ASSERT_EQ(masks->GetMask(ArtNamed("masked"), &mask), ZM_ERR_NONE);
    ASSERT_NE(mask, nullptr);
    ZMArtHandle group = nullptr;
    ASSERT_EQ(masks->GetMaskArt(mask, &group), ZM_ERR_NONE);
    EXPECT_EQ(TypeOf(group), ZM_ART_GROUP);
    EXPECT_EQ(Parent(group), nullptr);
    ZMArtHandle rect = FirstChild(group);
    EXPECT_EQ(TypeOf(rect), ZM_ART_PATH);
    EXPECT_EQ(Sibling(rect), nullptr);
    ZMPathStyle style = StyleOf(rect);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_FOUR);
    EXPECT_DOUBLE_EQ(style.fill.color.c.four.black, 0.5);
    EXPECT_EQ(masks->ReleaseMask(mask), ZM_ERR_NONE);
}

TEST_F(SvgMaskThroughSuitesTest, EachReferenceIsGivenBack) {
    ZMMaskHandle mask = nullptr;
    ASSERT_EQ(masks->GetMask(ArtNamed("masked"), &mask), ZM_ERR_NONE);
    ASSERT_EQ(masks->AddRefMask(mask), ZM_ERR_NONE);
    EXPECT_EQ(masks->ReleaseMask(mask), ZM_ERR_NONE);
    EXPECT_FALSE(runtime.masks.All().empty());  // one reference is still held
    EXPECT_EQ(masks->ReleaseMask(mask), ZM_ERR_NONE);
}

TEST_F(SvgMaskThroughSuitesTest, ArtWithoutAMaskGivesANullHandle) {
    ZMMaskHandle mask = ForeignHandle<ZMMaskHandle>();
    ASSERT_EQ(masks->GetMask(ArtNamed("clipped"), &mask), ZM_ERR_NONE);
    EXPECT_EQ(mask, nullptr);
}

// resources.svg: graphic styles from a style sheet, a brushed stroke and a mesh.
class SvgStylesThroughSuitesTest : public SvgPaintThroughSuitesTest {
protected:
    void SetUp() override {
        SvgPaintThroughSuitesTest::SetUp();
        Import("resources.svg");
    }

    // The style's name and whether it is anonymous.
    std::pair<std::string, bool> NameOfStyle(ZMArtStyleHandle style) {
        ZMUnicodeString name = String("not written");
        ZMBool anonymous = -1;
        EXPECT_EQ(artStyles->GetArtStyleName(style, name, &anonymous), ZM_ERR_NONE);
        return {Text(name), anonymous == 1};
    }

    int16_t KindOfStyle(ZMArtStyleHandle style) {
        int16_t kind = -1;
        EXPECT_EQ(artStyles->GetArtStyleKind(style, &kind), ZM_ERR_NONE);
        return kind;
    }
};

TEST_F(SvgStylesThroughSuitesTest, TheFirstClassTheSheetDefinesNamesTheGraphicStyle) {
    // class="Other Warm Cool": "Other" is in no sheet, so "Warm" names the style.
    ZMArtStyleHandle styled = ArtStyleOf(ArtNamed("styled"));
    EXPECT_EQ(NameOfStyle(styled), (std::pair<std::string, bool>{"Warm", false}));
    EXPECT_EQ(KindOfStyle(styled), ZM_ART_STYLE_PLAIN);
    // Both classes paint: .Warm fills #ff8000, .Cool strokes blue.
    ZMPathStyle paint{};
    ASSERT_EQ(artStyles->GetPathStyle(styled, &paint), ZM_ERR_NONE);
    EXPECT_EQ(paint.fill.color.kind, ZM_COLOR_THREE);
    EXPECT_DOUBLE_EQ(paint.fill.color.c.three.green, 128 / 255.0);
    EXPECT_EQ(paint.strokePaint, 1);
    EXPECT_EQ(paint.stroke.color.c.three.blue, 1);
}

TEST_F(SvgStylesThroughSuitesTest, AnExplicitGraphicStyleBeatsTheClass) {
    EXPECT_EQ(NameOfStyle(ArtStyleOf(ArtNamed("overridden"))),
              (std::pair<std::string, bool>{"Heading", false}));
}

TEST_F(SvgStylesThroughSuitesTest, ArtWithoutAClassHasAnAnonymousStyle) {
    EXPECT_EQ(NameOfStyle(ArtStyleOf(ArtNamed("plain"))), (std::pair<std::string, bool>{"", true}));
}

TEST_F(SvgStylesThroughSuitesTest, ABrushOnTheStrokeIsFoundThroughTheParsedStylesEffect) {
    const ZMArtStyleParserSuite* parsers = nullptr;
    const ZMBrushMgrSuite* brushes = nullptr;
    Acquire(ZM_ART_STYLE_PARSER_SUITE_NAME, ZM_ART_STYLE_PARSER_SUITE_VERSION, parsers);
    Acquire(ZM_BRUSH_MGR_SUITE_NAME, ZM_BRUSH_MGR_SUITE_VERSION, brushes);
    ZMArtStyleHandle style = ArtStyleOf(ArtNamed("brushed"));
    EXPECT_EQ(KindOfStyle(style), ZM_ART_STYLE_ACTIVE);  // the brush changes the stroke
    ZMStyleParser parser = nullptr;
    ASSERT_EQ(parsers->NewParser(&parser), ZM_ERR_NONE);
    ASSERT_EQ(parsers->ParseStyle(parser, style), ZM_ERR_NONE);
    // A path without a fill attribute is filled black, so the fill field comes first.
    int32_t fields = 0;
    ASSERT_EQ(parsers->CountPaintFields(parser, &fields), ZM_ERR_NONE);
    ASSERT_EQ(fields, 2);
    ZMParserPaintField fill = nullptr, stroke = nullptr;
    ASSERT_EQ(parsers->GetNthPaintField(parser, 0, &fill), ZM_ERR_NONE);
    ASSERT_EQ(parsers->GetNthPaintField(parser, 1, &stroke), ZM_ERR_NONE);
    ZMBool isStroke = 0;
    ASSERT_EQ(parsers->IsStroke(stroke, &isStroke), ZM_ERR_NONE);
    EXPECT_EQ(isStroke, 1);
    int32_t effects = -1;
    ASSERT_EQ(parsers->CountLiveEffects(fill, &effects), ZM_ERR_NONE);
    EXPECT_EQ(effects, 0);
    ASSERT_EQ(parsers->CountLiveEffects(stroke, &effects), ZM_ERR_NONE);
    ASSERT_EQ(effects, 1);  // the brush
    ZMLiveEffectHandle effect = nullptr;
    ASSERT_EQ(parsers->GetLiveEffect(stroke, 0, &effect), ZM_ERR_NONE);
    ZMBrushHandle brush = nullptr;
    ASSERT_EQ(brushes->GetBrushForLiveEffect(effect, &brush), ZM_ERR_NONE);
    // The document's one brush, "Charcoal", of the type written in the file.
    int32_t count = 0;
    ASSERT_EQ(brushes->CountBrushes(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 1);
    ZMBrushHandle first = nullptr;
    ASSERT_EQ(brushes->GetNthBrush(0, &first), ZM_ERR_NONE);
    EXPECT_EQ(brush, first);
    ZMUnicodeString name = String();
    ASSERT_EQ(brushes->GetBrushName(brush, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Charcoal");
    ZMBrushTypeHandle type = nullptr;
    ASSERT_EQ(brushes->GetBrushType(brush, &type), ZM_ERR_NONE);
    const char* title = nullptr;
    ASSERT_EQ(brushes->GetBrushTypeTitle(type, &title), ZM_ERR_NONE);
    EXPECT_STREQ(title, "&Art Brush");
    EXPECT_EQ(parsers->DisposeParser(parser), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(parser), 0);
}

// Collects each colour the mesh enumeration reports.
ZMErr ZM_API CollectColor(void* data, const ZMColor* color) {
    static_cast<std::vector<ZMColor>*>(data)->push_back(*color);
    return ZM_ERR_NONE;
}

ZMErr ZM_API StopAtFirstColor(void* data, const ZMColor* color) {
    CollectColor(data, color);
    return ZM_ERR_CANT;  // any non-zero result ends the enumeration
}

TEST_F(SvgStylesThroughSuitesTest, AMeshReportsTheColoursOfItsStopsInOrder) {
    const ZMMeshSuite* meshes = nullptr;
    Acquire(ZM_MESH_SUITE_NAME, ZM_MESH_SUITE_VERSION, meshes);
    ZMArtHandle mesh = ArtNamed("meshed");
    int32_t count = 0;
    ASSERT_EQ(meshes->CountMeshColors(mesh, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    std::vector<ZMColor> colors;
    ASSERT_EQ(meshes->ForEachMeshColor(mesh, CollectColor, &colors), ZM_ERR_NONE);
    ASSERT_EQ(colors.size(), 2u);
    // red, then device-cmyk(0 0 0 1).
    EXPECT_EQ(colors[0].kind, ZM_COLOR_THREE);
    EXPECT_EQ(colors[0].c.three.red, 1);
    EXPECT_EQ(colors[0].c.three.green, 0);
    EXPECT_EQ(colors[1].kind, ZM_COLOR_FOUR);
    EXPECT_EQ(colors[1].c.four.black, 1);
    colors.clear();
    EXPECT_EQ(meshes->ForEachMeshColor(mesh, StopAtFirstColor, &colors), ZM_ERR_CANT);
    EXPECT_EQ(colors.size(), 1u);
}

}  // namespace
}  // namespace zm::test
