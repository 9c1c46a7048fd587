#include "host/suites/DocumentSuiteFixture.hpp"
#include "host/suites/StyledDocument.hpp"

#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace zm::host {
namespace {

using zm::test::HandleOf;

class ArtStyleSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, styles);
    }

    ZMArtStyleHandle StyleOf(document::Art* art) {
        ZMArtStyleHandle style = nullptr;
        EXPECT_EQ(styles->GetArtStyle(HandleOf(art), &style), ZM_ERR_NONE);
        return style;
    }

    std::string Name(ZMArtStyleHandle style, ZMBool* anonymous) {
        ZMUnicodeString name = String("not written");
        EXPECT_EQ(styles->GetArtStyleName(style, name, anonymous), ZM_ERR_NONE);
        return Text(name);
    }

    int16_t Kind(ZMArtStyleHandle style) {
        int16_t kind = -1;
        EXPECT_EQ(styles->GetArtStyleKind(style, &kind), ZM_ERR_NONE);
        return kind;
    }

    const ZMArtStyleSuite* styles = nullptr;
    zm::test::StyledDocument art{Open()};
};

TEST_F(ArtStyleSuiteTest, EveryObjectHasAStyleAndTheSameObjectAlwaysTheSameOne) {
    ZMArtStyleHandle plain = StyleOf(art.plain);
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(StyleOf(art.plain), plain);
    EXPECT_NE(StyleOf(art.group), nullptr);
}

TEST_F(ArtStyleSuiteTest, OrdinaryObjectsHaveAnonymousStylesOfTheirOwn) {
    ZMBool anonymous = -1;
    EXPECT_EQ(Name(StyleOf(art.plain), &anonymous), "");
    EXPECT_EQ(anonymous, 1);
    EXPECT_NE(StyleOf(art.plain), StyleOf(art.brushed));
}

TEST_F(ArtStyleSuiteTest, ObjectsOfOneGraphicStyleAndOneAppearanceShareItsStyle) {
    ZMArtStyleHandle first = StyleOf(art.shadow1);
    EXPECT_EQ(StyleOf(art.shadow2), first);
    ZMBool anonymous = -1;
    EXPECT_EQ(Name(first, &anonymous), "Shadow");
    EXPECT_EQ(anonymous, 0);
    // The same name with another fill is another style of that name.
    ZMArtStyleHandle third = StyleOf(art.shadow3);
    EXPECT_NE(third, first);
    EXPECT_EQ(Name(third, &anonymous), "Shadow");
    EXPECT_EQ(anonymous, 0);
    EXPECT_EQ(art.document.artStyles.Size(), 2u);  // two appearances of "Shadow", nothing else
}

TEST_F(ArtStyleSuiteTest, APlainPathStyleIsKindOneAndABrushedStrokeKindTwo) {
    EXPECT_EQ(Kind(StyleOf(art.plain)), ZM_ART_STYLE_PLAIN);
    EXPECT_EQ(Kind(StyleOf(art.plain)), 1);
    EXPECT_EQ(Kind(StyleOf(art.brushed)), ZM_ART_STYLE_ACTIVE);
    EXPECT_EQ(Kind(StyleOf(art.brushed)), 2);
}

TEST_F(ArtStyleSuiteTest, ThePathStyleIsTheStylesFillAndStroke) {
    ZMPathStyle path{};
    EXPECT_EQ(styles->GetPathStyle(StyleOf(art.plain), &path), ZM_ERR_NONE);
    EXPECT_EQ(path.fillPaint, 1);
    EXPECT_EQ(path.strokePaint, 0);
    EXPECT_EQ(path.fill.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(path.fill.color.c.three.red, 1.0);
    EXPECT_EQ(styles->GetPathStyle(StyleOf(art.brushed), &path), ZM_ERR_NONE);
    EXPECT_EQ(path.fillPaint, 0);
    EXPECT_EQ(path.strokePaint, 1);
    EXPECT_EQ(path.stroke.color.kind, ZM_COLOR_FOUR);
    EXPECT_EQ(path.stroke.color.c.four.black, 0.4);
    EXPECT_EQ(path.stroke.width, 2.0);
}

TEST_F(ArtStyleSuiteTest, TheBlendIsTheModeAndTheOpacityAUserSees) {
    int32_t mode = -1;
    double opacity = -1;
    EXPECT_EQ(styles->GetArtStyleBlend(StyleOf(art.brushed), &mode, &opacity), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_MULTIPLY);
    EXPECT_DOUBLE_EQ(opacity, 0.4);  // object 0.5 times its stroke's 0.8
    EXPECT_EQ(styles->GetArtStyleBlend(StyleOf(art.plain), &mode, &opacity), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_NORMAL);
    EXPECT_EQ(opacity, 1.0);
}

TEST_F(ArtStyleSuiteTest, StylesTheDocumentNeverHandedOutAreRefused) {
    auto foreign = zm::test::ForeignHandle<ZMArtStyleHandle>();
    ZMBool anonymous = 0;
    int16_t kind = 0;
    ZMPathStyle path{};
    int32_t mode = 0;
    double opacity = 0;
    EXPECT_EQ(styles->GetArtStyleName(foreign, String(), &anonymous), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyleKind(nullptr, &kind), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetPathStyle(foreign, &path), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyleBlend(foreign, &mode, &opacity), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtStyleSuiteTest, MissingArgumentsAreRefused) {
    ZMArtStyleHandle style = StyleOf(art.plain);
    ZMBool anonymous = 0;
    int32_t mode = 0;
    EXPECT_EQ(styles->GetArtStyle(nullptr, &style), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyle(HandleOf(art.plain), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyleName(style, nullptr, &anonymous), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyleName(style, String(), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyleKind(style, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetPathStyle(style, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(styles->GetArtStyleBlend(style, &mode, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtStyleSuiteTest, StylesGoWithTheirDocument) {
    ZMArtStyleHandle style = StyleOf(art.plain);
    runtime.documents.CloseCurrent();
    int16_t kind = 0;
    EXPECT_EQ(styles->GetArtStyleKind(style, &kind), ZM_ERR_NO_DOCUMENT);
    Open();
    // A new document never handed that style out.
    EXPECT_EQ(styles->GetArtStyleKind(style, &kind), ZM_ERR_BAD_ARGUMENT);
    ZMArtStyleHandle none = nullptr;
    runtime.documents.CloseCurrent();
    EXPECT_EQ(styles->GetArtStyle(zm::test::ForeignHandle<ZMArtHandle>(), &none),
              ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
