#include <importers/svg/SvgColor.hpp>
#include <importers/svg/SvgPaint.hpp>

#include <gtest/gtest.h>

#include <array>

namespace zm::host::svg {
namespace {

using document::ColorKind;

std::array<double, 3> Rgb(const char* text) {
    auto parsed = ParseColor(text);
    EXPECT_TRUE(parsed) << text;
    if (!parsed) return {-1, -1, -1};
    EXPECT_EQ(parsed->color.kind, ColorKind::Rgb) << text;
    return parsed->color.rgb;
}

void ExpectRgb(const char* text, double r, double g, double b) {
    auto rgb = Rgb(text);
    EXPECT_NEAR(rgb[0], r, 1e-9) << text;
    EXPECT_NEAR(rgb[1], g, 1e-9) << text;
    EXPECT_NEAR(rgb[2], b, 1e-9) << text;
}

TEST(SvgColorTest, HexForms) {
    ExpectRgb("#f00", 1, 0, 0);
    ExpectRgb("#FF8000", 1, 128 / 255.0, 0);
    EXPECT_NEAR(ParseColor("#0000ff80")->alpha, 128 / 255.0, 1e-12);
    EXPECT_NEAR(ParseColor("#1234")->alpha, 0x44 / 255.0, 1e-12);  // short alpha digit doubled
    EXPECT_FALSE(ParseColor("#12345"));
    EXPECT_FALSE(ParseColor("#ggg"));
}

TEST(SvgColorTest, RgbFunctionsTakeNumbersPercentagesAndAlpha) {
    ExpectRgb("rgb(255, 0, 0)", 1, 0, 0);
    ExpectRgb("rgb(100%, 50%, 0%)", 1, 0.5, 0);
    ExpectRgb("rgb(300, -5, 0)", 1, 0, 0);  // clamped
    EXPECT_DOUBLE_EQ(ParseColor("rgba(0,0,255,0.25)")->alpha, 0.25);
    EXPECT_DOUBLE_EQ(ParseColor("rgb(0 128 255 / 50%)")->alpha, 0.5);
    EXPECT_FALSE(ParseColor("rgb(1,2)"));
}

TEST(SvgColorTest, HslFunctions) {
    ExpectRgb("hsl(120, 100%, 50%)", 0, 1, 0);  // pure green
    ExpectRgb("hsl(0, 100%, 25%)", 0.5, 0, 0);  // dark red: half of full red
    ExpectRgb("hsla(240deg, 100%, 50%, 0.5)", 0, 0, 1);
}

TEST(SvgColorTest, NamedColoursIgnoreCase) {
    ExpectRgb("rebeccapurple", 0x66 / 255.0, 0x33 / 255.0, 0x99 / 255.0);
    ExpectRgb("DarkOliveGreen", 0x55 / 255.0, 0x6b / 255.0, 0x2f / 255.0);
    ExpectRgb("yellowgreen", 0x9a / 255.0, 0xcd / 255.0, 0x32 / 255.0);  // last of the list
    ExpectRgb("aliceblue", 0xf0 / 255.0, 0xf8 / 255.0, 1);               // first of the list
    EXPECT_FALSE(ParseColor("notacolor"));
}

TEST(SvgColorTest, TransparentAndCurrentColor) {
    EXPECT_EQ(ParseColor("transparent")->alpha, 0);
    EXPECT_TRUE(ParseColor("currentColor")->currentColor);
}

TEST(SvgColorTest, DeviceCmykIsACmykColour) {
    for (const char* text : {"device-cmyk(0.1 0.2 0.3 0.4)", "device-cmyk(10%, 20%, 30%, 40%)"}) {
        auto parsed = ParseColor(text);
        ASSERT_TRUE(parsed) << text;
        EXPECT_EQ(parsed->color.kind, ColorKind::Cmyk);
        EXPECT_NEAR(parsed->color.cmyk[0], 0.1, 1e-12);
        EXPECT_NEAR(parsed->color.cmyk[3], 0.4, 1e-12);
    }
}

TEST(SvgColorTest, DeviceGrayKeepsTheAmountOfBlack) {
    // 0.25 is a dark grey: a quarter of the way from black to white, 75 % black.
    auto parsed = ParseColor("device-gray(0.25)");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->color.kind, ColorKind::Gray);
    EXPECT_DOUBLE_EQ(parsed->color.gray, 0.75);
}

TEST(SvgColorTest, LabColours) {
    auto lab = ParseLab("lab(50 20 -30)");
    ASSERT_TRUE(lab);
    EXPECT_EQ(*lab, (std::array<double, 3>{50, 20, -30}));
    EXPECT_FALSE(ParseLab("rgb(1,2,3)"));
}

TEST(SvgPaintTest, NoneColourAndCurrentColor) {
    EXPECT_EQ(ParsePaint("none")->kind, PaintValue::Kind::None);
    EXPECT_EQ(ParsePaint("red")->kind, PaintValue::Kind::Color);
    EXPECT_EQ(ParsePaint("currentColor")->kind, PaintValue::Kind::CurrentColor);
    EXPECT_FALSE(ParsePaint("bogus"));
}

TEST(SvgPaintTest, UrlWithAndWithoutFallback) {
    auto plain = ParsePaint("url(#g1)");
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->kind, PaintValue::Kind::Url);
    EXPECT_EQ(plain->url, "g1");
    EXPECT_EQ(plain->fallbackKind, PaintValue::Kind::None);

    auto withColour = ParsePaint("url(#g1) #00ff00");
    ASSERT_TRUE(withColour);
    EXPECT_EQ(withColour->fallbackKind, PaintValue::Kind::Color);
    EXPECT_EQ(withColour->fallbackColor.color.rgb[1], 1);

    auto quoted = ParsePaint("url('#g2') currentColor");
    ASSERT_TRUE(quoted);
    EXPECT_EQ(quoted->url, "g2");
    EXPECT_EQ(quoted->fallbackKind, PaintValue::Kind::CurrentColor);

    EXPECT_FALSE(ParsePaint("url(other.svg#x)"));  // not a reference into this document
}

}  // namespace
}  // namespace zm::host::svg
