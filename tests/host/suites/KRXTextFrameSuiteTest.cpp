#include "host/suites/TextEngineFixture.hpp"

#include <suites/TextEngineObjects.hpp>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class KRXTextFrameSuiteTest : public zm::test::TextEngineFixture {
protected:
    // A new engine frame for the frame art with that id; the test releases it.
    KRXTextFrameRef FrameOf(const char* id) {
        KRXTextFrameRef frame = nullptr;
        EXPECT_EQ(textFrames->GetKRXTextFrame(Frame(id), &frame), ZM_ERR_NONE) << id;
        return frame;
    }

    KRXFrameType TypeOfFrame(const char* fixture, const char* id) {
        OpenText(fixture);
        KRXTextFrameRef frame = FrameOf(id);
        KRXFrameType type = -1;
        EXPECT_EQ(frames->GetType(frame, &type), ZM_ERR_NONE);
        EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
        return type;
    }
};

TEST_F(KRXTextFrameSuiteTest, TheTypeIsTheKindOfTheFrame) {
    EXPECT_EQ(TypeOfFrame("two-fonts.svg", "greeting"), KRX_FRAME_TYPE_POINT);
    EXPECT_EQ(TypeOfFrame("area.svg", "flowing"), KRX_FRAME_TYPE_IN_PATH);
    EXPECT_EQ(TypeOfFrame("on-path.svg", "along"), KRX_FRAME_TYPE_ON_PATH);
}

TEST_F(KRXTextFrameSuiteTest, TheFramesRangeHoldsAllItsText) {
    OpenText("area.svg");
    KRXTextFrameRef frame = FrameOf("flowing");
    KRXTextRangeRef range = nullptr;
    ASSERT_EQ(frames->GetTextRange(frame, &range), ZM_ERR_NONE);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);  // the range does not need its frame
    char buffer[64] = {};
    EXPECT_EQ(ranges->GetContents(range, buffer, sizeof buffer), ZM_ERR_NONE);
    EXPECT_STREQ(buffer, "Flowing text");  // the line end and the indent collapse to a blank
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
}

TEST_F(KRXTextFrameSuiteTest, ReleaseGivesBackOneReferenceAtATime) {
    OpenText("two-fonts.svg");
    KRXTextFrameRef frame = FrameOf("greeting");
    EXPECT_EQ(frames->AddRef(frame), ZM_ERR_NONE);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextFrameObject>(), 1u);  // one reference left
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextFrameObject>(), 0u);

    KRXFrameType type = -1;
    KRXTextRangeRef range = nullptr;
    EXPECT_EQ(frames->Release(frame), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->AddRef(frame), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->GetType(frame, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->GetTextRange(frame, &range), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(type, -1);
    EXPECT_EQ(range, nullptr);
}

TEST_F(KRXTextFrameSuiteTest, BadReferencesAndMissingOutputsAreBadArguments) {
    OpenText("two-fonts.svg");
    auto foreign = zm::test::ForeignHandle<KRXTextFrameRef>();
    KRXFrameType type = -1;
    KRXTextRangeRef range = nullptr;
    EXPECT_EQ(frames->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->Release(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->GetType(foreign, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->GetTextRange(nullptr, &range), ZM_ERR_BAD_ARGUMENT);

    KRXTextFrameRef frame = FrameOf("greeting");
    EXPECT_EQ(frames->GetType(frame, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(frames->GetTextRange(frame, nullptr), ZM_ERR_BAD_ARGUMENT);
    // A reference of another kind is no frame, though the store holds it.
    KRXTextRangeRef other = RangeOf("greeting");
    EXPECT_EQ(frames->GetType(reinterpret_cast<KRXTextFrameRef>(other), &type),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->Release(other), ZM_ERR_NONE);
    EXPECT_EQ(frames->Release(frame), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
