#include "SvgFixtures.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace zm::test {
namespace {

using host::document::ColorKind;
using host::document::CustomColorKind;
using host::document::Document;
using host::document::GradientType;

class SvgPaintImportTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("paint.svg");
};

TEST_F(SvgPaintImportTest, AShapeWithoutFillIsFilledBlackAndNotStroked) {
    const auto& style = ArtById(*document, "default").style;
    EXPECT_TRUE(style.fillPaint);
    EXPECT_EQ(style.fill.kind, ColorKind::Rgb);
    EXPECT_EQ(style.fill.rgb, (std::array<double, 3>{0, 0, 0}));
    EXPECT_FALSE(style.strokePaint);
}

TEST_F(SvgPaintImportTest, PaintIsInheritedFromGroupsWhichPaintNothingThemselves) {
    const auto& group = ArtById(*document, "group");
    EXPECT_FALSE(group.style.fillPaint);
    EXPECT_FALSE(group.style.strokePaint);
    EXPECT_EQ(group.blend.opacity, 0.5);
    const auto& inherits = ArtById(*document, "inherits").style;
    EXPECT_EQ(inherits.fill.rgb, (std::array<double, 3>{1, 0, 0}));
    EXPECT_TRUE(inherits.strokePaint);
    EXPECT_EQ(inherits.stroke.rgb, (std::array<double, 3>{0, 0, 1}));
    EXPECT_EQ(inherits.strokeWidth, 1.5);  // 2 px
    EXPECT_FALSE(ArtById(*document, "overrides").style.fillPaint);
    // Opacity is not inherited: the group holds it.
    EXPECT_EQ(ArtById(*document, "inherits").blend.opacity, 1);
}

TEST_F(SvgPaintImportTest, DeviceColoursKeepTheirKinds) {
    const auto& cmyk = ArtById(*document, "cmyk").style.fill;
    EXPECT_EQ(cmyk.kind, ColorKind::Cmyk);
    EXPECT_DOUBLE_EQ(cmyk.cmyk[3], 0.4);
    const auto& gray = ArtById(*document, "gray").style.fill;
    EXPECT_EQ(gray.kind, ColorKind::Gray);
    EXPECT_DOUBLE_EQ(gray.gray, 0.75);  // device-gray(0.25) is 75 % black
}

TEST_F(SvgPaintImportTest, CurrentColorTakesTheInheritedColour) {
    EXPECT_EQ(ArtById(*document, "current").style.fill.rgb, (std::array<double, 3>{0, 1, 0}));
}

TEST_F(SvgPaintImportTest, AMissingTargetUsesTheFallbackElseNothing) {
    const auto& fallback = ArtById(*document, "fallback").style;
    EXPECT_TRUE(fallback.fillPaint);
    EXPECT_EQ(fallback.fill.rgb, (std::array<double, 3>{0, 0, 1}));
    EXPECT_FALSE(ArtById(*document, "missing").style.fillPaint);
}

TEST_F(SvgPaintImportTest, OpacitiesAndBlendModeMakeTheBlendStyle) {
    const auto& blend = ArtById(*document, "translucent").blend;
    EXPECT_EQ(blend.fillOpacity, 0.25);  // fill-opacity 0.5 times the colour's alpha 0.5
    EXPECT_EQ(blend.strokeOpacity, 0.25);
    EXPECT_EQ(blend.mode, host::document::BlendMode::Multiply);
    const auto& css = ArtById(*document, "cssBlend").blend;
    EXPECT_EQ(css.mode, host::document::BlendMode::Screen);
    EXPECT_EQ(css.opacity, 0.5);
}

class SvgResourcesTest : public ::testing::Test {
protected:
    std::unique_ptr<Document> document = OpenSvgFixture("resources.svg");
};

TEST_F(SvgResourcesTest, SwatchesInDocumentOrderWithTheirModels) {
    ASSERT_EQ(document->swatches.size(), 5u);
    const auto& spot = *document->swatches[0];
    EXPECT_EQ(spot.name, "Warm Red");
    EXPECT_EQ(spot.kind, CustomColorKind::Cmyk);
    EXPECT_TRUE(spot.spot);
    EXPECT_EQ(spot.cmyk, (std::array<double, 4>{0, 0.9, 0.85, 0}));
    const auto& lab = *document->swatches[1];
    EXPECT_EQ(lab.kind, CustomColorKind::Lab);
    EXPECT_EQ(lab.lab, (std::array<double, 3>{80, 5, 20}));
    EXPECT_FALSE(lab.spot);
    EXPECT_EQ(document->swatches[2]->name, "Ocean");  // no name attribute: zm:name
    EXPECT_EQ(document->swatches[2]->kind, CustomColorKind::Rgb);
}

TEST_F(SvgResourcesTest, InkscapeSolidSwatchesAreProcessColours) {
    const auto& ink = *document->swatches[3];
    EXPECT_EQ(ink.name, "Ink Blue");
    EXPECT_EQ(ink.kind, CustomColorKind::Rgb);
    EXPECT_EQ(ink.rgb, (std::array<double, 3>{0, 0, 1}));
    EXPECT_FALSE(ink.spot);
    const auto& osb = *document->swatches[4];
    EXPECT_EQ(osb.name, "osbSwatch");  // named by its id
    EXPECT_EQ(osb.kind, CustomColorKind::Cmyk);
}

TEST_F(SvgResourcesTest, SwatchPaintIsACustomColourAtFullTint) {
    const auto& spot = ArtById(*document, "spotFill").style.fill;
    EXPECT_EQ(spot.kind, ColorKind::Custom);
    EXPECT_EQ(spot.custom, document->swatches[0].get());
    EXPECT_EQ(spot.tint, 0);
    // Directly and through a gradient that only points at the swatch.
    EXPECT_EQ(ArtById(*document, "inkDirect").style.fill.custom, document->swatches[3].get());
    EXPECT_EQ(ArtById(*document, "inkFill").style.fill.custom, document->swatches[3].get());
}

TEST_F(SvgResourcesTest, GradientsTakeNamesTypesAndInheritedStops) {
    // base, derived, loopA, loopB; the swatch alias useInk is no gradient.
    ASSERT_EQ(document->gradients.size(), 4u);
    const auto& base = *document->gradients[0];
    EXPECT_EQ(base.name, "Sky");
    EXPECT_EQ(base.type, GradientType::Linear);
    ASSERT_EQ(base.stops.size(), 3u);
    EXPECT_EQ(base.stops[1].offset, 0.5);
    EXPECT_EQ(base.stops[1].color.kind, ColorKind::Custom);
    EXPECT_EQ(base.stops[1].color.custom, document->swatches[0].get());
    EXPECT_EQ(base.stops[2].offset, 0.5);  // 0.3 comes after 0.5: raised to it
    EXPECT_EQ(base.stops[2].opacity, 0.5);
    const auto& derived = *document->gradients[1];
    EXPECT_EQ(derived.name, "Derived");
    EXPECT_EQ(derived.type, GradientType::Radial);
    EXPECT_EQ(derived.stops.size(), 3u);  // from base through href
}

TEST_F(SvgResourcesTest, CyclicHrefsEndWithoutStops) {
    EXPECT_EQ(document->gradients[2]->name, "loopA");
    EXPECT_TRUE(document->gradients[2]->stops.empty());
    EXPECT_TRUE(document->gradients[3]->stops.empty());
}

TEST_F(SvgResourcesTest, GradientAndPatternPaint) {
    const auto& style = ArtById(*document, "gradientFill").style;
    EXPECT_EQ(style.fill.kind, ColorKind::Gradient);
    EXPECT_EQ(style.fill.gradient, document->gradients[1].get());
    EXPECT_EQ(style.stroke.kind, ColorKind::Pattern);
    EXPECT_EQ(style.stroke.pattern, document->patterns[1].get());
}

TEST_F(SvgResourcesTest, PatternsAreNamedAndHoldTheirContent) {
    ASSERT_EQ(document->patterns.size(), 2u);
    EXPECT_EQ(document->patterns[0]->name, "dots");
    EXPECT_EQ(document->patterns[1]->name, "More Dots");
    for (const auto& pattern : document->patterns) {
        ASSERT_TRUE(pattern->art);
        ASSERT_EQ(pattern->art->Children().size(), 1u);  // the circle, shared through href
        EXPECT_EQ(TypeCode(*pattern->art->Children()[0]), 2);
    }
}

TEST_F(SvgResourcesTest, TheFirstClassASheetDefinesIsTheGraphicStyle) {
    ASSERT_NE(ArtById(*document, "styled").graphicStyle, nullptr);
    EXPECT_EQ(ArtById(*document, "styled").graphicStyle->name, "Warm");      // "Other" is undefined
    EXPECT_EQ(ArtById(*document, "styled").style.fill.rgb[1], 128 / 255.0);  // #ff8000
    EXPECT_EQ(ArtById(*document, "overridden").graphicStyle->name, "Heading");
    EXPECT_EQ(ArtById(*document, "plain").graphicStyle, nullptr);
    EXPECT_EQ(document->graphicStyles.size(), 2u);  // one object per name
}

TEST_F(SvgResourcesTest, BrushesGoOnTheStroke) {
    ASSERT_EQ(document->brushes.size(), 1u);
    EXPECT_EQ(document->brushes[0]->name, "Charcoal");
    EXPECT_EQ(document->brushes[0]->typeTitle, "&Art Brush");
    EXPECT_EQ(ArtById(*document, "brushed").style.brush, document->brushes[0].get());
}

TEST_F(SvgResourcesTest, AMeshGradientFillMakesMeshArt) {
    const auto& mesh = ArtById(*document, "meshed");
    EXPECT_EQ(TypeCode(mesh), 11);
    ASSERT_EQ(mesh.meshColors.size(), 2u);
    EXPECT_EQ(mesh.meshColors[0].kind, ColorKind::Rgb);
    EXPECT_EQ(mesh.meshColors[1].kind, ColorKind::Cmyk);
}

}  // namespace
}  // namespace zm::test
