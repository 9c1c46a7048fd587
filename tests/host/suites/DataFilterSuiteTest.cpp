#include "host/suites/DocumentSuiteFixture.hpp"
#include "support/FileBytes.hpp"
#include "support/ScratchFolder.hpp"

#include <zelmora/ZMDataFilterSuite.h>
#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMPluginFramework.h>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <set>
#include <string>

namespace zm::host {
namespace {

namespace fs = std::filesystem;
using zm::test::FolderEntryNames;
using zm::test::ReadFileBytes;
using zm::test::WriteFileBytes;

constexpr uint32_t kCreator = 0x74747874;  // 'ttxt'
constexpr uint32_t kType = 0x54455854;     // 'TEXT'

// Line ends of both kinds, a NUL, UTF-8 (u-umlaut) and bytes of 0x80 and above that are no
// UTF-8 at all (0xA9, a lone 0x80, 0xFF): none of them may change on the way to the disk.
constexpr char kMixed[] = "Name:\r\nGr\xC3\xBCn \xA9\x80\xFF\n\0end\r\n";
const std::string kMixedBytes(kMixed, sizeof kMixed - 1);  // 23 bytes, the NUL among them

fs::perms PermissionsOf(const fs::path& file) {
    return fs::status(file).permissions() & fs::perms::all;
}

// The files of this process may grow to `bytes` and no further while it lives; a write past
// that fails as on a full disk (the signal that would end the process is ignored meanwhile).
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &saved_);
        previous_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = saved_;
        limited.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, previous_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit saved_{};
    void (*previous_)(int) = nullptr;
};

class DataFilterSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        plugin.framework.description = &description;  // as Dispatch records it, for FreeBlock
        Acquire(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, paths);
        Acquire(ZM_DATA_FILTER_SUITE_NAME, ZM_DATA_FILTER_SUITE_VERSION, filters);
        Acquire(ZM_LMB_PLUGIN_SUITE_NAME, ZM_LMB_PLUGIN_SUITE_VERSION, framework);
    }

    void TearDown() override {
        EXPECT_EQ(runtime.dataFilters.Count(), 0u) << "a data filter was kept";
        DocumentSuiteFixture::TearDown();
    }

    ZMFilePath PathTo(const fs::path& file) {
        ZMFilePath path = NewPath();
        EXPECT_EQ(paths->SetFromString(path, String(file.string())), ZM_ERR_NONE);
        return path;
    }

    ZMDataFilter NewFilter(const fs::path& file, const char* mode) {
        ZMDataFilter filter = nullptr;
        EXPECT_EQ(filters->NewFileDataFilter(PathTo(file), mode, kCreator, kType, &filter),
                  ZM_ERR_NONE);
        return filter;
    }

    ZMDataFilter LinkedFilter(const fs::path& file, const char* mode) {
        ZMDataFilter filter = NewFilter(file, mode);
        EXPECT_EQ(filters->LinkDataFilter(nullptr, filter), ZM_ERR_NONE);
        return filter;
    }

    ZMErr Write(ZMDataFilter filter, const std::string& bytes) {
        return filters->WriteDataFilter(filter, bytes.data(), bytes.size());
    }

    // Writes the bytes through a new filter and unlinks it with `error`; the unlink's result.
    ZMErr Save(const fs::path& file, const std::string& bytes, ZMErr error = ZM_ERR_NONE) {
        ZMDataFilter filter = LinkedFilter(file, "write");
        EXPECT_EQ(Write(filter, bytes), ZM_ERR_NONE);
        return filters->UnlinkDataFilter(filter, error);
    }

    zm::test::ScratchFolder scratch;
    fs::path target = scratch.Path() / "report.txt";
    ZMPluginDescription description{};
    const ZMDataFilterSuite* filters = nullptr;
    const ZMLMBPluginSuite* framework = nullptr;
};

TEST_F(DataFilterSuiteTest, WrittenBytesReachTheFileExactlyAsGiven) {
    ZMDataFilter filter = LinkedFilter(target, "write");
    EXPECT_EQ(Write(filter, kMixedBytes.substr(0, 9)), ZM_ERR_NONE);
    EXPECT_EQ(Write(filter, kMixedBytes.substr(9)), ZM_ERR_NONE);
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), kMixedBytes);  // two writes, one after the other, untranslated
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
}

TEST_F(DataFilterSuiteTest, NothingTouchesTheDiskBeforeTheFilterIsLinked) {
    ZMDataFilter filter = NewFilter(target, "write");
    EXPECT_TRUE(FolderEntryNames(scratch.Path()).empty());
    EXPECT_EQ(framework->FreeBlock(&description, filter), ZM_ERR_NONE);
}

TEST_F(DataFilterSuiteTest, TheTargetKeepsItsOldBytesUntilTheWriterIsUnlinked) {
    WriteFileBytes(target, "old");
    ZMDataFilter filter = LinkedFilter(target, "write");
    EXPECT_EQ(Write(filter, "new bytes"), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), "old");
    EXPECT_EQ(FolderEntryNames(scratch.Path()).size(),
              2u);  // the target and the new file beside it
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), "new bytes");
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
}

TEST_F(DataFilterSuiteTest, UnlinkingWithAnErrorLeavesNoNewFile) {
    // The writes succeeded, so the unlink itself has nothing to report.
    EXPECT_EQ(Save(target, kMixedBytes, ZM_ERR_CANT), ZM_ERR_NONE);
    EXPECT_FALSE(fs::exists(target));
    EXPECT_TRUE(FolderEntryNames(scratch.Path()).empty());
}

TEST_F(DataFilterSuiteTest, UnlinkingWithAnErrorKeepsAnExistingTargetIntact) {
    WriteFileBytes(target, "old\r\n");
    EXPECT_EQ(Save(target, kMixedBytes, ZM_ERR_USER_CANCELED), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), "old\r\n");
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
}

TEST_F(DataFilterSuiteTest, ATargetInAFolderThatDoesNotExistCannotBeLinked) {
    fs::path missing = scratch.Path() / "missing" / "report.txt";
    ZMDataFilter filter = NewFilter(missing, "write");
    EXPECT_EQ(filters->LinkDataFilter(nullptr, filter), ZM_ERR_FILE_OPEN);
    EXPECT_TRUE(FolderEntryNames(scratch.Path()).empty());  // not even the folder was made
    // The failed filter was never linked, so it goes back as the block it is.
    EXPECT_EQ(framework->FreeBlock(&description, filter), ZM_ERR_NONE);
}

TEST_F(DataFilterSuiteTest, ATargetThatIsAFolderIsLeftAsItWasWithNoFileBesideIt) {
    fs::path folder = scratch.Path() / "report.txt";
    fs::create_directory(folder);
    WriteFileBytes(folder / "inside.txt", "kept");
    EXPECT_EQ(Save(folder, kMixedBytes), ZM_ERR_FILE_WRITE);  // a file cannot replace a folder
    EXPECT_TRUE(fs::is_directory(folder));
    EXPECT_EQ(ReadFileBytes(folder / "inside.txt"), "kept");
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
}

TEST_F(DataFilterSuiteTest, AFailedWriteLeavesTheTargetAsItWas) {
    WriteFileBytes(target, "old");
    ZMDataFilter filter = LinkedFilter(target, "write");
    ZMErr first = ZM_ERR_NONE;
    ZMErr second = ZM_ERR_NONE;
    {
        FileSizeLimit limit(4);  // the 23 bytes do not fit, so the write fails part way
        first = Write(filter, kMixedBytes);
        second = Write(filter, "");  // a write after a failed one fails too: a piece is lost
    }
    EXPECT_EQ(first, ZM_ERR_FILE_WRITE);
    EXPECT_EQ(second, ZM_ERR_FILE_WRITE);
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_FILE_WRITE);
    EXPECT_EQ(ReadFileBytes(target), "old");
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
}

TEST_F(DataFilterSuiteTest, AFailedWriteIsReportedEvenWhenUnlinkingWithAnError) {
    ZMDataFilter filter = LinkedFilter(target, "write");
    ZMErr written = ZM_ERR_NONE;
    {
        FileSizeLimit limit(4);
        written = Write(filter, kMixedBytes);
    }
    EXPECT_EQ(written, ZM_ERR_FILE_WRITE);
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_CANT), ZM_ERR_FILE_WRITE);
    EXPECT_TRUE(FolderEntryNames(scratch.Path()).empty());
}

TEST_F(DataFilterSuiteTest, AReplacedFileKeepsThePermissionsOfTheTarget) {
    WriteFileBytes(target, "old");
    fs::permissions(
        target, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);  // 0640
    EXPECT_EQ(Save(target, "new"), ZM_ERR_NONE);
    EXPECT_EQ(PermissionsOf(target),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(DataFilterSuiteTest, ANewFileGetsThePermissionsOfAnyNewFile) {
    mode_t mask = ::umask(0);
    ::umask(mask);
    EXPECT_EQ(Save(target, "new"), ZM_ERR_NONE);
    // What creating a file with read and write for everyone leaves after the process's mask.
    EXPECT_EQ(PermissionsOf(target), static_cast<fs::perms>(0666 & ~mask));
}

TEST_F(DataFilterSuiteTest, AFilterNeverLinkedGoesBackWithFreeBlock) {
    ZMDataFilter filter = NewFilter(target, "write");
    ASSERT_EQ(runtime.dataFilters.Count(), 1u);
    EXPECT_EQ(framework->FreeBlock(&description, filter), ZM_ERR_NONE);
    EXPECT_EQ(runtime.dataFilters.Count(), 0u);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
    EXPECT_EQ(filters->LinkDataFilter(nullptr, filter), ZM_ERR_BAD_ARGUMENT);  // gone with it
    EXPECT_TRUE(FolderEntryNames(scratch.Path()).empty());
}

TEST_F(DataFilterSuiteTest, ALinkedWriterGivenBackAsABlockLeavesNoFile) {
    WriteFileBytes(target, "old");
    ZMDataFilter filter = LinkedFilter(target, "write");
    EXPECT_EQ(Write(filter, "new"), ZM_ERR_NONE);
    EXPECT_EQ(framework->FreeBlock(&description, filter), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), "old");
    EXPECT_EQ(FolderEntryNames(scratch.Path()), std::set<std::string>{"report.txt"});
}

TEST_F(DataFilterSuiteTest, UnlinkingDisposesOfTheFilterAndItsBlock) {
    ZMDataFilter filter = LinkedFilter(target, "write");
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_NONE);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
    EXPECT_EQ(Write(filter, "late"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(framework->FreeBlock(&description, filter), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ReadFileBytes(target), "");  // nothing written is an empty file, not a missing one
}

TEST_F(DataFilterSuiteTest, TheFourCharacterCodesAreKeptWithTheFilter) {
    ZMDataFilter filter = NewFilter(target, "write");
    const DataFilter& held = runtime.dataFilters.Require(filter);
    EXPECT_EQ(held.Creator(), kCreator);
    EXPECT_EQ(held.Type(), kType);
    EXPECT_EQ(held.Target(), target);
    EXPECT_EQ(framework->FreeBlock(&description, filter), ZM_ERR_NONE);
}

TEST_F(DataFilterSuiteTest, AReaderReadsTheFileBackThenZeroAtItsEnd) {
    WriteFileBytes(target, kMixedBytes);
    ZMDataFilter filter = LinkedFilter(target, "read");
    char buffer[16] = {};
    size_t count = sizeof buffer;
    EXPECT_EQ(filters->ReadDataFilter(filter, buffer, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 16u);
    std::string read(buffer, count);
    count = sizeof buffer;
    EXPECT_EQ(filters->ReadDataFilter(filter, buffer, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 7u);  // the 23 bytes less the 16 read before
    read.append(buffer, count);
    EXPECT_EQ(read, kMixedBytes);
    count = sizeof buffer;
    EXPECT_EQ(filters->ReadDataFilter(filter, buffer, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), kMixedBytes);  // reading changes nothing
}

TEST_F(DataFilterSuiteTest, WhatAWriterSavedAReaderReadsBack) {
    EXPECT_EQ(Save(target, kMixedBytes), ZM_ERR_NONE);
    ZMDataFilter filter = LinkedFilter(target, "read");
    std::string buffer(64, '\0');
    size_t count = buffer.size();
    EXPECT_EQ(filters->ReadDataFilter(filter, buffer.data(), &count), ZM_ERR_NONE);
    EXPECT_EQ(buffer.substr(0, count), kMixedBytes);
    EXPECT_EQ(filters->UnlinkDataFilter(filter, ZM_ERR_NONE), ZM_ERR_NONE);
}

TEST_F(DataFilterSuiteTest, AReaderOfAMissingFileIsNotFoundAndOfAFolderCannotOpen) {
    ZMDataFilter missing = NewFilter(target, "read");
    EXPECT_EQ(filters->LinkDataFilter(nullptr, missing), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(framework->FreeBlock(&description, missing), ZM_ERR_NONE);
    ZMDataFilter folder = NewFilter(scratch.Path(), "read");
    EXPECT_EQ(filters->LinkDataFilter(nullptr, folder), ZM_ERR_FILE_OPEN);
    EXPECT_EQ(framework->FreeBlock(&description, folder), ZM_ERR_NONE);
}

TEST_F(DataFilterSuiteTest, NewFiltersRefuseBadArguments) {
    ZMDataFilter filter = nullptr;
    ZMFilePath path = PathTo(target);
    EXPECT_EQ(filters->NewFileDataFilter(nullptr, "write", kCreator, kType, &filter),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->NewFileDataFilter(zm::test::ForeignHandle<ZMFilePath>(), "write", kCreator,
                                         kType, &filter),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->NewFileDataFilter(NewPath(), "write", kCreator, kType, &filter),
              ZM_ERR_BAD_ARGUMENT);  // an empty path names no file
    EXPECT_EQ(filters->NewFileDataFilter(path, nullptr, kCreator, kType, &filter),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->NewFileDataFilter(path, "append", kCreator, kType, &filter),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->NewFileDataFilter(path, "Write", kCreator, kType, &filter),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->NewFileDataFilter(path, "write", kCreator, kType, nullptr),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filter, nullptr);
    EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u);
}

TEST_F(DataFilterSuiteTest, ANewFilterWithoutMemoryIsNoMemory) {
    ZMFilePath path = PathTo(target);
    runtime.faults.FailAllocation(1);
    ZMDataFilter filter = nullptr;
    EXPECT_EQ(filters->NewFileDataFilter(path, "write", kCreator, kType, &filter),
              ZM_ERR_NO_MEMORY);
    EXPECT_EQ(filter, nullptr);
}

TEST_F(DataFilterSuiteTest, LinkingRefusesAPriorFilterAndASecondLink) {
    ZMDataFilter first = NewFilter(target, "write");
    ZMDataFilter second = LinkedFilter(scratch.Path() / "other.txt", "write");
    EXPECT_EQ(filters->LinkDataFilter(second, first), ZM_ERR_BAD_ARGUMENT);  // a file ends it
    EXPECT_EQ(filters->LinkDataFilter(nullptr, second), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->LinkDataFilter(nullptr, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->LinkDataFilter(nullptr, zm::test::ForeignHandle<ZMDataFilter>()),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->UnlinkDataFilter(first, ZM_ERR_NONE), ZM_ERR_BAD_ARGUMENT);  // unlinked
    EXPECT_EQ(framework->FreeBlock(&description, first), ZM_ERR_NONE);
    EXPECT_EQ(filters->UnlinkDataFilter(second, ZM_ERR_NONE), ZM_ERR_NONE);
}

TEST_F(DataFilterSuiteTest, ReadingAndWritingNeedALinkedFilterOfThatDirection) {
    WriteFileBytes(target, "bytes");
    ZMDataFilter reader = LinkedFilter(target, "read");
    ZMDataFilter writer = LinkedFilter(scratch.Path() / "out.txt", "write");
    ZMDataFilter unlinked = NewFilter(target, "read");
    char buffer[4] = {};
    size_t count = sizeof buffer;
    EXPECT_EQ(filters->ReadDataFilter(writer, buffer, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(count, sizeof buffer);  // a refused call leaves the count alone
    EXPECT_EQ(filters->ReadDataFilter(unlinked, buffer, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->ReadDataFilter(reader, nullptr, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->ReadDataFilter(reader, buffer, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->ReadDataFilter(zm::test::ForeignHandle<ZMDataFilter>(), buffer, &count),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Write(reader, "x"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Write(unlinked, "x"), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->WriteDataFilter(writer, nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->WriteDataFilter(nullptr, "x", 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->UnlinkDataFilter(zm::test::ForeignHandle<ZMDataFilter>(), ZM_ERR_NONE),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(filters->UnlinkDataFilter(reader, ZM_ERR_NONE), ZM_ERR_NONE);
    EXPECT_EQ(filters->UnlinkDataFilter(writer, ZM_ERR_NONE), ZM_ERR_NONE);
    EXPECT_EQ(framework->FreeBlock(&description, unlinked), ZM_ERR_NONE);
    EXPECT_EQ(ReadFileBytes(target), "bytes");
}

}  // namespace
}  // namespace zm::host
