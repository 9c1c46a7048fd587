#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMFilePathSuite.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace zm::host {
namespace {

class FilePathSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, paths);
    }

    void TearDown() override {
        DocumentSuiteFixture::TearDown();
        EXPECT_EQ(runtime.objects.Count<std::filesystem::path>(), 0u);  // every path given back
    }

    ZMFilePath Path(std::string_view text) {
        ZMFilePath path = NewPath();
        EXPECT_EQ(paths->SetFromString(path, String(text)), ZM_ERR_NONE);
        return path;
    }

    std::string FileName(ZMFilePath path, ZMBool withExtension) {
        ZMUnicodeString name = String();
        EXPECT_EQ(paths->GetFileName(path, withExtension, name), ZM_ERR_NONE);
        return Text(name);
    }

    std::string Display(ZMFilePath path, int32_t flags) {
        ZMUnicodeString text = String();
        EXPECT_EQ(paths->GetDisplayString(path, flags, text), ZM_ERR_NONE);
        return Text(text);
    }

};

TEST_F(FilePathSuiteTest, ANewPathIsEmpty) {
    ZMFilePath path = Path("");
    ZMUnicodeString text = String("not yet written");
    EXPECT_EQ(paths->GetAsString(path, text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "");
}

TEST_F(FilePathSuiteTest, APathReadsBackAsItWasSet) {
    ZMFilePath path = Path(
        "/drawings/Plakat \xC3\xBC"
        "ber.svg");  // u-umlaut, UTF-8
    ZMUnicodeString text = String();
    EXPECT_EQ(paths->GetAsString(path, text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text),
              "/drawings/Plakat \xC3\xBC"
              "ber.svg");
}

TEST_F(FilePathSuiteTest, TheFullDisplayStringIsTheWholePath) {
    EXPECT_EQ(Display(Path("/drawings/./art/../poster.svg"), ZM_FILE_PATH_DISPLAY_FULL),
              "/drawings/poster.svg");  // as users see it: "." and ".." resolved
    // A relative path is taken from the current folder.
    std::filesystem::path expected = std::filesystem::current_path() / "poster.svg";
    EXPECT_EQ(Display(Path("poster.svg"), ZM_FILE_PATH_DISPLAY_FULL), expected.string());
    EXPECT_EQ(Display(Path(""), ZM_FILE_PATH_DISPLAY_FULL), "");
}

TEST_F(FilePathSuiteTest, TheShortDisplayStringIsTheFileName) {
    EXPECT_EQ(Display(Path("/drawings/poster.svg"), 0), "poster.svg");
}

TEST_F(FilePathSuiteTest, TheFileNameKeepsItsExtensionOnlyWhenAsked) {
    ZMFilePath path = Path("/drawings/poster.final.svg");
    EXPECT_EQ(FileName(path, 1), "poster.final.svg");
    EXPECT_EQ(FileName(path, 0), "poster.final");  // only the last extension goes
    EXPECT_EQ(FileName(Path("/drawings/README"), 0), "README");
}

TEST_F(FilePathSuiteTest, TheParentIsTheFolderThatHoldsThePath) {
    ZMFilePath parent = Path("");
    EXPECT_EQ(paths->GetParent(Path("/drawings/art/poster.svg"), parent), ZM_ERR_NONE);
    ZMUnicodeString text = String();
    EXPECT_EQ(paths->GetAsString(parent, text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "/drawings/art");
    EXPECT_EQ(paths->GetParent(Path("poster.svg"), parent), ZM_ERR_NONE);
    EXPECT_EQ(paths->GetAsString(parent, text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), "");  // no folder part
}

TEST_F(FilePathSuiteTest, ExistsLooksAtTheFileSystem) {
    ZMBool exists = -1;
    EXPECT_EQ(paths->Exists(Path("/"), &exists), ZM_ERR_NONE);
    EXPECT_EQ(exists, 1);
    EXPECT_EQ(paths->Exists(Path("/no/such/folder/at/all.svg"), &exists), ZM_ERR_NONE);
    EXPECT_EQ(exists, 0);
    EXPECT_EQ(paths->Exists(Path(""), &exists), ZM_ERR_NONE);
    EXPECT_EQ(exists, 0);
    EXPECT_EQ(paths->Exists(Path("/"), nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(FilePathSuiteTest, HandlesTheHostDidNotMakeAreRefused) {
    auto foreign = zm::test::ForeignHandle<ZMFilePath>();
    ZMUnicodeString text = String();
    ZMBool exists = 0;
    EXPECT_EQ(paths->SetFromString(foreign, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetAsString(nullptr, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetDisplayString(foreign, 1, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetFileName(foreign, 1, text), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetParent(foreign, Path("")), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetParent(Path("/a/b"), foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->Exists(foreign, &exists), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->DisposeFilePath(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->NewFilePath(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(paths->GetAsString(Path("/a"), nullptr), ZM_ERR_BAD_ARGUMENT);  // no string
}

TEST_F(FilePathSuiteTest, ADisposedPathIsGoneAndNullIsIgnored) {
    ZMFilePath path = nullptr;
    ASSERT_EQ(paths->NewFilePath(&path), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<std::filesystem::path>(), 1u);
    EXPECT_EQ(paths->DisposeFilePath(path), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<std::filesystem::path>(), 0u);
    EXPECT_EQ(paths->DisposeFilePath(path), ZM_ERR_BAD_ARGUMENT);  // twice
    EXPECT_EQ(paths->DisposeFilePath(nullptr), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
