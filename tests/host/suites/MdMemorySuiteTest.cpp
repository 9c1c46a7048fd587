#include <gtest/gtest.h>
#include <zelmora/ZMMdMemorySuite.h>

#include <cstring>

#include "host/suites/SuiteFixture.hpp"

namespace zm::host {
namespace {

class MdMemorySuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override { Acquire(ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION, memory); }

    void TearDown() override {
        EXPECT_EQ(runtime.memory.LiveHandles(), 0u) << "a memory handle was not disposed of";
        SuiteFixture::TearDown();
    }

    unsigned char* Bytes(ZMMdMemoryHandle handle) {
        void* block = nullptr;
        EXPECT_EQ(memory->MdMemoryHandleDeref(handle, &block), ZM_ERR_NONE);
        return static_cast<unsigned char*>(block);
    }

    const ZMMdMemorySuite* memory = nullptr;
};

TEST_F(MdMemorySuiteTest, ANewClearedHandleHoldsZerosOfTheSizeAsked) {
    ZMMdMemoryHandle handle = nullptr;
    ASSERT_EQ(memory->NewHandleClear(64, &handle), ZM_ERR_NONE);
    size_t size = 0;
    ASSERT_EQ(memory->GetHandleSize(handle, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 64u);
    unsigned char* bytes = Bytes(handle);
    for (size_t i = 0; i < size; ++i) {
        EXPECT_EQ(bytes[i], 0) << i;
    }
    EXPECT_EQ(memory->DisposeHandle(handle), ZM_ERR_NONE);
}

TEST_F(MdMemorySuiteTest, ResizingKeepsTheBytesThatFitAndZeroesTheNewOnes) {
    ZMMdMemoryHandle handle = nullptr;
    ASSERT_EQ(memory->NewHandle(4, &handle), ZM_ERR_NONE);
    std::memcpy(Bytes(handle), "abcd", 4);
    ASSERT_EQ(memory->SetHandleSize(handle, 4096), ZM_ERR_NONE);
    unsigned char* grown = Bytes(handle);  // the block may have moved: dereference again
    EXPECT_EQ(std::memcmp(grown, "abcd", 4), 0);
    EXPECT_EQ(grown[4], 0);
    EXPECT_EQ(grown[4095], 0);
    ASSERT_EQ(memory->SetHandleSize(handle, 2), ZM_ERR_NONE);
    size_t size = 0;
    ASSERT_EQ(memory->GetHandleSize(handle, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 2u);
    EXPECT_EQ(std::memcmp(Bytes(handle), "ab", 2), 0);
    EXPECT_EQ(memory->DisposeHandle(handle), ZM_ERR_NONE);
}

TEST_F(MdMemorySuiteTest, AnEmptyBlockStillHasAnAddress) {
    ZMMdMemoryHandle handle = nullptr;
    ASSERT_EQ(memory->NewHandle(0, &handle), ZM_ERR_NONE);
    EXPECT_NE(Bytes(handle), nullptr);
    EXPECT_EQ(memory->DisposeHandle(handle), ZM_ERR_NONE);
}

TEST_F(MdMemorySuiteTest, TheHostCountsTheHandlesItHandedOut) {
    ZMMdMemoryHandle first = nullptr;
    ZMMdMemoryHandle second = nullptr;
    ASSERT_EQ(memory->NewHandle(8, &first), ZM_ERR_NONE);
    ASSERT_EQ(memory->NewHandleClear(8, &second), ZM_ERR_NONE);
    EXPECT_NE(first, second);
    EXPECT_EQ(runtime.memory.LiveHandles(), 2u);
    EXPECT_EQ(memory->DisposeHandle(first), ZM_ERR_NONE);
    EXPECT_EQ(memory->DisposeHandle(second), ZM_ERR_NONE);
    EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
}

TEST_F(MdMemorySuiteTest, AForeignOrDisposedHandleIsABadArgument) {
    ZMMdMemoryHandle foreign = zm::test::ForeignHandle<ZMMdMemoryHandle>();
    size_t size = 0;
    void* block = nullptr;
    EXPECT_EQ(memory->GetHandleSize(foreign, &size), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->SetHandleSize(foreign, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->MdMemoryHandleDeref(foreign, &block), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->DisposeHandle(foreign), ZM_ERR_BAD_ARGUMENT);
    ZMMdMemoryHandle handle = nullptr;
    ASSERT_EQ(memory->NewHandle(1, &handle), ZM_ERR_NONE);
    ASSERT_EQ(memory->DisposeHandle(handle), ZM_ERR_NONE);
    EXPECT_EQ(memory->DisposeHandle(handle), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->GetHandleSize(handle, &size), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(MdMemorySuiteTest, DisposingOfANullHandleDoesNothing) {
    EXPECT_EQ(memory->DisposeHandle(nullptr), ZM_ERR_NONE);
}

TEST_F(MdMemorySuiteTest, ANullOutPointerIsABadArgument) {
    EXPECT_EQ(memory->NewHandle(1, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->NewHandleClear(1, nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMMdMemoryHandle handle = nullptr;
    ASSERT_EQ(memory->NewHandle(1, &handle), ZM_ERR_NONE);
    EXPECT_EQ(memory->GetHandleSize(handle, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->MdMemoryHandleDeref(handle, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(memory->DisposeHandle(handle), ZM_ERR_NONE);
}

TEST_F(MdMemorySuiteTest, WithoutMemoryNoHandleIsMade) {
    runtime.faults.FailAllocation(1);
    ZMMdMemoryHandle handle = zm::test::ForeignHandle<ZMMdMemoryHandle>();
    EXPECT_EQ(memory->NewHandleClear(16, &handle), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(runtime.memory.LiveHandles(), 0u);
}

TEST_F(MdMemorySuiteTest, AResizeWithoutMemoryKeepsTheBlockAsItWas) {
    ZMMdMemoryHandle handle = nullptr;
    ASSERT_EQ(memory->NewHandle(3, &handle), ZM_ERR_NONE);
    runtime.faults.FailAllocation(1);
    EXPECT_EQ(memory->SetHandleSize(handle, 300), ZM_ERR_NO_MEMORY);
    size_t size = 0;
    ASSERT_EQ(memory->GetHandleSize(handle, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 3u);
    EXPECT_EQ(memory->DisposeHandle(handle), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
