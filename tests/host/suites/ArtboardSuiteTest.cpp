#include "host/suites/DocumentSuiteFixture.hpp"

#include <zelmora/ZMArtboardSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class ArtboardSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_ARTBOARD_SUITE_NAME, ZM_ARTBOARD_SUITE_VERSION, artboards);
    }

    // Two pages side by side, 20 pt apart.
    void OpenTwoPages() {
        Open().artboards = {{"Front", {0, 792, 612, 0}}, {"Back", {632, 792, 1244, 0}}};
    }

    const ZMArtboardSuite* artboards = nullptr;
};

TEST_F(ArtboardSuiteTest, TheListHoldsTheDocumentsArtboardsInOrder) {
    OpenTwoPages();
    ZMArtboardList list = nullptr;
    ASSERT_EQ(artboards->GetArtboardList(&list), ZM_ERR_NONE);
    int32_t count = -1;
    EXPECT_EQ(artboards->CountArtboards(list, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    ZMRealRect bounds{};
    EXPECT_EQ(artboards->GetArtboardBounds(list, 1, &bounds), ZM_ERR_NONE);
    EXPECT_EQ(bounds.left, 632.0);
    EXPECT_EQ(bounds.top, 792.0);
    EXPECT_EQ(bounds.right, 1244.0);
    EXPECT_EQ(bounds.bottom, 0.0);
    ZMUnicodeString name = String();
    EXPECT_EQ(artboards->GetArtboardName(list, 0, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Front");
    EXPECT_EQ(artboards->GetArtboardName(list, 1, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Back");
    EXPECT_EQ(artboards->ReleaseArtboardList(list), ZM_ERR_NONE);
}

TEST_F(ArtboardSuiteTest, AReleasedListIsGone) {
    OpenTwoPages();
    ZMArtboardList list = nullptr;
    ASSERT_EQ(artboards->GetArtboardList(&list), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(list), 1);
    EXPECT_EQ(artboards->ReleaseArtboardList(list), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(list), 0);
    EXPECT_EQ(artboards->ReleaseArtboardList(list), ZM_ERR_BAD_ARGUMENT);
    int32_t count = 0;
    EXPECT_EQ(artboards->CountArtboards(list, &count), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(ArtboardSuiteTest, AListOutlivesItsDocument) {
    OpenTwoPages();
    ZMArtboardList list = nullptr;
    ASSERT_EQ(artboards->GetArtboardList(&list), ZM_ERR_NONE);
    runtime.documents.CloseCurrent();
    ZMUnicodeString name = String();
    EXPECT_EQ(artboards->GetArtboardName(list, 1, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Back");
    EXPECT_EQ(artboards->ReleaseArtboardList(list), ZM_ERR_NONE);
}

TEST_F(ArtboardSuiteTest, WithoutADocumentThereIsNoList) {
    ZMArtboardList list = nullptr;
    EXPECT_EQ(artboards->GetArtboardList(&list), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(list, nullptr);
}

TEST_F(ArtboardSuiteTest, BadIndexesListsAndArgumentsAreRefused) {
    OpenTwoPages();
    ZMArtboardList list = nullptr;
    ASSERT_EQ(artboards->GetArtboardList(&list), ZM_ERR_NONE);
    ZMRealRect bounds{};
    ZMUnicodeString name = String();
    auto foreign = zm::test::ForeignHandle<ZMArtboardList>();
    EXPECT_EQ(artboards->GetArtboardBounds(list, 2, &bounds), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->GetArtboardBounds(list, -1, &bounds), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->GetArtboardBounds(list, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->GetArtboardName(list, 2, name), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->GetArtboardName(list, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->GetArtboardBounds(foreign, 0, &bounds), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->CountArtboards(foreign, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->CountArtboards(list, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->ReleaseArtboardList(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->ReleaseArtboardList(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->GetArtboardList(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(artboards->ReleaseArtboardList(list), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
