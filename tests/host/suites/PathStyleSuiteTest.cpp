#include <gtest/gtest.h>
#include <zelmora/ZMPathStyleSuite.h>

#include <document/Resources.hpp>
#include <memory>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;
using document::Color;
using document::ColorKind;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

class PathStyleSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_PATH_STYLE_SUITE_NAME, ZM_PATH_STYLE_SUITE_VERSION, styles);
        auto built = std::make_unique<document::Document>();
        layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        path = &zm::test::AddRectangle(*layer, 0, 0, 10, 10, "path");
        doc = &runtime.documents.Add(std::move(built));
    }

    ZMPathStyle Style(const Art& art) {
        ZMPathStyle style{};
        EXPECT_EQ(styles->GetPathStyle(H(art), &style), ZM_ERR_NONE);
        return style;
    }

    const ZMPathStyleSuite* styles = nullptr;
    document::Document* doc = nullptr;
    Art* layer = nullptr;
    Art* path = nullptr;
};

TEST_F(PathStyleSuiteTest, AnRgbFillAndACmykStrokeKeepTheirComponents) {
    path->style.fillPaint = true;
    path->style.fill = Color::Rgb(1, 0.5, 0.25);
    path->style.strokePaint = true;
    path->style.stroke.kind = ColorKind::Cmyk;
    path->style.stroke.cmyk = {0.1, 0.2, 0.3, 0.4};
    path->style.strokeWidth = 2.5;
    ZMPathStyle style = Style(*path);
    EXPECT_EQ(style.fillPaint, 1);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(style.fill.color.c.three.red, 1);
    EXPECT_EQ(style.fill.color.c.three.green, 0.5);
    EXPECT_EQ(style.fill.color.c.three.blue, 0.25);
    EXPECT_EQ(style.strokePaint, 1);
    EXPECT_EQ(style.stroke.color.kind, ZM_COLOR_FOUR);
    EXPECT_EQ(style.stroke.color.c.four.cyan, 0.1);
    EXPECT_EQ(style.stroke.color.c.four.black, 0.4);
    EXPECT_EQ(style.stroke.width, 2.5);
    EXPECT_EQ(style.fill.overprint, 0);
}

TEST_F(PathStyleSuiteTest, GrayIsTheAmountOfBlack) {
    path->style.fillPaint = true;
    path->style.fill.kind = ColorKind::Gray;
    path->style.fill.gray = 0.75;
    ZMPathStyle style = Style(*path);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_GRAY);
    EXPECT_EQ(style.fill.color.c.gray.gray, 0.75);
}

TEST_F(PathStyleSuiteTest, ResourceColoursAreNamedByTheDocumentsObjects) {
    auto& swatch = doc->swatches.emplace_back(std::make_unique<document::CustomColor>());
    auto& gradient = doc->gradients.emplace_back(std::make_unique<document::Gradient>());
    path->style.fillPaint = true;
    path->style.fill.kind = ColorKind::Custom;
    path->style.fill.custom = swatch.get();
    path->style.fill.tint = 0.3;
    path->style.strokePaint = true;
    path->style.stroke.kind = ColorKind::Gradient;
    path->style.stroke.gradient = gradient.get();
    ZMPathStyle style = Style(*path);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_CUSTOM);
    EXPECT_EQ(reinterpret_cast<void*>(style.fill.color.c.custom.color), swatch.get());
    EXPECT_EQ(style.fill.color.c.custom.tint, 0.3);
    EXPECT_EQ(style.stroke.color.kind, ZM_COLOR_GRADIENT);
    EXPECT_EQ(reinterpret_cast<void*>(style.stroke.color.c.gradient), gradient.get());
}

TEST_F(PathStyleSuiteTest, APatternFillIsNamedByItsPattern) {
    auto& pattern = doc->patterns.emplace_back(std::make_unique<document::Pattern>());
    path->style.fillPaint = true;
    path->style.fill.kind = ColorKind::Pattern;
    path->style.fill.pattern = pattern.get();
    ZMPathStyle style = Style(*path);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_PATTERN);
    EXPECT_EQ(reinterpret_cast<void*>(style.fill.color.c.pattern), pattern.get());
}

TEST_F(PathStyleSuiteTest, TheClipAndEvenOddFlagsAreReported) {
    path->style.clip = true;
    path->style.evenOdd = true;
    ZMPathStyle style = Style(*path);
    EXPECT_EQ(style.clip, 1);
    EXPECT_EQ(style.evenOdd, 1);
    EXPECT_EQ(Style(zm::test::AddRectangle(*layer, 0, 0, 1, 1)).clip, 0);
}

TEST_F(PathStyleSuiteTest, AGroupPaintsNothingOfItsOwn) {
    ZMPathStyle style = Style(zm::test::AddArt(*layer, ArtType::Group, "group"));
    EXPECT_EQ(style.fillPaint, 0);
    EXPECT_EQ(style.strokePaint, 0);
    EXPECT_EQ(style.fill.color.kind, ZM_COLOR_NONE);
}

TEST_F(PathStyleSuiteTest, BadHandlesAndMissingDocumentsAreReported) {
    ZMPathStyle style{};
    EXPECT_EQ(styles->GetPathStyle(nullptr, &style), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetPathStyle(zm::test::ForeignHandle<ZMArtHandle>(), &style),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetPathStyle(H(*path), nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMArtHandle handle = H(*path);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(styles->GetPathStyle(handle, &style), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
