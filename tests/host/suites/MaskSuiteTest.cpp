#include <gtest/gtest.h>
#include <zelmora/ZMMaskSuite.h>

#include <memory>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

// A path with an opacity mask (a group holding one rectangle) and a path without one.
class MaskSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_MASK_SUITE_NAME, ZM_MASK_SUITE_VERSION, masks);
        auto built = std::make_unique<document::Document>();
        Art* layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        masked = &zm::test::AddRectangle(*layer, 0, 0, 10, 10, "masked");
        masked->opacityMask = std::make_unique<Art>(ArtType::Group, "mask");
        zm::test::AddRectangle(*masked->opacityMask, 0, 0, 5, 5, "inside");
        plain = &zm::test::AddRectangle(*layer, 0, 0, 10, 10, "plain");
        runtime.documents.Add(std::move(built));
    }

    void TearDown() override {
        EXPECT_TRUE(runtime.masks.All().empty()) << "a mask reference was not released";
        SuiteFixture::TearDown();
    }

    ZMMaskHandle MaskOf(const Art& art) {
        ZMMaskHandle mask = zm::test::ForeignHandle<ZMMaskHandle>();
        EXPECT_EQ(masks->GetMask(H(art), &mask), ZM_ERR_NONE);
        return mask;
    }

    const ZMMaskSuite* masks = nullptr;
    Art* masked = nullptr;
    Art* plain = nullptr;
};

TEST_F(MaskSuiteTest, ArtWithoutAMaskGivesANullHandleAndNoError) {
    EXPECT_EQ(MaskOf(*plain), nullptr);
}

TEST_F(MaskSuiteTest, TheMasksArtIsItsGroup) {
    ZMMaskHandle mask = MaskOf(*masked);
    ASSERT_NE(mask, nullptr);
    ZMArtHandle art = nullptr;
    ASSERT_EQ(masks->GetMaskArt(mask, &art), ZM_ERR_NONE);
    EXPECT_EQ(art, H(*masked->opacityMask));
    EXPECT_EQ(masks->ReleaseMask(mask), ZM_ERR_NONE);
}

TEST_F(MaskSuiteTest, EveryReferenceIsCountedUntilTheLastIsReleased) {
    ZMMaskHandle first = MaskOf(*masked);
    ZMMaskHandle second = MaskOf(*masked);
    EXPECT_EQ(first, second);  // one record per masked object
    ASSERT_EQ(masks->AddRefMask(first), ZM_ERR_NONE);
    EXPECT_EQ(masks->ReleaseMask(first), ZM_ERR_NONE);
    EXPECT_EQ(masks->ReleaseMask(first), ZM_ERR_NONE);
    ZMArtHandle art = nullptr;
    EXPECT_EQ(masks->GetMaskArt(first, &art), ZM_ERR_NONE);  // one reference is still held
    EXPECT_EQ(masks->ReleaseMask(first), ZM_ERR_NONE);
    EXPECT_EQ(masks->ReleaseMask(first), ZM_ERR_BAD_ARGUMENT);  // all three given back
    EXPECT_EQ(masks->GetMaskArt(first, &art), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(MaskSuiteTest, AForeignMaskHandleIsABadArgument) {
    ZMMaskHandle foreign = zm::test::ForeignHandle<ZMMaskHandle>();
    ZMArtHandle art = nullptr;
    EXPECT_EQ(masks->GetMaskArt(foreign, &art), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(masks->AddRefMask(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(masks->ReleaseMask(nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMMaskHandle mask = nullptr;
    EXPECT_EQ(masks->GetMask(nullptr, &mask), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(masks->GetMask(H(*masked), nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(MaskSuiteTest, AMaskWhoseArtIsGoneHasNoArt) {
    ZMMaskHandle mask = MaskOf(*masked);
    runtime.documents.CloseCurrent();
    ZMArtHandle art = nullptr;
    EXPECT_EQ(masks->GetMaskArt(mask, &art), ZM_ERR_NO_DOCUMENT);
    runtime.documents.Add(std::make_unique<document::Document>());
    EXPECT_EQ(masks->GetMaskArt(mask, &art), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(masks->ReleaseMask(mask), ZM_ERR_NONE);  // the reference can still be given back
}

}  // namespace
}  // namespace zm::host
