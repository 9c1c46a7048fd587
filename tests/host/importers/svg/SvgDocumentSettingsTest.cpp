#include "SvgFixtures.hpp"

#include <gtest/gtest.h>

#include <string>
#include <variant>

namespace zm::test {
namespace {

using host::ImportSvgText;
using host::document::Document;
using host::document::Rect;
using host::document::RulerUnits;

constexpr double kPointsPerMillimetre = 72 / 25.4;

TEST(SvgDocumentSettingsTest, RootAttributesSetTheDocument) {
    auto document = OpenSvgFixture("settings.svg");
    EXPECT_NEAR(document->setup.width, 210 * kPointsPerMillimetre, 1e-9);
    EXPECT_NEAR(document->setup.height, 297 * kPointsPerMillimetre, 1e-9);
    EXPECT_EQ(document->rulerUnits, RulerUnits::Millimeters);  // the unit of width
    EXPECT_EQ(document->colorModel, host::document::kColorModelCmyk);
    EXPECT_EQ(std::get<bool>(document->dictionary.at(host::document::kPreserveTextEditabilityKey)),
              false);
    EXPECT_EQ(std::get<bool>(document->dictionary.at(host::document::kPaperSimulationKey)), true);
    EXPECT_TRUE(document->setup.showPlacedImages);
    EXPECT_TRUE(document->highlightSubstitutedFonts);
    EXPECT_FALSE(document->highlightSubstitutedGlyphs);
}

TEST(SvgDocumentSettingsTest, ArtboardsInUserUnits) {
    // One user unit is a millimetre. The first is 105 x 148.5 mm at the top-left corner.
    auto document = OpenSvgFixture("settings.svg");
    ASSERT_EQ(document->artboards.size(), 2u);
    double top = 297 * kPointsPerMillimetre;
    const auto& front = document->artboards[0];
    EXPECT_EQ(front.name, "Front");
    EXPECT_NEAR(front.bounds.left, 0, 1e-9);
    EXPECT_NEAR(front.bounds.top, top, 1e-9);
    EXPECT_NEAR(front.bounds.right, 105 * kPointsPerMillimetre, 1e-9);
    EXPECT_NEAR(front.bounds.bottom, top - 148.5 * kPointsPerMillimetre, 1e-9);
    EXPECT_EQ(document->artboards[1].name, "Artboard 2");  // unnamed: by its number
    EXPECT_NEAR(document->artboards[1].bounds.left, 105 * kPointsPerMillimetre, 1e-9);
}

TEST(SvgDocumentSettingsTest, DefaultsWithoutSettings) {
    auto document = ImportSvgText(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="100" height="50"/>)", "d.svg");
    EXPECT_EQ(document->colorModel, host::document::kColorModelRgb);
    EXPECT_EQ(document->rulerUnits, RulerUnits::Pixels);
    EXPECT_TRUE(document->dictionary.empty());  // keys only for attributes present
    EXPECT_FALSE(document->setup.showPlacedImages);
    EXPECT_FALSE(document->highlightSubstitutedFonts);
    ASSERT_EQ(document->artboards.size(), 1u);
    EXPECT_EQ(document->artboards[0].name, "Artboard 1");
    EXPECT_EQ(document->artboards[0].bounds, (Rect{0, 37.5, 75, 0}));  // 100 x 50 px
    EXPECT_FALSE(document->rgbProfile);
    EXPECT_EQ(document->filePath, "d.svg");
}

TEST(SvgDocumentSettingsTest, PreserveTextEditabilityDefaultsToTrueWhenUnreadable) {
    auto document = ImportSvgText(
        R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:zm="https://zelmora.example/ns/1.0"
                zm:preserve-text-editability="maybe" zm:paper-simulation="maybe"/>)",
        "p.svg");
    EXPECT_EQ(std::get<bool>(document->dictionary.at(host::document::kPreserveTextEditabilityKey)),
              true);
    EXPECT_EQ(std::get<bool>(document->dictionary.at(host::document::kPaperSimulationKey)), false);
}

TEST(SvgDocumentSettingsTest, UnitsAttributeBeatsTheWidthsUnitAndUnknownModelsStayUnknown) {
    auto document = ImportSvgText(
        R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:zm="https://zelmora.example/ns/1.0"
                width="10cm" zm:units="pc" zm:color-model="lab"/>)",
        "u.svg");
    EXPECT_EQ(document->rulerUnits, RulerUnits::Picas);
    EXPECT_EQ(document->colorModel, 3);
}

TEST(SvgDocumentSettingsTest, InkscapePagesAndDocumentUnits) {
    auto document = OpenSvgFixture("inkscape-pages.svg");
    EXPECT_EQ(document->rulerUnits, RulerUnits::Millimeters);
    ASSERT_EQ(document->artboards.size(), 2u);
    EXPECT_EQ(document->artboards[0].name, "Cover");
    EXPECT_EQ(document->artboards[0].bounds, (Rect{0, 75, 75, 0}));  // 100 x 100 px
    EXPECT_EQ(document->artboards[1].name, "Artboard 2");
    EXPECT_EQ(document->artboards[1].bounds, (Rect{75, 75, 150, 0}));
}

}  // namespace
}  // namespace zm::test
