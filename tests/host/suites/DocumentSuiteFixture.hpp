#pragma once

#include "host/suites/SuiteFixture.hpp"

#include <document/Document.hpp>
#include <suites/UnicodeStringHandle.hpp>

#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMUnicodeStringSuite.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zm::test {

// A suite fixture for the suites that read a document: documents are built by hand with the
// model and opened in the host; strings are made through the Unicode string suite, as a
// plug-in makes them, and disposed after the test; so are the file paths made with NewPath,
// once a test has acquired the file path suite into `paths`.
class DocumentSuiteFixture : public SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION, strings);
    }

    void TearDown() override {
        for (ZMFilePath path : ownedPaths_) {
            EXPECT_EQ(paths->DisposeFilePath(path), ZM_ERR_NONE);
        }
        ownedPaths_.clear();
        for (ZMUnicodeString string : owned_) {
            EXPECT_EQ(strings->Dispose(string), ZM_ERR_NONE);
        }
        owned_.clear();
        SuiteFixture::TearDown();
    }

    host::document::Document& Open() {
        return runtime.documents.Add(std::make_unique<host::document::Document>());
    }

    // A string the fixture disposes after the test.
    ZMUnicodeString String(std::string_view utf8 = {}) {
        ZMUnicodeString string = nullptr;
        EXPECT_EQ(strings->NewFromBytes(utf8.data(), static_cast<int32_t>(utf8.size()),
                                        ZM_ENCODING_UTF8, &string),
                  ZM_ERR_NONE);
        owned_.push_back(string);
        return string;
    }

    static std::string Text(ZMUnicodeString string) { return host::ToUtf8(string); }

    // A file path object the fixture disposes after the test.
    ZMFilePath NewPath() {
        ZMFilePath path = nullptr;
        EXPECT_EQ(paths->NewFilePath(&path), ZM_ERR_NONE);
        ownedPaths_.push_back(path);
        return path;
    }

    std::filesystem::path PathOf(ZMFilePath path) {
        return runtime.objects.Require<std::filesystem::path>(path);
    }

    const ZMUnicodeStringSuite* strings = nullptr;
    const ZMFilePathSuite* paths = nullptr;

private:
    std::vector<ZMUnicodeString> owned_;
    std::vector<ZMFilePath> ownedPaths_;
};

}  // namespace zm::test
