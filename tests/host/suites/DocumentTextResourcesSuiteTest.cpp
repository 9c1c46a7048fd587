#include "host/suites/DocumentSuiteFixture.hpp"

#include <suites/TextResourcesObject.hpp>

#include <zelmora/KRXTextResourcesSuites.h>
#include <zelmora/ZMDocumentSuite.h>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class DocumentTextResourcesSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME,
                ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION, text);
        Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, documents);
    }

    ZMTextResourcesRef Resources() {
        ZMTextResourcesRef resources = nullptr;
        EXPECT_EQ(documents->GetDocumentTextResources(&resources), ZM_ERR_NONE);
        return resources;
    }

    const KRXDocumentTextResourcesSuite* text = nullptr;
    const ZMDocumentSuite* documents = nullptr;
};

TEST_F(DocumentTextResourcesSuiteTest, TheHighlightFlagsAreTheDocumentsOwn) {
    document::Document& document = Open();
    document.highlightSubstitutedFonts = true;
    document.highlightSubstitutedGlyphs = false;
    ZMTextResourcesRef resources = Resources();
    uint8_t fonts = 7, glyphs = 7;
    EXPECT_EQ(text->GetHighlightSubstitutedFonts(resources, &fonts), ZM_ERR_NONE);
    EXPECT_EQ(text->GetHighlightSubstitutedGlyphs(resources, &glyphs), ZM_ERR_NONE);
    EXPECT_EQ(fonts, 1);
    EXPECT_EQ(glyphs, 0);
    EXPECT_EQ(text->Release(resources), ZM_ERR_NONE);
}

TEST_F(DocumentTextResourcesSuiteTest, TheOtherFlagIsReadOnItsOwn) {
    document::Document& document = Open();
    document.highlightSubstitutedGlyphs = true;
    ZMTextResourcesRef resources = Resources();
    uint8_t fonts = 7, glyphs = 7;
    EXPECT_EQ(text->GetHighlightSubstitutedFonts(resources, &fonts), ZM_ERR_NONE);
    EXPECT_EQ(text->GetHighlightSubstitutedGlyphs(resources, &glyphs), ZM_ERR_NONE);
    EXPECT_EQ(fonts, 0);
    EXPECT_EQ(glyphs, 1);
    EXPECT_EQ(text->Release(resources), ZM_ERR_NONE);
}

TEST_F(DocumentTextResourcesSuiteTest, ReleaseGivesBackOneReferenceAtATime) {
    Open();
    ZMTextResourcesRef resources = Resources();
    EXPECT_EQ(text->AddRef(resources), ZM_ERR_NONE);
    EXPECT_EQ(text->Release(resources), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextResourcesObject>(), 1u);  // one reference left
    EXPECT_EQ(text->Release(resources), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextResourcesObject>(), 0u);
    uint8_t flag = 0;
    EXPECT_EQ(text->Release(resources), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(text->GetHighlightSubstitutedFonts(resources, &flag), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentTextResourcesSuiteTest, BadHandlesAndMissingOutputsAreRefused) {
    Open();
    uint8_t flag = 7;
    EXPECT_EQ(text->GetHighlightSubstitutedFonts(nullptr, &flag), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(text->GetHighlightSubstitutedGlyphs(
                  zm::test::ForeignHandle<ZMTextResourcesRef>(), &flag),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(flag, 7);
    ZMTextResourcesRef resources = Resources();
    EXPECT_EQ(text->GetHighlightSubstitutedFonts(resources, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(text->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(text->Release(resources), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
