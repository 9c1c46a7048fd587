#include <runtime/BlockAllocator.hpp>
#include <runtime/FaultPlan.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace zm::host {
namespace {

TEST(BlockAllocatorTest, AReleaseHookRunsOnceWithItsBlockWhenTheBlockIsFreed) {
    FaultPlan faults;
    BlockAllocator blocks(faults);
    std::vector<const void*> released;
    void* hooked = blocks.Allocate(8, [&](const void* block) { released.push_back(block); });
    void* plain = blocks.Allocate(8);
    ASSERT_NE(hooked, nullptr);
    EXPECT_TRUE(blocks.Free(plain));
    EXPECT_TRUE(released.empty());  // another block's release is none of this hook's business
    EXPECT_TRUE(blocks.Free(hooked));
    EXPECT_EQ(released, std::vector<const void*>{hooked});
    EXPECT_FALSE(blocks.Free(hooked));  // freed already: refused, and the hook stays quiet
    EXPECT_EQ(released.size(), 1u);
}

TEST(BlockAllocatorTest, AReleaseHookDoesNotRunWhenTheAllocatorGoes) {
    FaultPlan faults;
    int runs = 0;
    {
        BlockAllocator blocks(faults);
        ASSERT_NE(blocks.Allocate(8, [&](const void*) { ++runs; }), nullptr);
    }
    EXPECT_EQ(runs, 0);
}

TEST(BlockAllocatorTest, AFailedAllocationKeepsNoHook) {
    FaultPlan faults;
    BlockAllocator blocks(faults);
    faults.FailAllocation(1);
    int runs = 0;
    EXPECT_EQ(blocks.Allocate(8, [&](const void*) { ++runs; }), nullptr);
    EXPECT_EQ(blocks.LiveBlocks(), 0u);
    EXPECT_EQ(runs, 0);
}

}  // namespace
}  // namespace zm::host
