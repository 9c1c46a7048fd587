#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMColorConversionSuite.h>
#include <zelmora/ZMDocumentSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class ColorConversionSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_OVERRIDE_COLOR_CONVERSION_SUITE_NAME,
                ZM_OVERRIDE_COLOR_CONVERSION_SUITE_VERSION, conversion);
        Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, documents);
    }

    // A document with an RGB and a CMYK profile and no gray one.
    document::Document& OpenWithProfiles() {
        document::Document& document = Open();
        document.rgbProfile = "sRGB IEC61966-2.1";
        document.cmykProfile = "Coated FOGRA39 (ISO 12647-2:2004)";
        return document;
    }

    const ZMColorConversionSuite* conversion = nullptr;
    const ZMDocumentSuite* documents = nullptr;
};

TEST_F(ColorConversionSuiteTest, AProfileHandleFromTheDocumentIsNamed) {
    OpenWithProfiles();
    ZMColorProfile rgb = nullptr, cmyk = nullptr, gray = nullptr;
    ASSERT_EQ(documents->GetDocumentColorProfiles(&rgb, &cmyk, &gray), ZM_ERR_NONE);
    ZMUnicodeString name = String();
    EXPECT_EQ(conversion->GetProfileName(rgb, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "sRGB IEC61966-2.1");
    EXPECT_EQ(conversion->GetProfileName(cmyk, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Coated FOGRA39 (ISO 12647-2:2004)");
}

TEST_F(ColorConversionSuiteTest, ANullOrForeignProfileIsABadArgument) {
    OpenWithProfiles();
    ZMUnicodeString name = String("kept");
    EXPECT_EQ(conversion->GetProfileName(nullptr, name), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(conversion->GetProfileName(zm::test::ForeignHandle<ZMColorProfile>(), name),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(Text(name), "kept");
    ZMColorProfile rgb = nullptr;
    ASSERT_EQ(conversion->GetProfileForModel(document::kColorModelRgb, &rgb), ZM_ERR_NONE);
    EXPECT_EQ(conversion->GetProfileName(rgb, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ColorConversionSuiteTest, EveryEntryNeedsADocument) {
    ZMUnicodeString name = String();
    int32_t count = 0;
    ZMColorProfile profile = nullptr;
    EXPECT_EQ(conversion->GetProfileName(nullptr, name), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(conversion->CountDocumentProfiles(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(conversion->GetProfileForModel(document::kColorModelRgb, &profile),
              ZM_ERR_NO_DOCUMENT);
}

TEST_F(ColorConversionSuiteTest, ProfilesAreCountedAndFoundByModel) {
    OpenWithProfiles();
    int32_t count = 0;
    EXPECT_EQ(conversion->CountDocumentProfiles(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);  // RGB and CMYK, no gray
    ZMColorProfile rgb = nullptr, cmyk = nullptr, gray = nullptr;
    ASSERT_EQ(documents->GetDocumentColorProfiles(&rgb, &cmyk, &gray), ZM_ERR_NONE);
    ZMColorProfile found = nullptr;
    EXPECT_EQ(conversion->GetProfileForModel(document::kColorModelCmyk, &found), ZM_ERR_NONE);
    EXPECT_EQ(found, cmyk);  // the same handle the document suite gives
    EXPECT_EQ(conversion->GetProfileForModel(document::kColorModelGray, &found), ZM_ERR_NONE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(conversion->GetProfileForModel(7, &found), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(conversion->CountDocumentProfiles(nullptr), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
