#include <gtest/gtest.h>
#include <lcms2.h>
#include <zelmora/ZMArtboardSuite.h>
#include <zelmora/ZMDictionarySuite.h>
#include <zelmora/ZMDocumentSuite.h>
#include <zelmora/ZMFilePathSuite.h>

#include <document/Document.hpp>
#include <fstream>
#include <string>
#include <support/ScratchFolder.hpp>
#include <vector>

#include "IccProfileFiles.hpp"
#include "ImportedDocumentFixture.hpp"

namespace zm::test {
namespace {

// One millimetre in points.
constexpr double kMillimetre = 72 / 25.4;

// Document settings and artboards of an imported document, read through the document,
// artboard, file path and dictionary suites.
class SvgSettingsThroughSuitesTest : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, documents);
        Acquire(ZM_ARTBOARD_SUITE_NAME, ZM_ARTBOARD_SUITE_VERSION, artboards);
        Acquire(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, paths);
        Acquire(ZM_DICTIONARY_SUITE_NAME, ZM_DICTIONARY_SUITE_VERSION, dictionaries);
    }

    ZMDocumentSetup PageSetup() {
        ZMDocumentSetup setup{};
        EXPECT_EQ(documents->GetDocumentSetup(&setup), ZM_ERR_NONE);
        return setup;
    }

    int16_t Units() {
        int16_t units = -1;
        EXPECT_EQ(documents->GetDocumentRulerUnits(&units), ZM_ERR_NONE);
        return units;
    }

    int16_t ColorModel() {
        int16_t model = -1;
        EXPECT_EQ(documents->GetDocumentColorModel(&model), ZM_ERR_NONE);
        return model;
    }

    // One artboard as a plug-in reads it from a list it then gives back.
    struct ArtboardRead {
        std::string name;
        ZMRealRect bounds;
    };

    std::vector<ArtboardRead> Artboards() {
        ZMArtboardList list = nullptr;
        EXPECT_EQ(artboards->GetArtboardList(&list), ZM_ERR_NONE);
        int32_t count = 0;
        EXPECT_EQ(artboards->CountArtboards(list, &count), ZM_ERR_NONE);
        std::vector<ArtboardRead> read;
        for (int32_t i = 0; i < count; ++i) {
            ArtboardRead artboard{};
            ZMUnicodeString name = String();
            EXPECT_EQ(artboards->GetArtboardName(list, i, name), ZM_ERR_NONE);
            artboard.name = Text(name);
            EXPECT_EQ(artboards->GetArtboardBounds(list, i, &artboard.bounds), ZM_ERR_NONE);
            read.push_back(artboard);
        }
        EXPECT_EQ(artboards->ReleaseArtboardList(list), ZM_ERR_NONE);
        EXPECT_EQ(runtime.objects.References(list), 0);  // the list is gone
        return read;
    }

    static void ExpectRect(const ZMRealRect& rect, double left, double top, double right,
                           double bottom) {
        EXPECT_NEAR(rect.left, left, 1e-9);
        EXPECT_NEAR(rect.top, top, 1e-9);
        EXPECT_NEAR(rect.right, right, 1e-9);
        EXPECT_NEAR(rect.bottom, bottom, 1e-9);
    }

    // The boolean the document's dictionary holds under key; the reference is given back.
    ZMErr DictionaryBoolean(const char* key, ZMBool* value) {
        ZMDictionaryRef dictionary = nullptr;
        EXPECT_EQ(documents->GetDocumentDictionary(&dictionary), ZM_ERR_NONE);
        ZMDictKey dictKey = nullptr;
        EXPECT_EQ(dictionaries->Key(key, &dictKey), ZM_ERR_NONE);
        ZMErr result = dictionaries->GetBooleanEntry(dictionary, dictKey, value);
        EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
        return result;
    }

    const ZMDocumentSuite* documents = nullptr;
    const ZMArtboardSuite* artboards = nullptr;
    const ZMDictionarySuite* dictionaries = nullptr;
};

// settings.svg: A4 in millimetres with a viewBox of one user unit per millimetre, CMYK, and
// two zm:artboard halves of the top of the page.
class SvgSettingsFileThroughSuitesTest : public SvgSettingsThroughSuitesTest {
protected:
    void SetUp() override {
        SvgSettingsThroughSuitesTest::SetUp();
        Import("settings.svg");
    }
};

TEST_F(SvgSettingsFileThroughSuitesTest, TheImportedDocumentIsTheCurrentOne) {
    int32_t count = 0;
    ASSERT_EQ(documents->CountDocuments(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 1);
    ZMDocumentHandle current = nullptr, first = nullptr;
    ASSERT_EQ(documents->GetDocument(&current), ZM_ERR_NONE);
    ASSERT_EQ(documents->GetNthDocument(0, &first), ZM_ERR_NONE);
    EXPECT_NE(current, nullptr);
    EXPECT_EQ(current, first);
}

TEST_F(SvgSettingsFileThroughSuitesTest, TheFilePathIsTheFileItWasOpenedFrom) {
    ZMFilePath path = nullptr;
    ASSERT_EQ(paths->NewFilePath(&path), ZM_ERR_NONE);
    ASSERT_EQ(documents->GetDocumentFilePath(path), ZM_ERR_NONE);
    ZMUnicodeString text = String();
    ASSERT_EQ(paths->GetAsString(path, text), ZM_ERR_NONE);
    EXPECT_EQ(Text(text), SvgFixture("settings.svg").string());
    ZMUnicodeString name = String();
    ASSERT_EQ(paths->GetFileName(path, 1, name), ZM_ERR_NONE);
    EXPECT_EQ(Text(name), "settings.svg");
    EXPECT_EQ(paths->DisposeFilePath(path), ZM_ERR_NONE);
    ZMBool untitled = -1;
    ASSERT_EQ(documents->IsDocumentUntitled(&untitled), ZM_ERR_NONE);
    EXPECT_EQ(untitled, 0);
}

TEST_F(SvgSettingsFileThroughSuitesTest, TheColourModelComesFromTheRoot) {
    EXPECT_EQ(ColorModel(), ZM_COLOR_MODEL_CMYK);
}

TEST_F(SvgSettingsFileThroughSuitesTest, TheSetupIsThePageInPoints) {
    ZMDocumentSetup setup = PageSetup();
    EXPECT_NEAR(setup.width, 210 * kMillimetre, 1e-9);   // 595.28 pt
    EXPECT_NEAR(setup.height, 297 * kMillimetre, 1e-9);  // 841.89 pt
    EXPECT_EQ(setup.showPlacedImages, 1);                // zm:show-placed-images="true"
    EXPECT_EQ(Units(), ZM_UNITS_MILLIMETERS);            // the unit of width
    ZMRealRect page{};
    ASSERT_EQ(documents->GetDocumentPageBounds(&page), ZM_ERR_NONE);
    ExpectRect(page, 0, 297 * kMillimetre, 210 * kMillimetre, 0);
}

TEST_F(SvgSettingsFileThroughSuitesTest, SettingsWithoutAFieldOfTheirOwnAreDictionaryEntries) {
    ZMBool value = -1;
    ASSERT_EQ(DictionaryBoolean(host::document::kPreserveTextEditabilityKey, &value), ZM_ERR_NONE);
    EXPECT_EQ(value, 0);  // zm:preserve-text-editability="false"
    ASSERT_EQ(DictionaryBoolean(host::document::kPaperSimulationKey, &value), ZM_ERR_NONE);
    EXPECT_EQ(value, 1);  // zm:paper-simulation="true"
}

TEST_F(SvgSettingsFileThroughSuitesTest, ZmArtboardsInUserUnits) {
    int32_t count = 0;
    ASSERT_EQ(documents->CountDocumentArtboards(&count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    std::vector<ArtboardRead> read = Artboards();
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].name, "Front");
    // x 0..105 mm; y 0..148.5 mm down from the top of the 297 mm page.
    ExpectRect(read[0].bounds, 0, 297 * kMillimetre, 105 * kMillimetre, 148.5 * kMillimetre);
    ExpectRect(read[1].bounds, 105 * kMillimetre, 297 * kMillimetre, 210 * kMillimetre,
               148.5 * kMillimetre);
}

TEST_F(SvgSettingsFileThroughSuitesTest, NoDeclaredProfileMeansNoProfile) {
    ZMColorProfile rgb = ForeignHandle<ZMColorProfile>();
    ZMColorProfile cmyk = rgb, gray = rgb;
    ASSERT_EQ(documents->GetDocumentColorProfiles(&rgb, &cmyk, &gray), ZM_ERR_NONE);
    EXPECT_EQ(rgb, nullptr);
    EXPECT_EQ(cmyk, nullptr);
    EXPECT_EQ(gray, nullptr);
}

TEST_F(SvgSettingsThroughSuitesTest, ADocumentWithoutSettingsTakesTheDefaults) {
    Import("shapes.svg");
    EXPECT_EQ(ColorModel(), ZM_COLOR_MODEL_RGB);
    ZMDocumentSetup setup = PageSetup();
    EXPECT_EQ(setup.width, 150);  // 200 px
    EXPECT_EQ(setup.height, 75);  // 100 px
    EXPECT_EQ(setup.showPlacedImages, 0);
    EXPECT_EQ(Units(), ZM_UNITS_PIXELS);  // a width without a unit
    // One artboard the size of the document.
    std::vector<ArtboardRead> read = Artboards();
    ASSERT_EQ(read.size(), 1u);
    ExpectRect(read[0].bounds, 0, 75, 150, 0);
}

TEST_F(SvgSettingsThroughSuitesTest, AViewBoxDoesNotChangeThePageSize) {
    Import("viewbox.svg");
    ZMDocumentSetup setup = PageSetup();
    EXPECT_DOUBLE_EQ(setup.width, 144);  // 2 in
    EXPECT_DOUBLE_EQ(setup.height, 72);  // 1 in
    EXPECT_EQ(Units(), ZM_UNITS_INCHES);
}

TEST_F(SvgSettingsThroughSuitesTest, ZmUnitsBeatTheUnitOfTheWidth) {
    ImportText(R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:zm="https://zelmora.example/ns/1.0"
                      width="100mm" height="50mm" zm:units="pc" zm:color-model="gray"/>)");
    EXPECT_EQ(Units(), ZM_UNITS_PICAS);
    EXPECT_EQ(ColorModel(), ZM_COLOR_MODEL_GRAY);
}

TEST_F(SvgSettingsThroughSuitesTest, AnUnreadablePreserveTextEditabilityIsTrue) {
    ImportText(R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:zm="https://zelmora.example/ns/1.0"
                      zm:preserve-text-editability="perhaps"/>)");
    ZMBool value = -1;
    ASSERT_EQ(DictionaryBoolean(host::document::kPreserveTextEditabilityKey, &value), ZM_ERR_NONE);
    EXPECT_EQ(value, 1);  // its default
}

TEST_F(SvgSettingsThroughSuitesTest, TextWithoutAFileIsUntitled) {
    ImportText(R"(<svg xmlns="http://www.w3.org/2000/svg"/>)");
    ZMBool untitled = -1;
    ASSERT_EQ(documents->IsDocumentUntitled(&untitled), ZM_ERR_NONE);
    EXPECT_EQ(untitled, 1);
    ZMFilePath path = nullptr;
    ASSERT_EQ(paths->NewFilePath(&path), ZM_ERR_NONE);
    EXPECT_EQ(documents->GetDocumentFilePath(path), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(paths->DisposeFilePath(path), ZM_ERR_NONE);
}

TEST_F(SvgSettingsThroughSuitesTest, TheLastDocumentOpenedIsTheCurrentOne) {
    Import("shapes.svg");
    Import("viewbox.svg");
    ZMDocumentHandle current = nullptr, second = nullptr;
    ASSERT_EQ(documents->GetDocument(&current), ZM_ERR_NONE);
    ASSERT_EQ(documents->GetNthDocument(1, &second), ZM_ERR_NONE);
    EXPECT_EQ(current, second);
    EXPECT_DOUBLE_EQ(PageSetup().width, 144);  // viewbox.svg's, not shapes.svg's 150
}

TEST_F(SvgSettingsThroughSuitesTest, InkscapePagesAreArtboards) {
    Import("inkscape-pages.svg");
    EXPECT_EQ(Units(), ZM_UNITS_MILLIMETERS);  // inkscape:document-units on the named view
    std::vector<ArtboardRead> read = Artboards();
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].name, "Cover");  // inkscape:label
    // Two 100 px squares side by side on a 200 x 100 px page: 75 pt each.
    ExpectRect(read[0].bounds, 0, 75, 75, 0);
    ExpectRect(read[1].bounds, 75, 75, 150, 0);
}

TEST_F(SvgSettingsThroughSuitesTest, ADeclaredProfileFillsTheSlotOfItsSpace) {
    ScratchFolder scratch;
    SaveProfile(cmsCreate_sRGBProfile(), "Test RGB", scratch.Path() / "rgb.icc");
    std::ofstream(scratch.Path() / "doc.svg")
        << R"(<svg xmlns="http://www.w3.org/2000/svg"><color-profile href="rgb.icc"/></svg>)";
    runtime.documents.Add(host::ImportSvgFile(scratch.Path() / "doc.svg"));
    ZMColorProfile rgb = nullptr;
    ZMColorProfile cmyk = ForeignHandle<ZMColorProfile>(), gray = cmyk;
    ASSERT_EQ(documents->GetDocumentColorProfiles(&rgb, &cmyk, &gray), ZM_ERR_NONE);
    EXPECT_NE(rgb, nullptr);
    EXPECT_EQ(cmyk, nullptr);
    EXPECT_EQ(gray, nullptr);
}

}  // namespace
}  // namespace zm::test
