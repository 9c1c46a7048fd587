#include "host/suites/DocumentSuiteFixture.hpp"
#include "host/suites/StyledDocument.hpp"

#include <zelmora/ZMBrushMgrSuite.h>

#include <gtest/gtest.h>

#include <memory>

namespace zm::host {
namespace {

class BrushMgrSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_BRUSH_MGR_SUITE_NAME, ZM_BRUSH_MGR_SUITE_VERSION, brushes);
    }

    ZMBrushHandle Nth(int32_t index) {
        ZMBrushHandle brush = nullptr;
        EXPECT_EQ(brushes->GetNthBrush(index, &brush), ZM_ERR_NONE);
        return brush;
    }

    ZMBrushTypeHandle TypeOf(ZMBrushHandle brush) {
        ZMBrushTypeHandle type = nullptr;
        EXPECT_EQ(brushes->GetBrushType(brush, &type), ZM_ERR_NONE);
        return type;
    }

    const ZMBrushMgrSuite* brushes = nullptr;
    zm::test::StyledDocument art{Open()};
};

TEST_F(BrushMgrSuiteTest, BrushesAreCountedAndNamed) {
    int32_t count = -1;
    EXPECT_EQ(brushes->CountBrushes(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);  // Charcoal and Confetti
    EXPECT_EQ(Nth(0), reinterpret_cast<ZMBrushHandle>(art.brush));
    ZMUnicodeString name = String();
    EXPECT_EQ(brushes->GetBrushName(Nth(1), name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "Confetti");
}

TEST_F(BrushMgrSuiteTest, ATypeTitleIsTheTextAsWritten) {
    const char* title = nullptr;
    EXPECT_EQ(brushes->GetBrushTypeTitle(TypeOf(Nth(0)), &title), ZM_ERR_NONE);
    EXPECT_STREQ(title, "&Art Brush");  // the "&" stays; callers drop it
    EXPECT_EQ(brushes->GetBrushTypeTitle(TypeOf(Nth(1)), &title), ZM_ERR_NONE);
    EXPECT_STREQ(title, "&Scatter Brush");
}

TEST_F(BrushMgrSuiteTest, BrushesOfOneKindShareTheirType) {
    auto pencil = std::make_unique<document::Brush>();
    pencil->name = "Pencil";
    pencil->typeTitle = "&Art Brush";
    art.document.brushes.push_back(std::move(pencil));
    EXPECT_EQ(TypeOf(Nth(2)), TypeOf(Nth(0)));
    EXPECT_NE(TypeOf(Nth(1)), TypeOf(Nth(0)));
}

TEST_F(BrushMgrSuiteTest, BadHandlesIndexesAndArgumentsAreRefused) {
    auto foreign = zm::test::ForeignHandle<ZMBrushHandle>();
    ZMBrushHandle brush = nullptr;
    ZMBrushTypeHandle type = nullptr;
    const char* title = nullptr;
    EXPECT_EQ(brushes->GetNthBrush(2, &brush), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetNthBrush(-1, &brush), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetNthBrush(0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->CountBrushes(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushName(foreign, String()), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushName(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushType(foreign, &type), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushType(Nth(0), nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushTypeTitle(zm::test::ForeignHandle<ZMBrushTypeHandle>(), &title),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushTypeTitle(TypeOf(Nth(0)), nullptr), ZM_ERR_BAD_ARGUMENT);
    // An effect the document's styles never handed out.
    EXPECT_EQ(brushes->GetBrushForLiveEffect(zm::test::ForeignHandle<ZMLiveEffectHandle>(), &brush),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brushes->GetBrushForLiveEffect(nullptr, &brush), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(BrushMgrSuiteTest, WithoutADocumentThereAreNoBrushes) {
    runtime.documents.CloseCurrent();
    int32_t count = 0;
    ZMBrushHandle brush = nullptr;
    EXPECT_EQ(brushes->CountBrushes(&count), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(brushes->GetNthBrush(0, &brush), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(brushes->GetBrushForLiveEffect(zm::test::ForeignHandle<ZMLiveEffectHandle>(), &brush),
              ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
