#include "host/suites/TextEngineFixture.hpp"

#include <suites/TextEngineObjects.hpp>

#include <gtest/gtest.h>

#include <cstring>

namespace zm::host {
namespace {

// The paint suites need no document: a paint is made from a fill style and read back.
class KRXPaintSuitesTest : public zm::test::TextEngineFixture {
protected:
    KRXApplicationPaintRef Paint(const ZMFillStyle& style) {
        KRXApplicationPaintRef paint = nullptr;
        EXPECT_EQ(paintConversion->CreateKRXPaint(&style, &paint), ZM_ERR_NONE);
        return paint;
    }

    ZMFillStyle StyleOf(KRXApplicationPaintRef paint) {
        ZMFillStyle style{};
        EXPECT_EQ(paintConversion->GetZMFillStyle(paint, &style), ZM_ERR_NONE);
        return style;
    }

    static ZMFillStyle Fill(const ZMColor& color, ZMBool overprint = 0) {
        ZMFillStyle style{};
        style.color = color;
        style.overprint = overprint;
        return style;
    }
};

TEST_F(KRXPaintSuitesTest, APaintGivesBackTheFillStyleItWasMadeOf) {
    KRXApplicationPaintRef paint = Paint(Fill(zm::test::Rgb(0.25, 0.5, 1)));
    zm::test::ExpectRgb(StyleOf(paint), 0.25, 0.5, 1);
    EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
}

TEST_F(KRXPaintSuitesTest, EveryColourKindMakesAPaint) {
    ZMColor gray{};
    gray.kind = ZM_COLOR_GRAY;
    gray.c.gray.gray = 0.4;
    ZMColor cmyk{};
    cmyk.kind = ZM_COLOR_FOUR;
    cmyk.c.four = {0.1, 0.2, 0.3, 0.4};
    ZMColor custom{};
    custom.kind = ZM_COLOR_CUSTOM;
    custom.c.custom = {zm::test::ForeignHandle<ZMCustomColorHandle>(), 0.5};
    ZMColor pattern{};
    pattern.kind = ZM_COLOR_PATTERN;
    pattern.c.pattern = zm::test::ForeignHandle<ZMPatternHandle>();
    ZMColor gradient{};
    gradient.kind = ZM_COLOR_GRADIENT;
    gradient.c.gradient = zm::test::ForeignHandle<ZMGradientHandle>();

    for (const ZMColor& color : {gray, cmyk, custom, pattern, gradient}) {
        SCOPED_TRACE(color.kind);
        KRXApplicationPaintRef paint = Paint(Fill(color));
        ZMFillStyle style = StyleOf(paint);
        EXPECT_EQ(style.color.kind, color.kind);
        // The paint holds a copy of the colour; the union's bytes come back as they went in.
        EXPECT_EQ(std::memcmp(&style.color.c, &color.c, sizeof color.c), 0);
        EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
    }
}

TEST_F(KRXPaintSuitesTest, APaintThatOverprintsSaysSo) {
    KRXApplicationPaintRef paint = Paint(Fill(zm::test::Rgb(0, 0, 0), 1));
    EXPECT_EQ(StyleOf(paint).overprint, 1);
    EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
}

TEST_F(KRXPaintSuitesTest, NoColourOrAKindOutsideTheKindsIsABadArgument) {
    KRXApplicationPaintRef paint = nullptr;
    for (int16_t kind : {int16_t{ZM_COLOR_NONE}, int16_t{7}, int16_t{-1}}) {
        ZMFillStyle style = Fill(zm::test::Rgb(0, 0, 0));
        style.color.kind = kind;
        EXPECT_EQ(paintConversion->CreateKRXPaint(&style, &paint), ZM_ERR_BAD_ARGUMENT) << kind;
    }
    ZMFillStyle style = Fill(zm::test::Rgb(0, 0, 0));
    EXPECT_EQ(paintConversion->CreateKRXPaint(nullptr, &paint), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paintConversion->CreateKRXPaint(&style, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paint, nullptr);
}

TEST_F(KRXPaintSuitesTest, ReleaseGivesBackOneReferenceAtATime) {
    KRXApplicationPaintRef paint = Paint(Fill(zm::test::Rgb(1, 1, 1)));
    EXPECT_EQ(paints->AddRef(paint), ZM_ERR_NONE);
    EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<ApplicationPaintObject>(), 1u);
    EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<ApplicationPaintObject>(), 0u);

    ZMFillStyle style = Fill(zm::test::Rgb(0.5, 0.5, 0.5));
    EXPECT_EQ(paints->Release(paint), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paints->AddRef(paint), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paintConversion->GetZMFillStyle(paint, &style), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(style.color.c.three.red, 0.5);  // untouched
}

TEST_F(KRXPaintSuitesTest, BadReferencesAndMissingOutputsAreBadArguments) {
    auto foreign = zm::test::ForeignHandle<KRXApplicationPaintRef>();
    ZMFillStyle style{};
    EXPECT_EQ(paints->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paints->Release(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paintConversion->GetZMFillStyle(foreign, &style), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paintConversion->GetZMFillStyle(nullptr, &style), ZM_ERR_BAD_ARGUMENT);
    KRXApplicationPaintRef paint = Paint(Fill(zm::test::Rgb(1, 0, 0)));
    EXPECT_EQ(paintConversion->GetZMFillStyle(paint, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paints->Release(paint), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
