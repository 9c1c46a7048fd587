#include "host/suites/SuiteFixture.hpp"

#include <suites/BasicSuite.hpp>

#include <zelmora/ZMMenuSuite.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace zm::host {
namespace {

constexpr const char* kName = ZM_MENU_SUITE_NAME;
constexpr int32_t kVersion = ZM_MENU_SUITE_VERSION;
constexpr int32_t kAcquireEntry = 0;

// The table every message carries; it needs no acquiring of its own.
class BasicSuiteTest : public zm::test::SuiteFixture {
protected:
    int64_t Acquired() const { return runtime.suites.Find(kName, kVersion)->acquired; }
    int64_t Released() const { return runtime.suites.Find(kName, kVersion)->released; }

    const ZMBasicSuite& basic = HostBasicSuite();
    int sentinel = 0;  // its address marks an out pointer the host must leave alone
};

TEST_F(BasicSuiteTest, AcquireSuiteGivesTheRegisteredTable) {
    const void* table = nullptr;
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_NONE);
    EXPECT_NE(table, nullptr);
    EXPECT_EQ(table, runtime.suites.Find(kName, kVersion)->table);
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
}

TEST_F(BasicSuiteTest, EveryAcquisitionGivesTheSameTablePointer) {
    const void* first = nullptr;
    const void* second = nullptr;
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &first), ZM_ERR_NONE);
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &second), ZM_ERR_NONE);
    EXPECT_EQ(first, second);
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
}

TEST_F(BasicSuiteTest, EachSuccessfulAcquisitionCountsOnce) {
    const void* table = nullptr;
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_NONE);
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_NONE);
    EXPECT_EQ(Acquired(), 2);
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
}

TEST_F(BasicSuiteTest, EachReleaseGivesOneAcquisitionBack) {
    const void* table = nullptr;
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_NONE);
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_NONE);
    ASSERT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
    EXPECT_EQ(Released(), 1);
    ASSERT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
    EXPECT_EQ(Released(), 2);
}

TEST_F(BasicSuiteTest, AnUnknownNameIsNotFoundAndLeavesTheOutPointerAlone) {
    const void* table = &sentinel;
    EXPECT_EQ(basic.AcquireSuite("ZM No Such Suite", 1, &table), ZM_ERR_SUITE_NOT_FOUND);
    EXPECT_EQ(table, &sentinel);
}

TEST_F(BasicSuiteTest, AnUnknownVersionOfAKnownNameIsNotFoundAndLeavesTheOutPointerAlone) {
    const void* table = &sentinel;
    EXPECT_EQ(basic.AcquireSuite(kName, kVersion + 1, &table), ZM_ERR_SUITE_NOT_FOUND);
    EXPECT_EQ(basic.AcquireSuite(kName, kVersion - 1, &table), ZM_ERR_SUITE_NOT_FOUND);
    EXPECT_EQ(table, &sentinel);
    EXPECT_EQ(Acquired(), 0);
}

TEST_F(BasicSuiteTest, AcquiringWithoutNameOrOutPointerIsABadArgument) {
    const void* table = &sentinel;
    EXPECT_EQ(basic.AcquireSuite(nullptr, kVersion, &table), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(basic.AcquireSuite(kName, kVersion, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(table, &sentinel);
    EXPECT_EQ(Acquired(), 0);
}

TEST_F(BasicSuiteTest, ReleasingASuiteNeverAcquiredIsABadArgument) {
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Released(), 0);
}

TEST_F(BasicSuiteTest, ReleasingMoreOftenThanAcquiredIsABadArgument) {
    const void* table = nullptr;
    ASSERT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_NONE);
    ASSERT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_NONE);
    EXPECT_EQ(basic.ReleaseSuite(kName, kVersion), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Released(), 1);
}

TEST_F(BasicSuiteTest, ReleasingAnUnknownSuiteIsNotFound) {
    EXPECT_EQ(basic.ReleaseSuite("ZM No Such Suite", 1), ZM_ERR_SUITE_NOT_FOUND);
}

TEST_F(BasicSuiteTest, ReleasingWithoutANameIsABadArgument) {
    EXPECT_EQ(basic.ReleaseSuite(nullptr, kVersion), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(BasicSuiteTest, IsEqualIsNonZeroOnlyForEqualStrings) {
    EXPECT_NE(basic.IsEqual("Probe", "Probe"), 0);
    EXPECT_NE(basic.IsEqual("", ""), 0);
    EXPECT_EQ(basic.IsEqual("Probe", "probe"), 0);
    EXPECT_EQ(basic.IsEqual("Probe", "Probes"), 0);
    EXPECT_EQ(basic.IsEqual("Probes", "Probe"), 0);
}

TEST_F(BasicSuiteTest, AllocateBlockGivesAZeroFilledBlock) {
    void* block = nullptr;
    ASSERT_EQ(basic.AllocateBlock(256, &block), ZM_ERR_NONE);
    ASSERT_NE(block, nullptr);
    const auto* bytes = static_cast<const unsigned char*>(block);
    for (std::size_t i = 0; i < 256; ++i) {
        ASSERT_EQ(bytes[i], 0u) << "byte " << i;
    }
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 1u);
    EXPECT_EQ(basic.FreeBlock(block), ZM_ERR_NONE);
}

TEST_F(BasicSuiteTest, FreeBlockGivesTheBlockBack) {
    void* block = nullptr;
    ASSERT_EQ(basic.AllocateBlock(16, &block), ZM_ERR_NONE);
    EXPECT_EQ(basic.FreeBlock(block), ZM_ERR_NONE);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

TEST_F(BasicSuiteTest, FreeingNullIsIgnored) { EXPECT_EQ(basic.FreeBlock(nullptr), ZM_ERR_NONE); }

TEST_F(BasicSuiteTest, FreeingAPointerTheHostNeverAllocatedIsABadArgument) {
    void* block = nullptr;
    ASSERT_EQ(basic.AllocateBlock(16, &block), ZM_ERR_NONE);
    EXPECT_EQ(basic.FreeBlock(&sentinel), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 1u);  // the host's own block is not touched
    EXPECT_EQ(basic.FreeBlock(block), ZM_ERR_NONE);
}

TEST_F(BasicSuiteTest, FreeingABlockTwiceIsABadArgument) {
    void* block = nullptr;
    ASSERT_EQ(basic.AllocateBlock(16, &block), ZM_ERR_NONE);
    ASSERT_EQ(basic.FreeBlock(block), ZM_ERR_NONE);
    EXPECT_EQ(basic.FreeBlock(block), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(BasicSuiteTest, AllocatingWithoutAnOutPointerIsABadArgument) {
    EXPECT_EQ(basic.AllocateBlock(16, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

TEST_F(BasicSuiteTest, AnAllocationWithoutMemoryIsNoMemoryAndNull) {
    runtime.faults.FailAllocation(1);
    void* block = &sentinel;
    EXPECT_EQ(basic.AllocateBlock(16, &block), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

TEST_F(BasicSuiteTest, OnlyThePlannedAllocationFails) {
    runtime.faults.FailAllocation(1);
    void* block = nullptr;
    ASSERT_EQ(basic.AllocateBlock(16, &block), ZM_ERR_NO_MEMORY);
    ASSERT_EQ(basic.AllocateBlock(16, &block), ZM_ERR_NONE);
    EXPECT_NE(block, nullptr);
    EXPECT_EQ(basic.FreeBlock(block), ZM_ERR_NONE);
}

TEST_F(BasicSuiteTest, AFailurePlannedForAcquireSuiteIsWhatItReturns) {
    runtime.faults.FailCall(kBasicSuiteName, kAcquireEntry, ZM_ERR_CANT);
    const void* table = &sentinel;
    EXPECT_EQ(basic.AcquireSuite(kName, kVersion, &table), ZM_ERR_CANT);
    EXPECT_EQ(table, &sentinel);
    EXPECT_EQ(Acquired(), 0);  // a failed acquisition is nothing to give back
}

}  // namespace
}  // namespace zm::host
