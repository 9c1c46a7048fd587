#include "host/suites/DocumentSuiteFixture.hpp"

#include <suites/ColorProfileHandle.hpp>
#include <suites/DictionaryObject.hpp>
#include <suites/TextResourcesObject.hpp>

#include <zelmora/ZMDocumentSuite.h>
#include <zelmora/ZMFilePathSuite.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <filesystem>

namespace zm::host {
namespace {

// Plug-ins call the current document's entry by its position.
static_assert(offsetof(ZMDocumentSuite, GetDocument) == 19 * sizeof(void*));

class DocumentSuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, documents);
        Acquire(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, paths);
    }

    const ZMDocumentSuite* documents = nullptr;
};

ZMDocumentHandle HandleOf(document::Document& document) {
    return reinterpret_cast<ZMDocumentHandle>(&document);
}

TEST_F(DocumentSuiteTest, EntryNineteenGivesTheCurrentDocument) {
    Open();
    document::Document& second = Open();  // the last opened is the current one
    ZMDocumentHandle current = nullptr;
    EXPECT_EQ(documents->GetDocument(&current), ZM_ERR_NONE);
    EXPECT_EQ(current, HandleOf(second));
}

TEST_F(DocumentSuiteTest, EntryNineteenWithoutADocumentIsNoDocument) {
    int sentinel = 0;
    auto current = reinterpret_cast<ZMDocumentHandle>(&sentinel);
    EXPECT_EQ(documents->GetDocument(&current), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(ZM_ERR_NO_DOCUMENT, ZM_FOUR_CHAR('D', 'O', 'C', '?'));
    EXPECT_EQ(current, reinterpret_cast<ZMDocumentHandle>(&sentinel));
}

TEST_F(DocumentSuiteTest, EveryEntryOfTheCurrentDocumentNeedsOne) {
    int16_t value16 = 0;
    int32_t value32 = 0;
    ZMBool flag = 0;
    ZMColorProfile profiles[3] = {};
    ZMDocumentSetup setup{};
    setup.width = setup.height = 1;
    ZMRealRect bounds{};
    ZMTextResourcesRef resources = nullptr;
    ZMDictionaryRef dictionary = nullptr;
    ZMFilePath path = NewPath();
    EXPECT_EQ(documents->GetDocumentFilePath(path), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentColorModel(&value16), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentColorProfiles(&profiles[0], &profiles[1], &profiles[2]),
              ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentSetup(&setup), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentRulerUnits(&value16), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentTextResources(&resources), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentDictionary(&dictionary), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->IsDocumentUntitled(&flag), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->GetDocumentPageBounds(&bounds), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->SetDocumentColorModel(1), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->SetDocumentRulerUnits(0), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->SetDocumentSetup(&setup), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->SetDocumentFilePath(path), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(documents->CountDocumentArtboards(&value32), ZM_ERR_NO_DOCUMENT);
    EXPECT_EQ(runtime.objects.Count<TextResourcesObject>(), 0u);  // nothing handed out
    EXPECT_EQ(runtime.objects.Count<DictionaryObject>(), 0u);
}

TEST_F(DocumentSuiteTest, DocumentsAreCountedAndListedInTheOrderTheyOpened) {
    int32_t count = -1;
    EXPECT_EQ(documents->CountDocuments(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 0);
    document::Document& first = Open();
    document::Document& second = Open();
    EXPECT_EQ(documents->CountDocuments(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    ZMDocumentHandle nth = nullptr;
    EXPECT_EQ(documents->GetNthDocument(0, &nth), ZM_ERR_NONE);
    EXPECT_EQ(nth, HandleOf(first));
    EXPECT_EQ(documents->GetNthDocument(1, &nth), ZM_ERR_NONE);
    EXPECT_EQ(nth, HandleOf(second));
    EXPECT_EQ(documents->GetNthDocument(2, &nth), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->GetNthDocument(-1, &nth), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->CountDocuments(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->GetNthDocument(0, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, AnOpenDocumentCanBeMadeCurrent) {
    document::Document& first = Open();
    document::Document& second = Open();
    EXPECT_EQ(documents->SetCurrentDocument(HandleOf(first)), ZM_ERR_NONE);
    ZMDocumentHandle current = nullptr;
    EXPECT_EQ(documents->GetDocument(&current), ZM_ERR_NONE);
    EXPECT_EQ(current, HandleOf(first));
    // The current one is the last of the order.
    ZMDocumentHandle nth = nullptr;
    EXPECT_EQ(documents->GetNthDocument(0, &nth), ZM_ERR_NONE);
    EXPECT_EQ(nth, HandleOf(second));
    EXPECT_EQ(documents->SetCurrentDocument(zm::test::ForeignHandle<ZMDocumentHandle>()),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->SetCurrentDocument(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, TheFileOfATitledDocumentFillsThePath) {
    Open().filePath = "/drawings/poster.svg";
    ZMFilePath path = NewPath();
    EXPECT_EQ(documents->GetDocumentFilePath(path), ZM_ERR_NONE);
    EXPECT_EQ(PathOf(path), "/drawings/poster.svg");
    ZMBool untitled = -1;
    EXPECT_EQ(documents->IsDocumentUntitled(&untitled), ZM_ERR_NONE);
    EXPECT_EQ(untitled, 0);
}

TEST_F(DocumentSuiteTest, AnUntitledDocumentHasNoFile) {
    Open();
    ZMFilePath path = NewPath();
    runtime.objects.Require<std::filesystem::path>(path) = "/kept.svg";
    EXPECT_EQ(documents->GetDocumentFilePath(path), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(PathOf(path), "/kept.svg");  // left as it was
    ZMBool untitled = -1;
    EXPECT_EQ(documents->IsDocumentUntitled(&untitled), ZM_ERR_NONE);
    EXPECT_EQ(untitled, 1);
}

TEST_F(DocumentSuiteTest, TheFilePathNeedsAPathTheHostMade) {
    Open().filePath = "/drawings/poster.svg";
    EXPECT_EQ(documents->GetDocumentFilePath(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->GetDocumentFilePath(zm::test::ForeignHandle<ZMFilePath>()),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->SetDocumentFilePath(zm::test::ForeignHandle<ZMFilePath>()),
              ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, SettingTheFileRenamesTheDocumentAndAnEmptyPathUntitlesIt) {
    document::Document& document = Open();
    ZMFilePath path = NewPath();
    runtime.objects.Require<std::filesystem::path>(path) = "/drawings/renamed.svg";
    EXPECT_EQ(documents->SetDocumentFilePath(path), ZM_ERR_NONE);
    EXPECT_EQ(document.filePath, "/drawings/renamed.svg");
    EXPECT_EQ(documents->SetDocumentFilePath(NewPath()), ZM_ERR_NONE);
    EXPECT_TRUE(document.filePath.empty());
}

TEST_F(DocumentSuiteTest, TheColorModelIsReportedAsStored) {
    document::Document& document = Open();
    int16_t model = -1;
    document.colorModel = document::kColorModelCmyk;
    EXPECT_EQ(documents->GetDocumentColorModel(&model), ZM_ERR_NONE);
    EXPECT_EQ(model, ZM_COLOR_MODEL_CMYK);
    document.colorModel = 7;  // not a model the host knows, still reported as it is
    EXPECT_EQ(documents->GetDocumentColorModel(&model), ZM_ERR_NONE);
    EXPECT_EQ(model, 7);
    EXPECT_EQ(documents->GetDocumentColorModel(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, SettingTheColorModelKeepsAnyValue) {
    document::Document& document = Open();
    EXPECT_EQ(documents->SetDocumentColorModel(ZM_COLOR_MODEL_GRAY), ZM_ERR_NONE);
    EXPECT_EQ(document.colorModel, document::kColorModelGray);
    EXPECT_EQ(documents->SetDocumentColorModel(9), ZM_ERR_NONE);
    EXPECT_EQ(document.colorModel, 9);
}

TEST_F(DocumentSuiteTest, ProfilesComeInTheOrderRgbCmykGrayAndNullWhenAbsent) {
    document::Document& document = Open();
    document.rgbProfile = "sRGB IEC61966-2.1";
    document.grayProfile = "Dot Gain 20%";
    int sentinel = 0;
    auto notSet = reinterpret_cast<ZMColorProfile>(&sentinel);
    ZMColorProfile rgb = notSet, cmyk = notSet, gray = notSet;
    EXPECT_EQ(documents->GetDocumentColorProfiles(&rgb, &cmyk, &gray), ZM_ERR_NONE);
    EXPECT_EQ(cmyk, nullptr);  // the document has no CMYK profile
    ASSERT_NE(rgb, nullptr);
    ASSERT_NE(gray, nullptr);
    // The colour conversion suite reads the names behind the handles.
    EXPECT_EQ(RequireProfileName(document, rgb), "sRGB IEC61966-2.1");
    EXPECT_EQ(RequireProfileName(document, gray), "Dot Gain 20%");
    EXPECT_THROW(RequireProfileName(document, nullptr), HostError);
    EXPECT_EQ(documents->GetDocumentColorProfiles(&rgb, nullptr, &gray), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, TheSetupGivesThePageInPointsAndTheImageFlag) {
    document::Document& document = Open();
    document.setup = {595.5, 842, true};
    ZMDocumentSetup setup;
    std::memset(&setup, 0xFF, sizeof setup);
    EXPECT_EQ(documents->GetDocumentSetup(&setup), ZM_ERR_NONE);
    EXPECT_EQ(setup.width, 595.5);
    EXPECT_EQ(setup.height, 842.0);
    EXPECT_EQ(setup.showPlacedImages, 1);
    for (int32_t reserved : setup.reserved) {
        EXPECT_EQ(reserved, 0);
    }
    EXPECT_EQ(documents->GetDocumentSetup(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, SettingTheSetupNeedsAPageWithASize) {
    document::Document& document = Open();
    ZMDocumentSetup setup{};
    setup.width = 200;
    setup.height = 100;
    setup.showPlacedImages = 5;  // any non-zero value is on
    EXPECT_EQ(documents->SetDocumentSetup(&setup), ZM_ERR_NONE);
    EXPECT_EQ(document.setup.width, 200.0);
    EXPECT_EQ(document.setup.height, 100.0);
    EXPECT_TRUE(document.setup.showPlacedImages);
    setup.height = 0;
    EXPECT_EQ(documents->SetDocumentSetup(&setup), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(document.setup.height, 100.0);
    EXPECT_EQ(documents->SetDocumentSetup(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, ThePageBoundsRunFromTheBottomLeftCorner) {
    Open().setup = {612, 792, false};
    ZMRealRect bounds{};
    EXPECT_EQ(documents->GetDocumentPageBounds(&bounds), ZM_ERR_NONE);
    // left 0, top = height, right = width, bottom 0
    EXPECT_EQ(bounds.left, 0.0);
    EXPECT_EQ(bounds.top, 792.0);
    EXPECT_EQ(bounds.right, 612.0);
    EXPECT_EQ(bounds.bottom, 0.0);
    EXPECT_EQ(documents->GetDocumentPageBounds(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, RulerUnitsAreReadAndSetByTheirCodes) {
    document::Document& document = Open();
    document.rulerUnits = document::RulerUnits::Millimeters;
    int16_t units = -1;
    EXPECT_EQ(documents->GetDocumentRulerUnits(&units), ZM_ERR_NONE);
    EXPECT_EQ(units, ZM_UNITS_MILLIMETERS);
    EXPECT_EQ(units, 3);  // points, pixels, inches, millimetres
    EXPECT_EQ(documents->SetDocumentRulerUnits(ZM_UNITS_PICAS), ZM_ERR_NONE);
    EXPECT_EQ(document.rulerUnits, document::RulerUnits::Picas);
    EXPECT_EQ(documents->SetDocumentRulerUnits(6), ZM_ERR_BAD_ARGUMENT);  // picas are the last
    EXPECT_EQ(documents->SetDocumentRulerUnits(-1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(document.rulerUnits, document::RulerUnits::Picas);
    EXPECT_EQ(documents->GetDocumentRulerUnits(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, TextResourcesCarryTheHighlightFlags) {
    document::Document& document = Open();
    document.highlightSubstitutedFonts = true;
    document.highlightSubstitutedGlyphs = false;
    ZMTextResourcesRef resources = nullptr;
    ASSERT_EQ(documents->GetDocumentTextResources(&resources), ZM_ERR_NONE);
    const TextResourcesObject& flags = RequireTextResources(runtime, resources);
    EXPECT_TRUE(flags.highlightSubstitutedFonts);
    EXPECT_FALSE(flags.highlightSubstitutedGlyphs);
    EXPECT_EQ(documents->ReleaseTextResources(resources), ZM_ERR_NONE);
    EXPECT_EQ(documents->GetDocumentTextResources(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, TextResourcesGoWithTheirLastReference) {
    Open();
    ZMTextResourcesRef resources = nullptr;
    ASSERT_EQ(documents->GetDocumentTextResources(&resources), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(resources), 1);
    EXPECT_EQ(documents->AddRefTextResources(resources), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(resources), 2);
    EXPECT_EQ(documents->ReleaseTextResources(resources), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextResourcesObject>(), 1u);
    EXPECT_EQ(documents->ReleaseTextResources(resources), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<TextResourcesObject>(), 0u);
    EXPECT_EQ(documents->ReleaseTextResources(resources), ZM_ERR_BAD_ARGUMENT);  // gone
    EXPECT_EQ(documents->AddRefTextResources(resources), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(documents->ReleaseTextResources(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, TheDictionaryIsTheDocumentsOwnAndCounted) {
    document::Document& document = Open();
    ZMDictionaryRef dictionary = nullptr;
    ASSERT_EQ(documents->GetDocumentDictionary(&dictionary), ZM_ERR_NONE);
    EXPECT_EQ(&RequireDictionary(runtime, dictionary).entries(), &document.dictionary);
    EXPECT_EQ(runtime.objects.References(dictionary), 1);
    runtime.objects.Release<DictionaryObject>(dictionary);
    EXPECT_EQ(runtime.objects.Count<DictionaryObject>(), 0u);
    EXPECT_EQ(documents->GetDocumentDictionary(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DocumentSuiteTest, ArtboardsOfTheDocumentAreCounted) {
    document::Document& document = Open();
    document.artboards = {{"Front", {0, 100, 100, 0}}, {"Back", {120, 100, 220, 0}}};
    int32_t count = -1;
    EXPECT_EQ(documents->CountDocumentArtboards(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(documents->CountDocumentArtboards(nullptr), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
