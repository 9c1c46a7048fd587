#include "host/suites/DocumentSuiteFixture.hpp"
#include "host/suites/StyledDocument.hpp"

#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

using zm::test::HandleOf;

class BlendStyleSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, styles);
        Acquire(ZM_BLEND_STYLE_SUITE_NAME, ZM_BLEND_STYLE_SUITE_VERSION, blends);
    }

    ZMArtStyleHandle StyleOf(document::Art* art) {
        ZMArtStyleHandle style = nullptr;
        EXPECT_EQ(styles->GetArtStyle(HandleOf(art), &style), ZM_ERR_NONE);
        return style;
    }

    const ZMArtStyleSuite* styles = nullptr;
    const ZMBlendStyleSuite* blends = nullptr;
    zm::test::StyledDocument art{Open()};
};

TEST_F(BlendStyleSuiteTest, AnObjectsModeAndOpacityAreWhatAUserSees) {
    ZMBlendingMode mode = -1;
    double opacity = -1;
    ZMBool normalOpaque = -1;
    EXPECT_EQ(blends->GetBlendingMode(HandleOf(art.brushed), &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_MULTIPLY);
    EXPECT_EQ(mode, 1);  // the second mode, after normal
    EXPECT_EQ(blends->GetOpacity(HandleOf(art.brushed), &opacity), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(opacity, 0.4);  // object 0.5 times its stroke's 0.8
    EXPECT_EQ(blends->IsNormalOpaque(HandleOf(art.brushed), &normalOpaque), ZM_ERR_NONE);
    EXPECT_EQ(normalOpaque, 0);
}

TEST_F(BlendStyleSuiteTest, AnOrdinaryObjectIsNormalAndOpaque) {
    ZMBlendingMode mode = -1;
    double opacity = -1;
    ZMBool normalOpaque = -1;
    EXPECT_EQ(blends->GetBlendingMode(HandleOf(art.plain), &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_NORMAL);
    EXPECT_EQ(blends->GetOpacity(HandleOf(art.plain), &opacity), ZM_ERR_NONE);
    EXPECT_EQ(opacity, 1.0);
    EXPECT_EQ(blends->IsNormalOpaque(HandleOf(art.plain), &normalOpaque), ZM_ERR_NONE);
    EXPECT_EQ(normalOpaque, 1);
}

TEST_F(BlendStyleSuiteTest, AnOpaqueObjectWithAnotherModeIsNotNormal) {
    art.plain->blend.mode = document::BlendMode::Screen;
    ZMBool normalOpaque = -1;
    EXPECT_EQ(blends->IsNormalOpaque(HandleOf(art.plain), &normalOpaque), ZM_ERR_NONE);
    EXPECT_EQ(normalOpaque, 0);
}

TEST_F(BlendStyleSuiteTest, AStyleCarriesTheBlendOfItsObject) {
    ZMBlendingMode mode = -1;
    double opacity = -1;
    ZMBool normalOpaque = -1;
    ZMArtStyleHandle brushed = StyleOf(art.brushed);
    EXPECT_EQ(blends->GetStyleBlendingMode(brushed, &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_MULTIPLY);
    EXPECT_EQ(blends->GetStyleOpacity(brushed, &opacity), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(opacity, 0.4);
    EXPECT_EQ(blends->IsStyleNormalOpaque(brushed, &normalOpaque), ZM_ERR_NONE);
    EXPECT_EQ(normalOpaque, 0);
    EXPECT_EQ(blends->IsStyleNormalOpaque(StyleOf(art.shadow1), &normalOpaque), ZM_ERR_NONE);
    EXPECT_EQ(normalOpaque, 1);
}

TEST_F(BlendStyleSuiteTest, BadHandlesAndMissingArgumentsAreRefused) {
    auto foreign = zm::test::ForeignHandle<ZMArtStyleHandle>();
    ZMBlendingMode mode = 0;
    double opacity = 0;
    ZMBool flag = 0;
    EXPECT_EQ(blends->GetBlendingMode(nullptr, &mode), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->GetOpacity(nullptr, &opacity), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->IsNormalOpaque(nullptr, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->GetBlendingMode(HandleOf(art.plain), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->GetOpacity(HandleOf(art.plain), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->IsNormalOpaque(HandleOf(art.plain), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->GetStyleBlendingMode(foreign, &mode), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->GetStyleOpacity(foreign, &opacity), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->IsStyleNormalOpaque(nullptr, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(blends->GetStyleOpacity(StyleOf(art.plain), nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(BlendStyleSuiteTest, WithoutADocumentNothingIsRead) {
    ZMArtStyleHandle style = StyleOf(art.plain);
    runtime.documents.CloseCurrent();
    ZMBlendingMode mode = 0;
    double opacity = 0;
    EXPECT_EQ(blends->GetBlendingMode(zm::test::ForeignHandle<ZMArtHandle>(), &mode),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(blends->GetStyleOpacity(style, &opacity), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
