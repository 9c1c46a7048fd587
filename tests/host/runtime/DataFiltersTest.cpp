#include "support/FileBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <runtime/BlockAllocator.hpp>
#include <runtime/DataFilters.hpp>
#include <runtime/FaultPlan.hpp>
#include <runtime/HostError.hpp>
#include <runtime/Runtime.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>

namespace zm::host {
namespace {

using zm::test::FolderEntryNames;
using zm::test::ReadFileBytes;
using zm::test::WriteFileBytes;

std::unique_ptr<DataFilter> Writer(const std::filesystem::path& target) {
    return std::make_unique<DataFilter>(target, DataFilterMode::Write, 0, 0);
}

class DataFiltersTest : public ::testing::Test {
protected:
    zm::test::ScratchFolder scratch;
    std::filesystem::path target = scratch.Path() / "report.txt";
    FaultPlan faults;
    BlockAllocator blocks{faults};
};

TEST_F(DataFiltersTest, AFilterGoesWhenItsBlockIsFreed) {
    DataFilters filters(blocks);
    void* handle = filters.Add(Writer(target));
    EXPECT_EQ(filters.Require(handle).Target(), target);
    EXPECT_TRUE(blocks.Free(handle));
    EXPECT_EQ(filters.Count(), 0u);
    EXPECT_EQ(filters.Find(handle), nullptr);
    EXPECT_THROW(filters.Require(handle), HostError);
}

TEST_F(DataFiltersTest, DisposingOfAFilterGivesItsBlockBack) {
    DataFilters filters(blocks);
    void* handle = filters.Add(Writer(target));
    EXPECT_EQ(blocks.LiveBlocks(), 1u);
    filters.Dispose(handle);
    EXPECT_EQ(blocks.LiveBlocks(), 0u);
    EXPECT_EQ(filters.Count(), 0u);
    EXPECT_THROW(filters.Dispose(handle), HostError);
}

TEST_F(DataFiltersTest, WithoutABlockThereIsNoFilter) {
    DataFilters filters(blocks);
    faults.FailAllocation(1);
    try {
        filters.Add(Writer(target));
        ADD_FAILURE() << "a filter without a block";
    } catch (const HostError& error) {
        EXPECT_EQ(error.Code(), ZM_ERR_NO_MEMORY);
    }
    EXPECT_EQ(filters.Count(), 0u);
}

TEST_F(DataFiltersTest, AWriterStillLinkedWhenTheRegistryGoesLeavesNoFile) {
    WriteFileBytes(target, "old");
    {
        DataFilters filters(blocks);
        DataFilter& writer = filters.Require(filters.Add(Writer(target)));
        writer.Link();
        writer.Write("new", 3);
        ASSERT_EQ(FolderEntryNames(scratch.Path()).size(), 2u);  // the target and the new file
    }
    EXPECT_EQ(ReadFileBytes(target), "old");
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
    EXPECT_EQ(blocks.LiveBlocks(), 0u);  // the registry gave its blocks back as it went
}

TEST_F(DataFiltersTest, AWriterStillLinkedWhenTheRuntimeGoesLeavesNoFile) {
    {
        Runtime runtime;
        DataFilter& writer = runtime.dataFilters.Require(runtime.dataFilters.Add(Writer(target)));
        writer.Link();
        writer.Write("partial", 7);
    }
    // A plug-in that never unlinked its filter leaves nothing that could pass for the whole.
    EXPECT_TRUE(FolderEntryNames(scratch.Path()).empty());
}

}  // namespace
}  // namespace zm::host
