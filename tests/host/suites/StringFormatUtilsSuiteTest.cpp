#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMStringFormatUtilsSuite.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace zm::host {
namespace {

class StringFormatUtilsSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_STRING_FORMAT_UTILS_SUITE_NAME, ZM_STRING_FORMAT_UTILS_SUITE_VERSION, formats);
    }

    void TearDown() override {
        for (ZMNumberFormat format : made_) {
            EXPECT_EQ(formats->DisposeNumberFormat(format), ZM_ERR_NONE);
        }
        made_.clear();
        DocumentSuiteFixture::TearDown();
    }

    // A formatter for the locale the host has now, disposed after the test.
    ZMNumberFormat Format(int32_t options = ZM_NUMBER_FORMAT_DEFAULT) {
        ZMNumberFormat format = nullptr;
        EXPECT_EQ(formats->NewNumberFormat(options, &format), ZM_ERR_NONE);
        made_.push_back(format);
        return format;
    }

    std::string Integer(ZMNumberFormat format, int32_t value) {
        ZMUnicodeString text = String();
        EXPECT_EQ(formats->FormatInteger(format, value, text), ZM_ERR_NONE);
        return Text(text);
    }

    std::string Real(ZMNumberFormat format, double value, int32_t decimals) {
        ZMUnicodeString text = String();
        EXPECT_EQ(formats->FormatReal(format, value, decimals, text), ZM_ERR_NONE);
        return Text(text);
    }

    const ZMStringFormatUtilsSuite* formats = nullptr;

private:
    std::vector<ZMNumberFormat> made_;
};

TEST_F(StringFormatUtilsSuiteTest, TheDefaultFormatGroupsThousandsInEnglish) {
    EXPECT_EQ(Integer(Format(), 1234), "1,234");
    EXPECT_EQ(Integer(Format(), 1234567), "1,234,567");
    EXPECT_EQ(Integer(Format(), 999), "999");  // nothing to group below a thousand
    EXPECT_EQ(Integer(Format(), -1234), "-1,234");
}

TEST_F(StringFormatUtilsSuiteTest, WithoutGroupingIntegersAreDigitsOnly) {
    EXPECT_EQ(Integer(Format(ZM_NUMBER_FORMAT_NO_GROUPING), 1234), "1234");
    EXPECT_EQ(Integer(Format(ZM_NUMBER_FORMAT_NO_GROUPING), 1234567), "1234567");
}

TEST_F(StringFormatUtilsSuiteTest, GermanGroupsWithPointsAndMarksDecimalsWithAComma) {
    runtime.localizer.SetLocale("de-DE");
    EXPECT_EQ(Integer(Format(), 1234), "1.234");
    EXPECT_EQ(Real(Format(), 1234.5, 2), "1.234,50");
    EXPECT_EQ(Real(Format(ZM_NUMBER_FORMAT_NO_GROUPING), 1234.5, 2), "1234,50");
}

TEST_F(StringFormatUtilsSuiteTest, AFormatterKeepsTheLocaleItWasMadeIn) {
    ZMNumberFormat english = Format();
    runtime.localizer.SetLocale("de-DE");
    EXPECT_EQ(Integer(english, 1234), "1,234");
    ZMUnicodeString tag = String();
    EXPECT_EQ(formats->GetFormatLocale(english, tag), ZM_ERR_NONE);
    EXPECT_EQ(Text(tag), "en-US");
}

TEST_F(StringFormatUtilsSuiteTest, RealsHaveExactlyTheDecimalsAsked) {
    EXPECT_EQ(Real(Format(), 1234.5, 2), "1,234.50");  // a zero added to reach two
    EXPECT_EQ(Real(Format(), 3.14159, 3), "3.142");    // 3.14159 rounds up at the third
    EXPECT_EQ(Real(Format(), 2.0, 0), "2");
    // 0.125 is exact in binary and halfway: half to even keeps the 2.
    EXPECT_EQ(Real(Format(), 0.125, 2), "0.12");
}

TEST_F(StringFormatUtilsSuiteTest, ParsingReadsTheLocalesOwnForm) {
    double value = 0;
    EXPECT_EQ(formats->ParseNumber(Format(), String("1,234.5"), &value), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(value, 1234.5);
    runtime.localizer.SetLocale("de-DE");
    EXPECT_EQ(formats->ParseNumber(Format(), String("1.234,5"), &value), ZM_ERR_NONE);
    EXPECT_DOUBLE_EQ(value, 1234.5);
}

TEST_F(StringFormatUtilsSuiteTest, TextThatIsNotANumberIsRefusedAndTheValueKept) {
    double value = 7;
    EXPECT_EQ(formats->ParseNumber(Format(), String("12 apples"), &value), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->ParseNumber(Format(), String(""), &value), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(value, 7);
}

TEST_F(StringFormatUtilsSuiteTest, BadArgumentsAreRefused) {
    ZMNumberFormat format = nullptr;
    EXPECT_EQ(formats->NewNumberFormat(4, &format), ZM_ERR_BAD_ARGUMENT);  // no such option
    EXPECT_EQ(formats->NewNumberFormat(ZM_NUMBER_FORMAT_DEFAULT, nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMUnicodeString text = String();
    EXPECT_EQ(formats->FormatInteger(nullptr, 1, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->FormatInteger(zm::test::ForeignHandle<ZMNumberFormat>(), 1, text),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->FormatInteger(Format(), 1, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->FormatReal(Format(), 1.0, -1, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->FormatReal(Format(), 1.0, 16, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->FormatReal(Format(), std::nan(""), 2, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->FormatReal(Format(), std::numeric_limits<double>::infinity(), 2, text),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Text(text), "");  // no failure wrote anything
}

TEST_F(StringFormatUtilsSuiteTest, AFormatterIsGoneOnceDisposed) {
    ZMNumberFormat format = nullptr;
    ASSERT_EQ(formats->NewNumberFormat(ZM_NUMBER_FORMAT_DEFAULT, &format), ZM_ERR_NONE);
    EXPECT_EQ(formats->DisposeNumberFormat(format), ZM_ERR_NONE);
    EXPECT_EQ(formats->DisposeNumberFormat(format), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(formats->DisposeNumberFormat(nullptr), ZM_ERR_NONE);
    EXPECT_EQ(formats->FormatInteger(format, 1, String()), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
