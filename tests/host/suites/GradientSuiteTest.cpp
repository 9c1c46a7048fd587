#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMGradientSuite.h>

#include <gtest/gtest.h>

#include <memory>

namespace zm::host {
namespace {

class GradientSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_GRADIENT_SUITE_NAME, ZM_GRADIENT_SUITE_VERSION, gradients);
    }

    // "Sky": radial, an RGB stop at 0, a half-transparent stop of the spot "Ink" at 40% tint
    // at 1. "Empty": linear, no stops.
    document::Document& OpenGradients() {
        document::Document& document = Open();
        auto ink = std::make_unique<document::CustomColor>();
        ink->name = "Ink";
        ink->spot = true;
        auto sky = std::make_unique<document::Gradient>();
        sky->name = "Sky";
        sky->type = document::GradientType::Radial;
        document::Color spot;
        spot.kind = document::ColorKind::Custom;
        spot.custom = ink.get();
        spot.tint = 0.4;
        sky->stops = {{0, document::Color::Rgb(0.1, 0.2, 0.3), 1}, {1, spot, 0.5}};
        auto empty = std::make_unique<document::Gradient>();
        empty->name = "Empty";
        document.swatches.push_back(std::move(ink));
        document.gradients.push_back(std::move(sky));
        document.gradients.push_back(std::move(empty));
        return document;
    }

    ZMGradientHandle Nth(int32_t index) {
        ZMGradientHandle gradient = nullptr;
        EXPECT_EQ(gradients->GetNthGradient(index, &gradient), ZM_ERR_NONE);
        return gradient;
    }

    const ZMGradientSuite* gradients = nullptr;
};

TEST_F(GradientSuiteTest, GradientsAreCountedNamedAndTyped) {
    document::Document& document = OpenGradients();
    int32_t count = -1;
    EXPECT_EQ(gradients->CountGradients(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Nth(1), reinterpret_cast<ZMGradientHandle>(document.gradients[1].get()));
    ZMUnicodeString name = String();
    EXPECT_EQ(gradients->GetGradientName(Nth(0), name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Sky");
    int16_t type = -1;
    EXPECT_EQ(gradients->GetGradientType(Nth(0), &type), ZM_ERR_NONE);
    EXPECT_EQ(type, ZM_GRADIENT_RADIAL);
    EXPECT_EQ(gradients->GetGradientType(Nth(1), &type), ZM_ERR_NONE);
    EXPECT_EQ(type, ZM_GRADIENT_LINEAR);
}

TEST_F(GradientSuiteTest, StopsAreCountedAsSixteenBitValues) {
    OpenGradients();
    int16_t count = -1;
    EXPECT_EQ(gradients->GetGradientStopCount(Nth(0), &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(gradients->GetGradientStopCount(Nth(1), &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 0);
}

TEST_F(GradientSuiteTest, AProcessStopCarriesItsColorOffsetAndOpacity) {
    OpenGradients();
    ZMGradientStop stop{};
    EXPECT_EQ(gradients->GetNthGradientStop(Nth(0), 0, &stop), ZM_ERR_NONE);
    EXPECT_EQ(stop.offset, 0.0);
    EXPECT_EQ(stop.midpoint, 0.5);  // SVG blends evenly: halfway to the next stop
    EXPECT_EQ(stop.opacity, 1.0);
    EXPECT_EQ(stop.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(stop.color.c.three.red, 0.1);
    EXPECT_EQ(stop.color.c.three.green, 0.2);
    EXPECT_EQ(stop.color.c.three.blue, 0.3);
}

TEST_F(GradientSuiteTest, ASpotStopNamesTheSwatchAndItsTint) {
    document::Document& document = OpenGradients();
    ZMGradientStop stop{};
    EXPECT_EQ(gradients->GetNthGradientStop(Nth(0), 1, &stop), ZM_ERR_NONE);
    EXPECT_EQ(stop.offset, 1.0);
    EXPECT_EQ(stop.opacity, 0.5);
    EXPECT_EQ(stop.color.kind, ZM_COLOR_CUSTOM);
    EXPECT_EQ(stop.color.c.custom.color,
              reinterpret_cast<ZMCustomColorHandle>(document.swatches[0].get()));
    EXPECT_EQ(stop.color.c.custom.tint, 0.4);
}

TEST_F(GradientSuiteTest, BadStopsHandlesAndArgumentsAreRefused) {
    OpenGradients();
    ZMGradientStop stop{};
    int16_t value = 0;
    auto foreign = zm::test::ForeignHandle<ZMGradientHandle>();
    EXPECT_EQ(gradients->GetNthGradientStop(Nth(0), 2, &stop), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetNthGradientStop(Nth(0), -1, &stop), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetNthGradientStop(Nth(1), 0, &stop), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetNthGradientStop(Nth(0), 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetNthGradientStop(foreign, 0, &stop), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetGradientStopCount(foreign, &value), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetGradientStopCount(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetGradientType(nullptr, &value), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetGradientType(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetGradientName(foreign, String()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetGradientName(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMGradientHandle gradient = nullptr;
    EXPECT_EQ(gradients->GetNthGradient(2, &gradient), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->GetNthGradient(0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(gradients->CountGradients(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(GradientSuiteTest, WithoutADocumentThereAreNoGradients) {
    int32_t count = 0;
    ZMGradientHandle gradient = nullptr;
    EXPECT_EQ(gradients->CountGradients(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(gradients->GetNthGradient(0, &gradient), ZM_ERR_NO_DOCUMENT);
    int16_t value = 0;
    EXPECT_EQ(gradients->GetGradientType(zm::test::ForeignHandle<ZMGradientHandle>(), &value),
              ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
