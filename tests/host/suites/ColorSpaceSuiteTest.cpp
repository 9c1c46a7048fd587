#include "host/importers/svg/ImportedDocumentFixture.hpp"

#include <zelmora/ZMColorSpaceSuite.h>
#include <zelmora/ZMCustomColorSuite.h>
#include <zelmora/ZMGradientSuite.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace zm::host {
namespace {

using Inks = std::vector<std::string>;
using Spaces = std::vector<ZMColorSpaceHandle>;

const Inks kRgbInks = {"Red", "Green", "Blue"};
const Inks kLabInks = {"L", "a", "b"};
const Inks kCmykInks = {"Cyan", "Magenta", "Yellow", "Black"};

document::Color SwatchColor(document::CustomColor& swatch, double tint) {
    document::Color color;
    color.kind = document::ColorKind::Custom;
    color.custom = &swatch;
    color.tint = tint;
    return color;
}

document::Color KindOnly(document::ColorKind kind) {
    document::Color color;
    color.kind = kind;
    return color;
}

// Documents are built by hand or imported from SVG; either way they are read only through the
// suites, swatches and gradients found by index as a plug-in finds them.
class ColorSpaceSuiteTest : public zm::test::ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_COLOR_SPACE_SUITE_NAME, ZM_COLOR_SPACE_SUITE_VERSION, spaces);
        Acquire(ZM_CUSTOM_COLOR_SUITE_NAME, ZM_CUSTOM_COLOR_SUITE_VERSION, colors);
        Acquire(ZM_GRADIENT_SUITE_NAME, ZM_GRADIENT_SUITE_VERSION, gradients);
    }

    // Swatches: 0 "Warm Red" spot CMYK, 1 "Ocean" process RGB, 2 "Sand" process Lab,
    // 3 "Press Black" process CMYK, 4 "Grün" spot RGB.
    // Gradients: 0 "Mixed", stops Warm Red at 20% tint, an RGB colour, Sand, another RGB colour,
    // Warm Red again; 1 "Empty", no stops; 2 "Plain", stops gray, CMYK, Ocean, a pattern and no
    // paint.
    document::Document& OpenColors() {
        document::Document& document = Open();
        auto add = [&](const char* name, document::CustomColorKind kind, bool spot) {
            auto swatch = std::make_unique<document::CustomColor>();
            swatch->name = name;
            swatch->kind = kind;
            swatch->spot = spot;
            document.swatches.push_back(std::move(swatch));
            return document.swatches.back().get();
        };
        document::CustomColor* warmRed = add("Warm Red", document::CustomColorKind::Cmyk, true);
        document::CustomColor* ocean = add("Ocean", document::CustomColorKind::Rgb, false);
        document::CustomColor* sand = add("Sand", document::CustomColorKind::Lab, false);
        add("Press Black", document::CustomColorKind::Cmyk, false);
        add("Gr\xC3\xBCn", document::CustomColorKind::Rgb, true);

        auto mixed = std::make_unique<document::Gradient>();
        mixed->name = "Mixed";
        mixed->stops = {{0, SwatchColor(*warmRed, 0.2), 1},
                        {0.25, document::Color::Rgb(0.1, 0.2, 0.3), 1},
                        {0.5, SwatchColor(*sand, 0), 1},
                        {0.75, document::Color::Rgb(1, 1, 1), 1},
                        {1, SwatchColor(*warmRed, 0), 1}};
        auto empty = std::make_unique<document::Gradient>();
        empty->name = "Empty";
        auto plain = std::make_unique<document::Gradient>();
        plain->name = "Plain";
        document::Color gray = KindOnly(document::ColorKind::Gray);
        gray.gray = 0.5;
        document::Color cmyk = KindOnly(document::ColorKind::Cmyk);
        cmyk.cmyk = {0.1, 0.2, 0.3, 0.4};
        plain->stops = {{0, gray, 1},
                        {0.25, cmyk, 1},
                        {0.5, SwatchColor(*ocean, 0), 1},
                        {0.75, KindOnly(document::ColorKind::Pattern), 1},
                        {1, KindOnly(document::ColorKind::None), 1}};
        document.gradients.push_back(std::move(mixed));
        document.gradients.push_back(std::move(empty));
        document.gradients.push_back(std::move(plain));
        return document;
    }

    ZMColorSpaceHandle SwatchSpace(int32_t index) {
        ZMCustomColorHandle swatch = nullptr;
        EXPECT_EQ(colors->GetNthCustomColor(index, &swatch), ZM_ERR_NONE);
        ZMColorSpaceHandle space = nullptr;
        EXPECT_EQ(spaces->GetCustomColorSpace(swatch, &space), ZM_ERR_NONE);
        return space;
    }

    ZMColorSpaceHandle GradientSpace(int32_t index) {
        ZMGradientHandle gradient = nullptr;
        EXPECT_EQ(gradients->GetNthGradient(index, &gradient), ZM_ERR_NONE);
        ZMColorSpaceHandle space = nullptr;
        EXPECT_EQ(spaces->GetGradientColorSpace(gradient, &space), ZM_ERR_NONE);
        return space;
    }

    int16_t Family(ZMColorSpaceHandle space) {
        int16_t family = -1;
        EXPECT_EQ(spaces->GetColorSpaceFamily(space, &family), ZM_ERR_NONE);
        return family;
    }

    Inks InksOf(ZMColorSpaceHandle space) {
        int32_t count = -1;
        EXPECT_EQ(spaces->CountColorants(space, &count), ZM_ERR_NONE);
        Inks inks;
        for (int32_t i = 0; i < count; ++i) {
            ZMUnicodeString name = String();
            EXPECT_EQ(spaces->GetColorantName(space, i, name), ZM_ERR_NONE);
            inks.push_back(Text(name));
        }
        return inks;
    }

    ZMColorSpaceHandle Base(ZMColorSpaceHandle space) {
        ZMColorSpaceHandle base = zm::test::ForeignHandle<ZMColorSpaceHandle>();
        EXPECT_EQ(spaces->GetBaseColorSpace(space, &base), ZM_ERR_NONE);
        return base;
    }

    Spaces Members(ZMColorSpaceHandle space) {
        int32_t count = -1;
        EXPECT_EQ(spaces->CountColorSpaceMembers(space, &count), ZM_ERR_NONE);
        Spaces members;
        for (int32_t i = 0; i < count; ++i) {
            ZMColorSpaceHandle member = nullptr;
            EXPECT_EQ(spaces->GetNthColorSpaceMember(space, i, &member), ZM_ERR_NONE);
            members.push_back(member);
        }
        return members;
    }

    const ZMColorSpaceSuite* spaces = nullptr;
    const ZMCustomColorSuite* colors = nullptr;
    const ZMGradientSuite* gradients = nullptr;
};

TEST_F(ColorSpaceSuiteTest, AProcessSwatchIsTheSpaceOfItsModel) {
    OpenColors();
    ZMColorSpaceHandle ocean = SwatchSpace(1);
    EXPECT_EQ(Family(ocean), ZM_COLOR_SPACE_RGB);
    EXPECT_EQ(InksOf(ocean), kRgbInks);
    EXPECT_EQ(Base(ocean), nullptr);
    EXPECT_TRUE(Members(ocean).empty());
    ZMColorSpaceHandle sand = SwatchSpace(2);
    EXPECT_EQ(Family(sand), ZM_COLOR_SPACE_LAB);
    EXPECT_EQ(InksOf(sand), kLabInks);
    ZMColorSpaceHandle pressBlack = SwatchSpace(3);
    EXPECT_EQ(Family(pressBlack), ZM_COLOR_SPACE_CMYK);
    EXPECT_EQ(InksOf(pressBlack), kCmykInks);
    EXPECT_EQ(Base(pressBlack), nullptr);
}

TEST_F(ColorSpaceSuiteTest, ASpotSwatchIsASeparationWhoseOneInkIsTheSwatchsName) {
    OpenColors();
    ZMColorSpaceHandle warmRed = SwatchSpace(0);
    EXPECT_EQ(Family(warmRed), ZM_COLOR_SPACE_SEPARATION);
    EXPECT_EQ(InksOf(warmRed), Inks{"Warm Red"});
    EXPECT_TRUE(Members(warmRed).empty());
    ZMColorSpaceHandle grun = SwatchSpace(4);
    EXPECT_EQ(InksOf(grun), Inks{"Gr\xC3\xBCn"});  // the UTF-8 name, u-umlaut intact
}

TEST_F(ColorSpaceSuiteTest, ASeparationsAlternateIsTheSpaceOfItsSwatchsModel) {
    OpenColors();
    ZMColorSpaceHandle cmyk = Base(SwatchSpace(0));  // Warm Red is a CMYK spot colour
    EXPECT_EQ(Family(cmyk), ZM_COLOR_SPACE_CMYK);
    EXPECT_EQ(InksOf(cmyk), kCmykInks);
    EXPECT_EQ(cmyk, SwatchSpace(3));                // Press Black's: one CMYK space, one handle
    ZMColorSpaceHandle rgb = Base(SwatchSpace(4));  // Grün is an RGB spot colour
    EXPECT_EQ(Family(rgb), ZM_COLOR_SPACE_RGB);
    EXPECT_EQ(rgb, SwatchSpace(1));  // Ocean's
}

TEST_F(ColorSpaceSuiteTest, AGradientIsDeviceNOverTheDistinctSpacesOfItsStopsInStopOrder) {
    OpenColors();
    ZMColorSpaceHandle mixed = GradientSpace(0);
    EXPECT_EQ(Family(mixed), ZM_COLOR_SPACE_DEVICE_N);
    // Warm Red's separation, the RGB space of both RGB stops and of Ocean, Sand's Lab space;
    // the second RGB stop and the second Warm Red stop add nothing new, whatever their tint.
    EXPECT_EQ(Members(mixed), (Spaces{SwatchSpace(0), SwatchSpace(1), SwatchSpace(2)}));
    // The members' inks in member order: one, three, three.
    EXPECT_EQ(InksOf(mixed), (Inks{"Warm Red", "Red", "Green", "Blue", "L", "a", "b"}));
    EXPECT_EQ(Base(mixed), nullptr);
}

TEST_F(ColorSpaceSuiteTest, ProcessStopsHaveTheirOwnSpacesAndPaintThatIsNoColourHasNone) {
    OpenColors();
    Spaces members = Members(GradientSpace(2));
    // Gray, CMYK, Ocean's RGB; the pattern stop and the unpainted stop add none.
    ASSERT_EQ(members.size(), 3u);
    EXPECT_EQ(Family(members[0]), ZM_COLOR_SPACE_GRAY);
    EXPECT_EQ(InksOf(members[0]), Inks{"Gray"});
    EXPECT_EQ(members[1], SwatchSpace(3));
    EXPECT_EQ(members[2], SwatchSpace(1));
}

TEST_F(ColorSpaceSuiteTest, AGradientWithoutStopsHasNoMembers) {
    OpenColors();
    ZMColorSpaceHandle empty = GradientSpace(1);
    EXPECT_EQ(Family(empty), ZM_COLOR_SPACE_DEVICE_N);
    EXPECT_TRUE(Members(empty).empty());
    EXPECT_TRUE(InksOf(empty).empty());
    ZMColorSpaceHandle member = nullptr;
    EXPECT_EQ(spaces->GetNthColorSpaceMember(empty, 0, &member), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ColorSpaceSuiteTest, TheSameSpaceIsAlwaysTheSameHandle) {
    OpenColors();
    ZMColorSpaceHandle warmRed = SwatchSpace(0);
    ZMColorSpaceHandle mixed = GradientSpace(0);
    GradientSpace(2);  // more spaces made meanwhile move none of the earlier ones
    EXPECT_EQ(SwatchSpace(0), warmRed);
    EXPECT_EQ(GradientSpace(0), mixed);
    EXPECT_EQ(Members(mixed)[0], warmRed);
    EXPECT_EQ(InksOf(warmRed), Inks{"Warm Red"});
    EXPECT_NE(GradientSpace(1), mixed);
}

TEST_F(ColorSpaceSuiteTest, BadHandlesIndexesAndPointersAreRefused) {
    OpenColors();
    ZMColorSpaceHandle warmRed = SwatchSpace(0);
    ZMColorSpaceHandle mixed = GradientSpace(0);
    auto foreign = zm::test::ForeignHandle<ZMColorSpaceHandle>();
    int16_t family = 0;
    int32_t count = 0;
    ZMColorSpaceHandle space = nullptr;
    EXPECT_EQ(spaces->GetColorSpaceFamily(foreign, &family), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetColorSpaceFamily(nullptr, &family), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetColorSpaceFamily(warmRed, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->CountColorants(foreign, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->CountColorants(warmRed, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetColorantName(warmRed, 1, String()), ZM_ERR_BAD_ARGUMENT);  // one ink
    EXPECT_EQ(spaces->GetColorantName(warmRed, -1, String()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetColorantName(warmRed, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetColorantName(foreign, 0, String()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetBaseColorSpace(foreign, &space), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetBaseColorSpace(warmRed, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->CountColorSpaceMembers(foreign, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->CountColorSpaceMembers(mixed, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetNthColorSpaceMember(mixed, 3, &space), ZM_ERR_BAD_ARGUMENT);  // 3 held
    EXPECT_EQ(spaces->GetNthColorSpaceMember(mixed, -1, &space), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetNthColorSpaceMember(mixed, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetNthColorSpaceMember(foreign, 0, &space), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(space, nullptr);
    EXPECT_EQ(spaces->GetCustomColorSpace(nullptr, &space), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetCustomColorSpace(zm::test::ForeignHandle<ZMCustomColorHandle>(), &space),
              ZM_ERR_BAD_ARGUMENT);
    ZMCustomColorHandle swatch = nullptr;
    ASSERT_EQ(colors->GetNthCustomColor(0, &swatch), ZM_ERR_NONE);
    EXPECT_EQ(spaces->GetCustomColorSpace(swatch, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetGradientColorSpace(nullptr, &space), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spaces->GetGradientColorSpace(zm::test::ForeignHandle<ZMGradientHandle>(), &space),
              ZM_ERR_BAD_ARGUMENT);
    ZMGradientHandle gradient = nullptr;
    ASSERT_EQ(gradients->GetNthGradient(0, &gradient), ZM_ERR_NONE);
    EXPECT_EQ(spaces->GetGradientColorSpace(gradient, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(space, nullptr);
}

TEST_F(ColorSpaceSuiteTest, ASpaceOfAnotherDocumentNamesNothingOfTheCurrentOne) {
    OpenColors();
    ZMColorSpaceHandle warmRed = SwatchSpace(0);
    document::Document& second = OpenColors();
    int16_t family = 0;
    EXPECT_EQ(spaces->GetColorSpaceFamily(warmRed, &family), ZM_ERR_BAD_ARGUMENT);
    EXPECT_NE(SwatchSpace(0), warmRed);        // the second document's own Warm Red
    EXPECT_EQ(second.colorSpaces.Size(), 2u);  // the separation and its CMYK alternate
    runtime.documents.CloseCurrent();
    EXPECT_EQ(Family(warmRed), ZM_COLOR_SPACE_SEPARATION);  // its document is current again
}

TEST_F(ColorSpaceSuiteTest, WithoutADocumentEveryEntryAnswersNoDocument) {
    auto space = zm::test::ForeignHandle<ZMColorSpaceHandle>();
    ZMColorSpaceHandle out = nullptr;
    int16_t family = 0;
    int32_t count = 0;
    EXPECT_EQ(spaces->GetColorSpaceFamily(space, &family), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->CountColorants(space, &count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->GetColorantName(space, 0, String()), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->GetBaseColorSpace(space, &out), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->CountColorSpaceMembers(space, &count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->GetNthColorSpaceMember(space, 0, &out), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->GetCustomColorSpace(zm::test::ForeignHandle<ZMCustomColorHandle>(), &out),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(spaces->GetGradientColorSpace(zm::test::ForeignHandle<ZMGradientHandle>(), &out),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(out, nullptr);
}

TEST_F(ColorSpaceSuiteTest, AnImportedGradientsSpaceFollowsItsStopsAndSwatches) {
    // Swatches: 0 "Warm Red" spot CMYK, 1 "Sand" Lab, 2 "Gold" spot RGB. Gradients: 0 "Mixed"
    // with stops Warm Red, an RGB colour, Sand, Gold, Warm Red; 1 "Bare" without stops.
    Import("gradient-spaces.svg");
    ZMColorSpaceHandle warmRed = SwatchSpace(0);
    EXPECT_EQ(InksOf(warmRed), Inks{"Warm Red"});
    EXPECT_EQ(Family(Base(warmRed)), ZM_COLOR_SPACE_CMYK);
    EXPECT_EQ(Family(SwatchSpace(1)), ZM_COLOR_SPACE_LAB);
    ZMColorSpaceHandle gold = SwatchSpace(2);
    EXPECT_EQ(Family(gold), ZM_COLOR_SPACE_SEPARATION);
    ZMColorSpaceHandle mixed = GradientSpace(0);
    // Gold is an RGB spot colour: its alternate is the RGB space the plain stop is in.
    EXPECT_EQ(Members(mixed), (Spaces{warmRed, Base(gold), SwatchSpace(1), gold}));
    EXPECT_EQ(InksOf(mixed), (Inks{"Warm Red", "Red", "Green", "Blue", "L", "a", "b", "Gold"}));
    EXPECT_TRUE(Members(GradientSpace(1)).empty());
}

}  // namespace
}  // namespace zm::host
