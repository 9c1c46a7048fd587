#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/ImagePathText.hpp>
#include <report/HostFilePath.hpp>

#include <zelmora/ZMFilePathSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int32_t kGetDisplayString = 4;

class ImagePathTextTest : public zm::test::InventoryFixture {
protected:
    // The text appended after "<" for a path set from `path`.
    std::string TextFor(const std::string& path) {
        tolvane::HostFilePath file;
        tolvane::HostString source = tolvane::MakeUnicodeFromBytes(path.c_str(), ZM_ENCODING_UTF8);
        EXPECT_EQ(tolvane::sFilePathSuite->SetFromString(file.Get(), source.Get()), ZM_ERR_NONE);
        tolvane::HostString text = tolvane::MakeUnicodeFromBytes("<", ZM_ENCODING_PLATFORM);
        EXPECT_EQ(tolvane::ImagePathText(file.Get(), text), ZM_ERR_NONE);
        return Text(text.Get());
    }
};

// The whole path, as the host shows it: ".." taken out.
TEST_F(ImagePathTextTest, TheFullPathIsAppended) {
    EXPECT_EQ(TextFor("/images/linked/../photo.png"), "</images/photo.png");
}

TEST_F(ImagePathTextTest, AnEmptyPathIsAnUnknownImage) {
    EXPECT_EQ(TextFor(""), "<(Unknown image)");
}

TEST_F(ImagePathTextTest, APathTheHostCannotShowIsAnUnknownImage) {
    runtime.faults.FailCall(ZM_FILE_PATH_SUITE_NAME, kGetDisplayString, ZM_ERR_INTERNAL);
    EXPECT_EQ(TextFor("/images/photo.png"), "<(Unknown image)");
}

}  // namespace
