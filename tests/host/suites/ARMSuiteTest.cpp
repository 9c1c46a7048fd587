#include "ImageSuitesFixture.hpp"

#include <zelmora/ZMARMSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace zm::test {
namespace {

class ARMSuiteTest : public ImageSuitesFixture {
protected:
    void SetUp() override {
        ImageSuitesFixture::SetUp();
        Acquire(ZM_ARM_SUITE_NAME, ZM_ARM_SUITE_VERSION, arm);
    }

    std::string UrlOf(const char* name) {
        const char* url = nullptr;
        EXPECT_EQ(arm->GetAssetUrl(ArtNamed(name), &url), ZM_ERR_NONE) << name;
        return url == nullptr ? "(null)" : url;
    }

    const ZMARMSuite* arm = nullptr;
};

TEST_F(ARMSuiteTest, TheHostKeepsAssetAddresses) {
    ZMBool available = -1;
    EXPECT_EQ(arm->IsAvailable(&available), ZM_ERR_NONE);
    EXPECT_EQ(available, 1);
    EXPECT_EQ(arm->IsAvailable(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ARMSuiteTest, PlacedAndRasterArtGiveTheirAssetUrl) {
    EXPECT_EQ(UrlOf("photo"), "https://assets.example/photo");
    EXPECT_EQ(UrlOf("embedded"), "https://assets.example/embedded");
}

TEST_F(ARMSuiteTest, AnImageWithoutAnAssetUrlGivesAnEmptyText) { EXPECT_EQ(UrlOf("square"), ""); }

TEST_F(ARMSuiteTest, OtherArtIsOfTheWrongTypeAndBadArgumentsAreReported) {
    const char* url = nullptr;
    EXPECT_EQ(arm->GetAssetUrl(ArtNamed("box"), &url), ZM_ERR_WRONG_ART_TYPE);
    EXPECT_EQ(arm->GetAssetUrl(ArtNamed("photo"), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(arm->GetAssetUrl(nullptr, &url), ZM_ERR_BAD_ARGUMENT);
    ZMArtHandle photo = ArtNamed("photo");
    runtime.documents.CloseCurrent();
    EXPECT_EQ(arm->GetAssetUrl(photo, &url), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::test
