#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMCustomColorSuite.h>

#include <gtest/gtest.h>

#include <memory>

namespace zm::host {
namespace {

class CustomColorSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_CUSTOM_COLOR_SUITE_NAME, ZM_CUSTOM_COLOR_SUITE_VERSION, colors);
    }

    // Three swatches: a CMYK spot, an RGB process colour and a Lab spot.
    document::Document& OpenSwatches() {
        document::Document& document = Open();
        auto warmRed = std::make_unique<document::CustomColor>();
        warmRed->name = "Warm Red";
        warmRed->kind = document::CustomColorKind::Cmyk;
        warmRed->cmyk = {0, 0.75, 0.9, 0};
        warmRed->spot = true;
        auto sky = std::make_unique<document::CustomColor>();
        sky->name = "Sky";
        sky->kind = document::CustomColorKind::Rgb;
        sky->rgb = {0.2, 0.6, 1};
        auto mint = std::make_unique<document::CustomColor>();
        mint->name = "Mint";
        mint->kind = document::CustomColorKind::Lab;
        mint->lab = {88, -30, 10};
        mint->spot = true;
        document.swatches.push_back(std::move(warmRed));
        document.swatches.push_back(std::move(sky));
        document.swatches.push_back(std::move(mint));
        return document;
    }

    ZMCustomColorHandle Nth(int32_t index) {
        ZMCustomColorHandle color = nullptr;
        EXPECT_EQ(colors->GetNthCustomColor(index, &color), ZM_ERR_NONE);
        return color;
    }

    ZMCustomColor Record(ZMCustomColorHandle color) {
        ZMCustomColor record{};
        EXPECT_EQ(colors->GetCustomColor(color, &record), ZM_ERR_NONE);
        return record;
    }

    const ZMCustomColorSuite* colors = nullptr;
};

TEST_F(CustomColorSuiteTest, SwatchesAreCountedAndHandedOutInOrder) {
    document::Document& document = OpenSwatches();
    int32_t count = -1;
    EXPECT_EQ(colors->CountCustomColors(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 3);
    // A handle is the model swatch's address.
    EXPECT_EQ(Nth(0), reinterpret_cast<ZMCustomColorHandle>(document.swatches[0].get()));
    EXPECT_EQ(Nth(2), reinterpret_cast<ZMCustomColorHandle>(document.swatches[2].get()));
    ZMCustomColorHandle color = nullptr;
    EXPECT_EQ(colors->GetNthCustomColor(3, &color), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->GetNthCustomColor(-1, &color), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(CustomColorSuiteTest, ACmykSpotColorHasKindZeroAndTheSpotBit) {
    OpenSwatches();
    ZMCustomColor record = Record(Nth(0));
    EXPECT_EQ(record.kind, ZM_CUSTOM_COLOR_FOUR);
    EXPECT_EQ(record.kind, 0);
    EXPECT_EQ(record.flags, 1);  // bit 0: spot
    EXPECT_EQ(record.c.four.cyan, 0.0);
    EXPECT_EQ(record.c.four.magenta, 0.75);
    EXPECT_EQ(record.c.four.yellow, 0.9);
    EXPECT_EQ(record.c.four.black, 0.0);
}

TEST_F(CustomColorSuiteTest, AnRgbProcessColorHasKindOneAndNoFlags) {
    OpenSwatches();
    ZMCustomColor record = Record(Nth(1));
    EXPECT_EQ(record.kind, ZM_CUSTOM_COLOR_THREE);
    EXPECT_EQ(record.flags, 0);  // a global process colour
    EXPECT_EQ(record.c.three.red, 0.2);
    EXPECT_EQ(record.c.three.green, 0.6);
    EXPECT_EQ(record.c.three.blue, 1.0);
}

TEST_F(CustomColorSuiteTest, ALabColorHasKindTwo) {
    OpenSwatches();
    ZMCustomColor record = Record(Nth(2));
    EXPECT_EQ(record.kind, ZM_CUSTOM_COLOR_LAB);
    EXPECT_EQ(record.flags & ZM_CUSTOM_COLOR_SPOT, ZM_CUSTOM_COLOR_SPOT);
    EXPECT_EQ(record.c.lab.l, 88.0);
    EXPECT_EQ(record.c.lab.a, -30.0);
    EXPECT_EQ(record.c.lab.b, 10.0);
}

TEST_F(CustomColorSuiteTest, ASwatchIsNamedAndFoundByItsName) {
    OpenSwatches();
    ZMUnicodeString name = String();
    EXPECT_EQ(colors->GetCustomColorName(Nth(0), name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Warm Red");
    ZMCustomColorHandle found = nullptr;
    EXPECT_EQ(colors->FindCustomColor(String("Mint"), &found), ZM_ERR_NONE);
    EXPECT_EQ(found, Nth(2));
}

TEST_F(CustomColorSuiteTest, AnAbsentNameIsNotFoundAndKeepsTheHandle) {
    OpenSwatches();
    ZMCustomColorHandle found = Nth(1);
    EXPECT_EQ(colors->FindCustomColor(String("warm red"), &found), ZM_ERR_NOT_FOUND);  // exact
    EXPECT_EQ(found, Nth(1));
    EXPECT_EQ(colors->FindCustomColor(String("Mint"), nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(CustomColorSuiteTest, HandlesOfNoSwatchAreRefused) {
    OpenSwatches();
    ZMCustomColor record{};
    ZMUnicodeString name = String();
    auto foreign = zm::test::ForeignHandle<ZMCustomColorHandle>();
    EXPECT_EQ(colors->GetCustomColor(foreign, &record), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->GetCustomColor(nullptr, &record), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->GetCustomColor(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->GetCustomColorName(foreign, name), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->GetCustomColorName(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->CountCustomColors(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(colors->GetNthCustomColor(0, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(CustomColorSuiteTest, WithoutADocumentThereAreNoSwatches) {
    int32_t count = -1;
    ZMCustomColorHandle color = nullptr;
    ZMCustomColor record{};
    EXPECT_EQ(colors->CountCustomColors(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(colors->GetNthCustomColor(0, &color), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(colors->GetCustomColor(zm::test::ForeignHandle<ZMCustomColorHandle>(), &record),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(colors->GetCustomColorName(zm::test::ForeignHandle<ZMCustomColorHandle>(), String()),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(colors->FindCustomColor(String("Mint"), &color), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
