#include "host/suites/TextPiecesFixture.hpp"

#include <suites/KRXArrayObject.hpp>

#include <zelmora/KRXParagraphSuites.h>
#include <zelmora/KRXStorySuites.h>
#include <zelmora/KRXTextFrameSuites.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::host {
namespace {

using Strings = std::vector<std::string>;

class KRXParagraphSuitesTest : public zm::test::TextPiecesFixture {
protected:
    void SetUp() override {
        TextPiecesFixture::SetUp();
        Acquire(ZM_KRX_PARAGRAPH_SUITE_NAME, ZM_KRX_PARAGRAPH_SUITE_VERSION, paragraphs);
        Acquire(ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_NAME, ZM_KRX_PARAGRAPHS_ITERATOR_SUITE_VERSION,
                paragraphsIterators);
        Acquire(ZM_KRX_PARA_FEATURES_SUITE_NAME, ZM_KRX_PARA_FEATURES_SUITE_VERSION, features);
        Acquire(ZM_KRX_PARA_INSPECTOR_SUITE_NAME, ZM_KRX_PARA_INSPECTOR_SUITE_VERSION,
                paraInspectors);
        Acquire(ZM_KRX_PARA_STYLE_SUITE_NAME, ZM_KRX_PARA_STYLE_SUITE_VERSION, style);
        Acquire(ZM_KRX_PARA_STYLES_SUITE_NAME, ZM_KRX_PARA_STYLES_SUITE_VERSION, styles);
        Acquire(ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME, ZM_KRX_PARA_STYLES_ITERATOR_SUITE_VERSION,
                stylesIterators);
        Acquire(ZM_KRX_TEXT_LINE_SUITE_NAME, ZM_KRX_TEXT_LINE_SUITE_VERSION, lines);
        Acquire(ZM_KRX_TEXT_LINES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_LINES_ITERATOR_SUITE_VERSION,
                linesIterators);
        Acquire(ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_NAME, ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_VERSION,
                framesIterators);
        Acquire(ZM_KRX_STORIES_SUITE_NAME, ZM_KRX_STORIES_SUITE_VERSION, stories);
        Acquire(ZM_KRX_STORY_SUITE_NAME, ZM_KRX_STORY_SUITE_VERSION, story);
        OpenText("krx-story.svg");
    }

    // The text of a range-bearing item, read through getRange and the range suite.
    template <typename Item>
    std::string TextThrough(Item item, ZMErr(ZM_API* getRange)(Item, KRXTextRangeRef*)) {
        KRXTextRangeRef range = nullptr;
        EXPECT_EQ(getRange(item, &range), ZM_ERR_NONE);
        std::string text = Text(range);
        EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
        return text;
    }

    KRXTextFrameRef FrameOf(const char* id) {
        KRXTextFrameRef frame = nullptr;
        EXPECT_EQ(textFrames->GetKRXTextFrame(Frame(id), &frame), ZM_ERR_NONE);
        return frame;
    }

    const KRXParagraphSuite* paragraphs = nullptr;
    const KRXParagraphsIteratorSuite* paragraphsIterators = nullptr;
    const KRXParaFeaturesSuite* features = nullptr;
    const KRXParaInspectorSuite* paraInspectors = nullptr;
    const KRXParaStyleSuite* style = nullptr;
    const KRXParaStylesSuite* styles = nullptr;
    const KRXParaStylesIteratorSuite* stylesIterators = nullptr;
    const KRXTextLineSuite* lines = nullptr;
    const KRXTextLinesIteratorSuite* linesIterators = nullptr;
    const KRXTextFramesIteratorSuite* framesIterators = nullptr;
    const KRXStoriesSuite* stories = nullptr;
    const KRXStorySuite* story = nullptr;
};

TEST_F(KRXParagraphSuitesTest, TextWithoutBreaksIsOneParagraph) {
    // The importer turns line ends into blanks, so each frame holds one paragraph.
    KRXTextRangeRef range = RangeOf("opening");
    KRXParagraphsIteratorRef iterator = nullptr;
    ASSERT_EQ(paragraphsIterators->Create(range, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(Walk(
                  paragraphsIterators, iterator,
                  [&](KRXParagraphRef paragraph) {
                      return TextThrough(paragraph, paragraphs->GetTextRange);
                  },
                  paragraphs->Release),
              (Strings{"Hello, brave new world"}));
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXParagraphSuitesTest, AFrameHasOneLinePerParagraph) {
    KRXTextFrameRef frame = FrameOf("closing");
    KRXTextLinesIteratorRef iterator = nullptr;
    ASSERT_EQ(linesIterators->Create(frame, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
    EXPECT_EQ(Walk(
                  linesIterators, iterator,
                  [&](KRXTextLineRef line) { return TextThrough(line, lines->GetTextRange); },
                  lines->Release),
              (Strings{"Second story"}));  // area text is not wrapped either
}

TEST_F(KRXParagraphSuitesTest, AStorysFramesAreItsOneFrame) {
    KRXStoriesRef list = nullptr;
    ASSERT_EQ(stories->GetDocumentStories(&list), ZM_ERR_NONE);
    KRXStoryRef first = nullptr;
    ASSERT_EQ(stories->Item(list, 0, &first), ZM_ERR_NONE);
    EXPECT_EQ(stories->Release(list), ZM_ERR_NONE);
    KRXTextFramesIteratorRef iterator = nullptr;
    ASSERT_EQ(framesIterators->Create(first, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(story->Release(first), ZM_ERR_NONE);
    auto types = Walk(
        framesIterators, iterator,
        [&](KRXTextFrameRef frame) {
            KRXFrameType type = -1;
            EXPECT_EQ(frames->GetType(frame, &type), ZM_ERR_NONE);
            return type;
        },
        frames->Release);
    EXPECT_EQ(types, std::vector<KRXFrameType>{KRX_FRAME_TYPE_POINT});  // "opening"
}

TEST_F(KRXParagraphSuitesTest, IteratorsRefuseWrongSources) {
    KRXTextLinesIteratorRef iterator = nullptr;
    KRXTextRangeRef range = RangeOf("opening");
    // A range is not a frame.
    EXPECT_EQ(linesIterators->Create(reinterpret_cast<KRXTextFrameRef>(range), &iterator),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(framesIterators->Create(nullptr, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paragraphsIterators->Create(range, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paragraphs->GetTextRange(nullptr, &range), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(lines->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXParagraphSuitesTest, NewFeaturesHaveNothingAssigned) {
    KRXParaFeaturesRef set = nullptr;
    ASSERT_EQ(features->Create(&set), ZM_ERR_NONE);
    KRXEnumValue justification = 99;
    int32_t assigned = -1;
    EXPECT_EQ(features->GetJustification(set, &justification, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 0);
    EXPECT_EQ(justification, 99);  // left alone
    EXPECT_EQ(features->SetJustification(set, KRX_PARAGRAPH_JUSTIFICATION_CENTER), ZM_ERR_NONE);
    EXPECT_EQ(features->GetJustification(set, &justification, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 1);
    EXPECT_EQ(justification, 2);  // center
    EXPECT_EQ(features->SetJustification(set, 7), ZM_ERR_BAD_ARGUMENT);  // codes end at 6
    EXPECT_EQ(features->SetJustification(set, -1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(features->ClearJustification(set), ZM_ERR_NONE);
    EXPECT_EQ(features->GetJustification(set, &justification, &assigned), ZM_ERR_NONE);
    EXPECT_EQ(assigned, 0);
    EXPECT_EQ(features->GetJustification(set, nullptr, &assigned), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(features->Release(set), ZM_ERR_NONE);
    EXPECT_EQ(features->ClearJustification(set), ZM_ERR_BAD_ARGUMENT);  // released
}

TEST_F(KRXParagraphSuitesTest, TheInspectorSeesEveryParagraphSetLeft) {
    KRXTextRangeRef range = RangeOf("opening");
    KRXParaInspectorRef inspector = nullptr;
    ASSERT_EQ(paraInspectors->Create(range, &inspector), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
    KRXArrayParagraphJustificationRef values = nullptr;
    ASSERT_EQ(paraInspectors->GetJustification(inspector, &values), ZM_ERR_NONE);
    // The array suite may not be in this build yet: the host's array object is read directly.
    auto& array = runtime.objects.Require<
        KRXArrayObject<KRXArrayParagraphJustificationRef, KRXEnumValue>>(values);
    EXPECT_EQ(array.items, std::vector<KRXEnumValue>{KRX_PARAGRAPH_JUSTIFICATION_LEFT});
    runtime.objects.Release<KRXArrayObject<KRXArrayParagraphJustificationRef, KRXEnumValue>>(
        values);
    EXPECT_EQ(paraInspectors->GetJustification(inspector, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paraInspectors->Release(inspector), ZM_ERR_NONE);
}

TEST_F(KRXParagraphSuitesTest, TheDocumentHasTheNormalParagraphStyle) {
    KRXParaStylesRef list = nullptr;
    ASSERT_EQ(styles->GetDocumentParaStyles(&list), ZM_ERR_NONE);
    KRXParaStylesIteratorRef iterator = nullptr;
    ASSERT_EQ(stylesIterators->Create(list, &iterator), ZM_ERR_NONE);
    auto names = Walk(
        stylesIterators, iterator,
        [&](KRXParaStyleRef item) {
            char name[64] = {};
            EXPECT_EQ(style->GetName(item, name, sizeof name), ZM_ERR_NONE);
            KRXParaFeaturesRef set = nullptr;
            EXPECT_EQ(style->GetFeatures(item, &set), ZM_ERR_NONE);
            KRXEnumValue justification = -1;
            int32_t assigned = 0;
            EXPECT_EQ(features->GetJustification(set, &justification, &assigned), ZM_ERR_NONE);
            EXPECT_EQ(assigned, 1);
            EXPECT_EQ(justification, KRX_PARAGRAPH_JUSTIFICATION_LEFT);
            EXPECT_EQ(features->Release(set), ZM_ERR_NONE);
            return std::string(name);
        },
        style->Release);
    EXPECT_EQ(names, Strings{"Normal Paragraph Style"});
    EXPECT_EQ(styles->Release(list), ZM_ERR_NONE);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(styles->GetDocumentParaStyles(&list), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
