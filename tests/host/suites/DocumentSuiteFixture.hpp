#pragma once

#include "host/suites/SuiteFixture.hpp"

#include <document/Document.hpp>
#include <suites/UnicodeStringHandle.hpp>

#include <zelmora/ZMUnicodeStringSuite.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zm::test {

// A suite fixture for the suites that read a document: documents are built by hand with the
// model and opened in the host; strings are made through the Unicode string suite, as a
// plug-in makes them, and disposed after the test.
class DocumentSuiteFixture : public SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_UNICODE_STRING_SUITE_NAME, ZM_UNICODE_STRING_SUITE_VERSION, strings);
    }

    void TearDown() override {
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

    const ZMUnicodeStringSuite* strings = nullptr;

private:
    std::vector<ZMUnicodeString> owned_;
};

}  // namespace zm::test
