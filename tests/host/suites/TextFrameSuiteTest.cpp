#include "host/suites/TextEngineFixture.hpp"

#include "support/DocumentBuilder.hpp"

#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMBlendStyleSuite.h>
#include <zelmora/ZMMaskSuite.h>
#include <zelmora/ZMPathStyleSuite.h>
#include <zelmora/ZMPathSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class TextFrameSuiteTest : public zm::test::TextEngineFixture {
protected:
    // The frame path of the frame with that id.
    ZMArtHandle PathOf(const char* id) {
        ZMArtHandle path = ForeignHandle();
        EXPECT_EQ(textFrames->GetTextPathObject(Frame(id), &path), ZM_ERR_NONE);
        return path;
    }

    static ZMArtHandle ForeignHandle() { return zm::test::ForeignHandle<ZMArtHandle>(); }
};

TEST_F(TextFrameSuiteTest, TheRangeHoldsAllTheTextOfTheFrame) {
    OpenText("two-fonts.svg");
    EXPECT_EQ(ContentsOf("greeting"),
              "Gr\xC3\xBC\xC3\x9F"
              "e, world");
}

TEST_F(TextFrameSuiteTest, TheEnginesFrameHasTheKindOfTheArt) {
    OpenText("area.svg");
    KRXTextFrameRef frame = nullptr;
    ASSERT_EQ(textFrames->GetKRXTextFrame(Frame("flowing"), &frame), ZM_ERR_NONE);
    KRXFrameType type = -1;
    EXPECT_EQ(frames->GetType(frame, &type), ZM_ERR_NONE);
    EXPECT_EQ(type, KRX_FRAME_TYPE_IN_PATH);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
}

TEST_F(TextFrameSuiteTest, PointTextHasNoPath) {
    OpenText("two-fonts.svg");
    EXPECT_EQ(PathOf("greeting"), nullptr);
}

// The survey visits the frame path as it visits any path: type, anchors, closed flag, length,
// paint, blending, style and mask all answer for it.
TEST_F(TextFrameSuiteTest, AnAreaTextsPathIsArtTheArtSuitesTake) {
    const ZMPathSuite* pathSuite = nullptr;
    const ZMPathStyleSuite* pathStyles = nullptr;
    const ZMBlendStyleSuite* blends = nullptr;
    const ZMArtStyleSuite* artStyles = nullptr;
    const ZMMaskSuite* masks = nullptr;
    Acquire(ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, pathSuite);
    Acquire(ZM_PATH_STYLE_SUITE_NAME, ZM_PATH_STYLE_SUITE_VERSION, pathStyles);
    Acquire(ZM_BLEND_STYLE_SUITE_NAME, ZM_BLEND_STYLE_SUITE_VERSION, blends);
    Acquire(ZM_ART_STYLE_SUITE_NAME, ZM_ART_STYLE_SUITE_VERSION, artStyles);
    Acquire(ZM_MASK_SUITE_NAME, ZM_MASK_SUITE_VERSION, masks);
    OpenText("area.svg");
    ZMArtHandle path = PathOf("flowing");
    ASSERT_NE(path, nullptr);

    EXPECT_EQ(TypeOf(path), ZM_ART_PATH);
    int16_t anchors = -1;
    EXPECT_EQ(pathSuite->GetPathSegmentCount(path, &anchors), ZM_ERR_NONE);
    EXPECT_EQ(anchors, 4);  // a rectangle's corners
    ZMBool closed = 0;
    EXPECT_EQ(pathSuite->GetPathClosed(path, &closed), ZM_ERR_NONE);
    EXPECT_EQ(closed, 1);
    double length = -1;
    EXPECT_EQ(pathSuite->GetPathLength(path, &length, 0.5), ZM_ERR_NONE);
    EXPECT_NEAR(length, 225, 1e-9);  // 2 x (75 + 37.5) pt

    ZMPathStyle style{};
    EXPECT_EQ(pathStyles->GetPathStyle(path, &style), ZM_ERR_NONE);
    EXPECT_EQ(style.fillPaint, 0);  // fill="none"
    EXPECT_EQ(style.strokePaint, 1);
    EXPECT_EQ(style.stroke.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(style.stroke.color.c.three.green, 1);  // #00ff00

    ZMBlendingMode mode = -1;
    EXPECT_EQ(blends->GetBlendingMode(path, &mode), ZM_ERR_NONE);
    EXPECT_EQ(mode, ZM_BLEND_NORMAL);
    ZMArtStyleHandle artStyle = nullptr;
    EXPECT_EQ(artStyles->GetArtStyle(path, &artStyle), ZM_ERR_NONE);
    EXPECT_NE(artStyle, nullptr);
    ZMMaskHandle mask = reinterpret_cast<ZMMaskHandle>(path);
    EXPECT_EQ(masks->GetMask(path, &mask), ZM_ERR_NONE);
    EXPECT_EQ(mask, nullptr);  // no opacity mask

    // It lies outside the layers' trees: no parent, and no match finds it.
    EXPECT_EQ(Parent(path), nullptr);
    for (ZMArtHandle matched : Match({{ZM_ART_ANY, 0, 0, 0}})) {
        EXPECT_NE(matched, path);
    }
}

TEST_F(TextFrameSuiteTest, TextOnAPathHasThePathItRunsAlong) {
    const ZMPathSuite* pathSuite = nullptr;
    Acquire(ZM_PATH_SUITE_NAME, ZM_PATH_SUITE_VERSION, pathSuite);
    OpenText("on-path.svg");
    ZMArtHandle path = PathOf("along");
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(TypeOf(path), ZM_ART_PATH);
    int16_t anchors = -1;
    EXPECT_EQ(pathSuite->GetPathSegmentCount(path, &anchors), ZM_ERR_NONE);
    EXPECT_EQ(anchors, 2);  // a straight line's ends
    ZMBool closed = 1;
    EXPECT_EQ(pathSuite->GetPathClosed(path, &closed), ZM_ERR_NONE);
    EXPECT_EQ(closed, 0);
    double length = -1;
    EXPECT_EQ(pathSuite->GetPathLength(path, &length, 0.5), ZM_ERR_NONE);
    EXPECT_NEAR(length, 135, 1e-9);  // 180 px
}

// The frame's objects keep their own copy of the text: they still read after the document
// has closed, while the frame path went with its document. (The other document is opened
// first, so that no art made after the close can take the path's address.)
TEST_F(TextFrameSuiteTest, TheEnginesObjectsOutliveTheDocument) {
    OpenText("area.svg");
    OpenText("on-path.svg");
    ZMArtHandle path = PathOf("along");
    KRXTextRangeRef range = RangeOf("along");
    runtime.documents.CloseCurrent();  // area.svg is current again

    char buffer[64] = {};
    EXPECT_EQ(ranges->GetContents(range, buffer, sizeof buffer), ZM_ERR_NONE);
    EXPECT_STREQ(buffer, "Along the line");
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);

    ZMArtType type = -2;
    EXPECT_EQ(art->GetArtType(path, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(textFrames->GetTextPathObject(path, &path), ZM_ERR_BAD_ARGUMENT);
}

// Built by hand: text frame art that holds no text is an empty point text.
TEST_F(TextFrameSuiteTest, AFrameWithoutContentIsAnEmptyPointText) {
    document::Document& built = Open();
    zm::test::AddArt(*zm::test::AddLayer(built, "Layer 1").root, document::ArtType::TextFrame,
                     "bare");
    KRXTextFrameRef frame = nullptr;
    ASSERT_EQ(textFrames->GetKRXTextFrame(Frame("bare"), &frame), ZM_ERR_NONE);
    KRXFrameType type = -1;
    EXPECT_EQ(frames->GetType(frame, &type), ZM_ERR_NONE);
    EXPECT_EQ(type, KRX_FRAME_TYPE_POINT);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
    KRXTextRangeRef range = RangeOf("bare");
    int32_t size = -1;
    EXPECT_EQ(ranges->GetSize(range, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
    EXPECT_EQ(PathOf("bare"), nullptr);
}

TEST_F(TextFrameSuiteTest, ArtOfAnotherTypeIsTheWrongType) {
    OpenText("two-fonts.svg");
    ZMArtHandle plain = ArtNamed("plain");
    KRXTextRangeRef range = nullptr;
    KRXTextFrameRef frame = nullptr;
    ZMArtHandle path = ForeignHandle();
    EXPECT_EQ(textFrames->GetKRXTextRange(plain, &range), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(textFrames->GetKRXTextFrame(plain, &frame), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(textFrames->GetTextPathObject(plain, &path), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(range, nullptr);
    EXPECT_EQ(frame, nullptr);
    EXPECT_EQ(path, ForeignHandle());
}

TEST_F(TextFrameSuiteTest, BadHandlesAndMissingOutputsAreBadArguments) {
    OpenText("two-fonts.svg");
    KRXTextRangeRef range = nullptr;
    KRXTextFrameRef frame = nullptr;
    ZMArtHandle path = nullptr;
    EXPECT_EQ(textFrames->GetKRXTextRange(nullptr, &range), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(textFrames->GetKRXTextFrame(ForeignHandle(), &frame), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(textFrames->GetTextPathObject(ForeignHandle(), &path), ZM_ERR_BAD_ARGUMENT);

    ZMArtHandle greeting = Frame("greeting");
    EXPECT_EQ(textFrames->GetKRXTextRange(greeting, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(textFrames->GetKRXTextFrame(greeting, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(textFrames->GetTextPathObject(greeting, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(TextFrameSuiteTest, WithoutADocumentThereIsNoText) {
    OpenText("two-fonts.svg");
    ZMArtHandle greeting = Frame("greeting");
    runtime.documents.CloseCurrent();
    KRXTextRangeRef range = nullptr;
    KRXTextFrameRef frame = nullptr;
    ZMArtHandle path = nullptr;
    EXPECT_EQ(textFrames->GetKRXTextRange(greeting, &range), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(textFrames->GetKRXTextFrame(greeting, &frame), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(textFrames->GetTextPathObject(greeting, &path), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
