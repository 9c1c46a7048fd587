#include "host/suites/TextEngineFixture.hpp"

#include <suites/TextEngineObjects.hpp>

#include <gtest/gtest.h>

#include <cstring>

namespace zm::host {
namespace {

// "Grüße, world": twelve characters in fourteen bytes, ü (C3 BC) at bytes 2-3 and ß (C3 9F)
// at bytes 4-5.
constexpr const char* kGreeting =
    "Gr\xC3\xBC\xC3\x9F"
    "e, world";

class KRXTextRangeSuiteTest : public zm::test::TextEngineFixture {
protected:
    void SetUp() override {
        TextEngineFixture::SetUp();
        OpenText("two-fonts.svg");
        range = RangeOf("greeting");
    }

    void TearDown() override {
        if (range != nullptr) {
            EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
        }
        TextEngineFixture::TearDown();
    }

    // The contents written into a buffer of bufferSize bytes, which starts out all 'x'.
    std::string Cut(int32_t bufferSize) {
        char buffer[32];
        std::memset(buffer, 'x', sizeof buffer);
        EXPECT_EQ(ranges->GetContents(range, buffer, bufferSize), ZM_ERR_NONE);
        EXPECT_EQ(buffer[bufferSize], 'x') << "written past the buffer";
        return buffer;
    }

    KRXTextRangeRef range = nullptr;
};

TEST_F(KRXTextRangeSuiteTest, TheSizeCountsCharactersNotBytes) {
    int32_t size = -1;
    EXPECT_EQ(ranges->GetSize(range, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 12);  // "Grüße, " and "world"
}

TEST_F(KRXTextRangeSuiteTest, TheContentsAreTheRunsInOrder) {
    EXPECT_EQ(Cut(15), kGreeting);  // fourteen bytes and the NUL: just enough
}

TEST_F(KRXTextRangeSuiteTest, TextThatDoesNotFitIsCutAfterTheLastWholeCharacter) {
    EXPECT_EQ(Cut(14),
              "Gr\xC3\xBC\xC3\x9F"
              "e, worl");     // one byte short: the last "d" goes
    EXPECT_EQ(Cut(4), "Gr");  // room for "Gr" and the first byte of ü, which stays out whole
    EXPECT_EQ(Cut(5), "Gr\xC3\xBC");  // ü fits
    EXPECT_EQ(Cut(6), "Gr\xC3\xBC");  // ß does not
    EXPECT_EQ(Cut(1), "");            // room for the NUL alone
}

TEST_F(KRXTextRangeSuiteTest, ABufferWithoutRoomIsABadArgument) {
    char buffer[8] = "kept";
    EXPECT_EQ(ranges->GetContents(range, buffer, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetContents(range, buffer, -5), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetContents(range, nullptr, 8), ZM_ERR_BAD_ARGUMENT);
    EXPECT_STREQ(buffer, "kept");
}

TEST_F(KRXTextRangeSuiteTest, TheInspectorSeesTheRangesCharacters) {
    KRXCharInspectorRef inspector = nullptr;
    ASSERT_EQ(ranges->GetCharInspector(range, &inspector), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);  // the inspector keeps the text
    range = nullptr;
    // Liberation Sans for "Grüße, ", Nimbus Sans bold for "world".
    EXPECT_EQ(FontKeys(inspector),
              (std::vector<ZMFontKey>{Key("Liberation Sans"), Key("Nimbus Sans", 700)}));
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
}

TEST_F(KRXTextRangeSuiteTest, AnEmptyTextFrameHasAnEmptyRange) {
    ImportedDocumentFixture::ImportText(
        R"(<svg xmlns="http://www.w3.org/2000/svg"><text id="empty" x="1" y="1"> </text></svg>)");
    KRXTextRangeRef empty = RangeOf("empty");
    int32_t size = -1;
    EXPECT_EQ(ranges->GetSize(empty, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 0);
    char buffer[4] = "abc";
    EXPECT_EQ(ranges->GetContents(empty, buffer, sizeof buffer), ZM_ERR_NONE);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(ranges->Release(empty), ZM_ERR_NONE);
}

TEST_F(KRXTextRangeSuiteTest, ReleaseGivesBackOneReferenceAtATime) {
    EXPECT_EQ(ranges->AddRef(range), ZM_ERR_NONE);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextRangeObject>(), 1u);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextRangeObject>(), 0u);

    int32_t size = -1;
    char buffer[8] = "kept";
    KRXCharInspectorRef inspector = nullptr;
    EXPECT_EQ(ranges->Release(range), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->AddRef(range), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetSize(range, &size), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetContents(range, buffer, sizeof buffer), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetCharInspector(range, &inspector), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(size, -1);
    EXPECT_STREQ(buffer, "kept");
    EXPECT_EQ(inspector, nullptr);
    range = nullptr;
}

TEST_F(KRXTextRangeSuiteTest, BadReferencesAndMissingOutputsAreBadArguments) {
    auto foreign = zm::test::ForeignHandle<KRXTextRangeRef>();
    int32_t size = -1;
    KRXCharInspectorRef inspector = nullptr;
    EXPECT_EQ(ranges->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->Release(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetSize(foreign, &size), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetCharInspector(nullptr, &inspector), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetSize(range, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->GetCharInspector(range, nullptr), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
