#include "host/suites/SuiteFixture.hpp"

#include <zelmora/ZMContextSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class ContextSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override { Acquire(ZM_CONTEXT_SUITE_NAME, ZM_CONTEXT_SUITE_VERSION, contexts); }

    ZMAppContext Open() {
        ZMAppContext context = nullptr;
        EXPECT_EQ(contexts->OpenContext(ref, &context), ZM_ERR_NONE);
        return context;
    }

    int32_t Depth() {
        int32_t depth = -1;
        EXPECT_EQ(contexts->GetContextDepth(&depth), ZM_ERR_NONE);
        return depth;
    }

    const ZMContextSuite* contexts = nullptr;
};

TEST_F(ContextSuiteTest, NoContextIsOpenAtFirst) { EXPECT_EQ(Depth(), 0); }

TEST_F(ContextSuiteTest, EachOpenContextCountsTowardsTheDepth) {
    ZMAppContext outer = Open();
    EXPECT_EQ(Depth(), 1);
    ZMAppContext inner = Open();
    EXPECT_EQ(Depth(), 2);
    EXPECT_NE(outer, inner);
    EXPECT_EQ(contexts->CloseContext(inner), ZM_ERR_NONE);
    EXPECT_EQ(contexts->CloseContext(outer), ZM_ERR_NONE);
}

TEST_F(ContextSuiteTest, NestedContextsCloseInnermostFirst) {
    ZMAppContext outer = Open();
    ZMAppContext inner = Open();
    ASSERT_EQ(contexts->CloseContext(inner), ZM_ERR_NONE);
    EXPECT_EQ(Depth(), 1);
    ASSERT_EQ(contexts->CloseContext(outer), ZM_ERR_NONE);
    EXPECT_EQ(Depth(), 0);
}

TEST_F(ContextSuiteTest, ClosingAnOuterContextFirstIsABadArgumentAndClosesNothing) {
    ZMAppContext outer = Open();
    ZMAppContext inner = Open();
    EXPECT_EQ(contexts->CloseContext(outer), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Depth(), 2);
    // Both are still open, in their order.
    EXPECT_EQ(contexts->CloseContext(inner), ZM_ERR_NONE);
    EXPECT_EQ(contexts->CloseContext(outer), ZM_ERR_NONE);
}

TEST_F(ContextSuiteTest, ClosingAContextTwiceIsABadArgument) {
    ZMAppContext outer = Open();
    ZMAppContext inner = Open();
    ASSERT_EQ(contexts->CloseContext(inner), ZM_ERR_NONE);
    EXPECT_EQ(contexts->CloseContext(inner), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Depth(), 1);
    EXPECT_EQ(contexts->CloseContext(outer), ZM_ERR_NONE);
}

TEST_F(ContextSuiteTest, ClosingWhenNoneIsOpenIsABadArgument) {
    EXPECT_EQ(contexts->CloseContext(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(contexts->CloseContext(zm::test::ForeignHandle<ZMAppContext>()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Depth(), 0);
}

TEST_F(ContextSuiteTest, AClosedContextIsNeverHandedOutAgain) {
    ZMAppContext first = Open();
    ASSERT_EQ(contexts->CloseContext(first), ZM_ERR_NONE);
    ZMAppContext second = Open();
    // A stale handle must not close the newer context.
    EXPECT_NE(first, second);
    EXPECT_EQ(contexts->CloseContext(first), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(contexts->CloseContext(second), ZM_ERR_NONE);
}

TEST_F(ContextSuiteTest, APluginRefTheHostNeverMadeIsABadArgumentAndOpensNothing) {
    ZMAppContext context = nullptr;
    EXPECT_EQ(contexts->OpenContext(zm::test::ForeignHandle<ZMPluginRef>(), &context),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(contexts->OpenContext(nullptr, &context), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(context, nullptr);
    EXPECT_EQ(Depth(), 0);
}

TEST_F(ContextSuiteTest, ContextsOfTwoPluginsNestInOneStack) {
    LoadedPlugin& other = Adopt("Other");
    ZMAppContext outer = Open();
    ZMAppContext inner = nullptr;
    ASSERT_EQ(contexts->OpenContext(other.Ref(), &inner), ZM_ERR_NONE);
    EXPECT_EQ(Depth(), 2);
    EXPECT_EQ(contexts->CloseContext(outer), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(contexts->CloseContext(inner), ZM_ERR_NONE);
    EXPECT_EQ(contexts->CloseContext(outer), ZM_ERR_NONE);
}

TEST_F(ContextSuiteTest, NullOutPointersAreABadArgument) {
    EXPECT_EQ(contexts->GetContextDepth(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(contexts->OpenContext(ref, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Depth(), 0);
}

}  // namespace
}  // namespace zm::host
