#include <gtest/gtest.h>
#include <zelmora/ZMRealMathSuite.h>

#include <cmath>

#include "host/suites/SuiteFixture.hpp"

namespace zm::host {
namespace {

constexpr double kTolerance = 1.52587890625e-05;  // 2^-16

class RealMathSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override { Acquire(ZM_REAL_MATH_SUITE_NAME, ZM_REAL_MATH_SUITE_VERSION, math); }

    ZMBool Equal(double a, double b, double tolerance) {
        ZMBool equal = -1;
        EXPECT_EQ(math->EqualWithinTol(a, b, tolerance, &equal), ZM_ERR_NONE);
        return equal;
    }

    const ZMRealMathSuite* math = nullptr;
};

TEST_F(RealMathSuiteTest, RealsCloserThanTheToleranceAreEqual) {
    EXPECT_EQ(Equal(10, 10.00001, kTolerance), 1);  // 1e-5 apart, below 2^-16
    EXPECT_EQ(Equal(10, 10.0001, kTolerance), 0);   // 1e-4 apart, above it
    EXPECT_EQ(Equal(10.0001, 10, kTolerance), 0);   // the order does not matter
}

TEST_F(RealMathSuiteTest, ADifferenceOfExactlyTheToleranceIsEqual) {
    EXPECT_EQ(Equal(0, 0.25, 0.25), 1);  // both exact in binary: "no greater than"
    EXPECT_EQ(Equal(3, 3, 0), 1);
}

TEST_F(RealMathSuiteTest, ANegativeToleranceOrANaNIsABadArgument) {
    ZMBool equal = 0;
    EXPECT_EQ(math->EqualWithinTol(1, 1, -1, &equal), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(math->EqualWithinTol(NAN, 1, 1, &equal), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(math->EqualWithinTol(1, 1, 1, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(RealMathSuiteTest, TheSmallHelpersGiveWhatTheirNamesSay) {
    double result = 0;
    ASSERT_EQ(math->AbsReal(-2.5, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, 2.5);
    ASSERT_EQ(math->MinReal(3, -4, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, -4);
    ASSERT_EQ(math->MaxReal(3, -4, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, 3);
    ASSERT_EQ(math->ClampReal(12, 0, 10, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, 10);
    ASSERT_EQ(math->ClampReal(-1, 0, 10, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, 0);
    ZMRealPoint a{1, 1};
    ZMRealPoint b{4, 5};
    ASSERT_EQ(math->PointDistance(&a, &b, &result), ZM_ERR_NONE);
    EXPECT_EQ(result, 5);  // 3 across, 4 up
}

TEST_F(RealMathSuiteTest, AClampWhoseLowIsAboveItsHighIsABadArgument) {
    double result = 0;
    EXPECT_EQ(math->ClampReal(1, 10, 0, &result), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(math->PointDistance(nullptr, nullptr, &result), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
