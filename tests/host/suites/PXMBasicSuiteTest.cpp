#include "host/suites/SuiteFixture.hpp"

#include <zelmora/PXMBasicSuite.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

// Literals in this file are UTF-8.
namespace zm::host {
namespace {

constexpr int32_t kList = 19200;
constexpr char kUntouched = 'x';

// The probe's string list 19200: indexes 1, 3 and 4 hold keys, 5 a text that is not a key;
// index 2 is missing on purpose.
class PXMBasicSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        plugin.bundle.strings.Add(19201, "$$$/Probe/First=First");
        plugin.bundle.strings.Add(19203, "$$$/Probe/Key=Text");
        plugin.bundle.strings.Add(19204, "$$$/Probe/Accent=aé");  // 3 bytes: "é" takes two
        plugin.bundle.strings.Add(19205, "Plain");
        Acquire(ZM_PXM_BASIC_SUITE_NAME, ZM_PXM_BASIC_SUITE_VERSION, strings);
        buffer.fill(kUntouched);
    }

    // The entry's code; the text it wrote is then in buffer.
    ZMErr Text(int32_t index, int32_t maxLength = 32) {
        return strings->GetIndexedString(ref, kList, index, buffer.data(), maxLength);
    }
    ZMErr Key(int32_t index, int32_t maxLength = 32) {
        return strings->GetIndexedStringKey(ref, kList, index, buffer.data(), maxLength);
    }

    bool BufferUntouched() const {
        for (char c : buffer) {
            if (c != kUntouched) {
                return false;
            }
        }
        return true;
    }

    const PXMBasicSuite* strings = nullptr;
    std::array<char, 64> buffer{};
};

TEST_F(PXMBasicSuiteTest, AStringIsAddressedAsListIdPlusItsOneBasedIndex) {
    ASSERT_EQ(Text(3), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "Text");
    ASSERT_EQ(Text(1), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "First");
}

TEST_F(PXMBasicSuiteTest, TheSameIdIsReachedFromAnotherListAndIndex) {
    // 19202 + 1 is 19203: the list id is no more than a base number.
    ASSERT_EQ(strings->GetIndexedString(ref, kList + 2, 1, buffer.data(), 32), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "Text");
}

TEST_F(PXMBasicSuiteTest, GetIndexedStringKeyGivesTheKeyAsTheTableHoldsIt) {
    ASSERT_EQ(Key(3), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "$$$/Probe/Key=Text");
}

TEST_F(PXMBasicSuiteTest, ATextThatIsNotAKeyIsItsOwnLocalizedText) {
    ASSERT_EQ(Text(5), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "Plain");
}

TEST_F(PXMBasicSuiteTest, ATranslationWinsOverTheDefaultText) {
    runtime.localizer.AddTranslation("$$$/Probe/Key", "Übersetzt");
    ASSERT_EQ(Text(3), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "Übersetzt");
}

TEST_F(PXMBasicSuiteTest, ATranslationLeavesTheKeyAsTheTableHoldsIt) {
    runtime.localizer.AddTranslation("$$$/Probe/Key", "Anders");
    ASSERT_EQ(Key(3), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "$$$/Probe/Key=Text");
}

TEST_F(PXMBasicSuiteTest, ALongerTextIsCutToMaxLengthBytesAndANul) {
    ASSERT_EQ(Text(3, 2), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "Te");
    EXPECT_EQ(buffer[3], kUntouched);  // maxLength + 1 bytes written, no more
}

TEST_F(PXMBasicSuiteTest, ATextOfExactlyMaxLengthBytesIsWhole) {
    ASSERT_EQ(Text(3, 4), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "Text");
    EXPECT_EQ(buffer[5], kUntouched);
}

TEST_F(PXMBasicSuiteTest, AZeroMaxLengthWritesOnlyTheNul) {
    ASSERT_EQ(Text(3, 0), ZM_ERR_NONE);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(buffer[1], kUntouched);
}

TEST_F(PXMBasicSuiteTest, ACutNeverSplitsAUtf8Sequence) {
    ASSERT_EQ(Text(4, 2), ZM_ERR_NONE);  // "a" and the first byte of "é" would fit
    EXPECT_STREQ(buffer.data(), "a");
    ASSERT_EQ(Text(4, 3), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "aé");
}

TEST_F(PXMBasicSuiteTest, TheKeyIsCutByTheSameRule) {
    ASSERT_EQ(Key(3, 4), ZM_ERR_NONE);
    EXPECT_STREQ(buffer.data(), "$$$/");
}

TEST_F(PXMBasicSuiteTest, AMissingStringIsNotFoundAndLeavesTheBufferUntouched) {
    EXPECT_EQ(Text(2), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(Key(2), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(strings->GetIndexedString(ref, 16000, 1, buffer.data(), 32), ZM_ERR_NOT_FOUND);
    EXPECT_TRUE(BufferUntouched());
}

TEST_F(PXMBasicSuiteTest, IndexZeroIsNotFoundEvenWhenTheListIdItselfHoldsAString) {
    plugin.bundle.strings.Add(kList, "$$$/Probe/Zero=Zero");
    EXPECT_EQ(Text(0), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(Key(0), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(Text(-1), ZM_ERR_NOT_FOUND);
    EXPECT_TRUE(BufferUntouched());
}

TEST_F(PXMBasicSuiteTest, AnIdBeyondTheRangeOfIdsIsNotFound) {
    plugin.bundle.strings.Add(std::numeric_limits<int32_t>::min(), "$$$/Probe/Lowest=Lowest");
    // List + index past the largest id must not wrap round to the lowest one.
    EXPECT_EQ(
        strings->GetIndexedString(ref, std::numeric_limits<int32_t>::max(), 1, buffer.data(), 32),
        ZM_ERR_NOT_FOUND);
    EXPECT_TRUE(BufferUntouched());
}

TEST_F(PXMBasicSuiteTest, APluginRefTheHostNeverMadeIsABadArgument) {
    EXPECT_EQ(strings->GetIndexedString(zm::test::ForeignHandle<ZMPluginRef>(), kList, 3,
                                        buffer.data(), 32),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->GetIndexedStringKey(nullptr, kList, 3, buffer.data(), 32),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(BufferUntouched());
}

TEST_F(PXMBasicSuiteTest, ANullBufferOrANegativeMaxLengthIsABadArgument) {
    EXPECT_EQ(strings->GetIndexedString(ref, kList, 3, nullptr, 32), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(strings->GetIndexedStringKey(ref, kList, 3, nullptr, 32), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Text(3, -1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Key(3, -1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_TRUE(BufferUntouched());
}

}  // namespace
}  // namespace zm::host
