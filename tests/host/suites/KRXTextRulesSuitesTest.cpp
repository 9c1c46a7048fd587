#include "host/suites/TextPiecesFixture.hpp"

#include <zelmora/KRXCompFontSuites.h>
#include <zelmora/KRXKinsokuSuites.h>
#include <zelmora/KRXMojiKumiSuites.h>
#include <zelmora/KRXSpellSuite.h>
#include <zelmora/KRXTabStopSuites.h>
#include <zelmora/KRXTextResourcesSuites.h>
#include <zelmora/ZMDocumentSuite.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace zm::host {
namespace {

class KRXTextRulesSuitesTest : public zm::test::TextPiecesFixture {
protected:
    void SetUp() override {
        TextPiecesFixture::SetUp();
        Acquire(ZM_KRX_KINSOKU_SUITE_NAME, ZM_KRX_KINSOKU_SUITE_VERSION, kinsoku);
        Acquire(ZM_KRX_KINSOKU_SET_SUITE_NAME, ZM_KRX_KINSOKU_SET_SUITE_VERSION, kinsokuSets);
        Acquire(ZM_KRX_MOJI_KUMI_SUITE_NAME, ZM_KRX_MOJI_KUMI_SUITE_VERSION, mojiKumi);
        Acquire(ZM_KRX_MOJI_KUMI_SET_SUITE_NAME, ZM_KRX_MOJI_KUMI_SET_SUITE_VERSION, mojiKumiSets);
        Acquire(ZM_KRX_COMP_FONT_SUITE_NAME, ZM_KRX_COMP_FONT_SUITE_VERSION, compFonts);
        Acquire(ZM_KRX_COMP_FONT_CLASS_SUITE_NAME, ZM_KRX_COMP_FONT_CLASS_SUITE_VERSION,
                compFontClasses);
        Acquire(ZM_KRX_COMP_FONT_COMPONENT_SUITE_NAME, ZM_KRX_COMP_FONT_COMPONENT_SUITE_VERSION,
                components);
        Acquire(ZM_KRX_COMP_FONT_SET_SUITE_NAME, ZM_KRX_COMP_FONT_SET_SUITE_VERSION,
                compFontSets);
        Acquire(ZM_KRX_COMP_FONT_CLASS_SET_SUITE_NAME, ZM_KRX_COMP_FONT_CLASS_SET_SUITE_VERSION,
                classSets);
        Acquire(ZM_KRX_TAB_STOP_SUITE_NAME, ZM_KRX_TAB_STOP_SUITE_VERSION, tabStop);
        Acquire(ZM_KRX_TAB_STOPS_SUITE_NAME, ZM_KRX_TAB_STOPS_SUITE_VERSION, tabStops);
        Acquire(ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME, ZM_KRX_TAB_STOPS_ITERATOR_SUITE_VERSION,
                tabStopsIterators);
        Acquire(ZM_KRX_SPELL_SUITE_NAME, ZM_KRX_SPELL_SUITE_VERSION, spell);
        Acquire(ZM_KRX_TEXT_RESOURCES_SUITE_NAME, ZM_KRX_TEXT_RESOURCES_SUITE_VERSION, resources);
        Acquire(ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_NAME,
                ZM_KRX_APPLICATION_TEXT_RESOURCES_SUITE_VERSION, applicationResources);
        Acquire(ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_NAME,
                ZM_KRX_DOCUMENT_TEXT_RESOURCES_SUITE_VERSION, documentResources);
        Acquire(ZM_KRX_VERSION_INFO_SUITE_NAME, ZM_KRX_VERSION_INFO_SUITE_VERSION, versions);
        Acquire(ZM_KRX_CHAR_STYLES_SUITE_NAME, ZM_KRX_CHAR_STYLES_SUITE_VERSION, charStyles);
        Acquire(ZM_KRX_PARA_STYLES_SUITE_NAME, ZM_KRX_PARA_STYLES_SUITE_VERSION, paraStyles);
        Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, documents);
    }

    // A new rule of that name, in a set; the rule is released.
    template <typename Rule, typename RuleSuite, typename SetSuite, typename Set>
    void AddNamed(const RuleSuite* rules, const SetSuite* sets, Set set, const char* name) {
        Rule rule = nullptr;
        ASSERT_EQ(rules->Create(&rule), ZM_ERR_NONE);
        EXPECT_EQ(rules->SetName(rule, name), ZM_ERR_NONE);
        EXPECT_EQ(sets->Append(set, rule), ZM_ERR_NONE);
        EXPECT_EQ(rules->Release(rule), ZM_ERR_NONE);
    }

    const KRXKinsokuSuite* kinsoku = nullptr;
    const KRXKinsokuSetSuite* kinsokuSets = nullptr;
    const KRXMojiKumiSuite* mojiKumi = nullptr;
    const KRXMojiKumiSetSuite* mojiKumiSets = nullptr;
    const KRXCompFontSuite* compFonts = nullptr;
    const KRXCompFontClassSuite* compFontClasses = nullptr;
    const KRXCompFontComponentSuite* components = nullptr;
    const KRXCompFontSetSuite* compFontSets = nullptr;
    const KRXCompFontClassSetSuite* classSets = nullptr;
    const KRXTabStopSuite* tabStop = nullptr;
    const KRXTabStopsSuite* tabStops = nullptr;
    const KRXTabStopsIteratorSuite* tabStopsIterators = nullptr;
    const KRXSpellSuite* spell = nullptr;
    const KRXTextResourcesSuite* resources = nullptr;
    const KRXApplicationTextResourcesSuite* applicationResources = nullptr;
    const KRXDocumentTextResourcesSuite* documentResources = nullptr;
    const KRXVersionInfoSuite* versions = nullptr;
    const KRXCharStylesSuite* charStyles = nullptr;
    const KRXParaStylesSuite* paraStyles = nullptr;
    const ZMDocumentSuite* documents = nullptr;
};

TEST_F(KRXTextRulesSuitesTest, ARuleKeepsTheNameItIsGiven) {
    KRXCompFontComponentRef component = nullptr;
    ASSERT_EQ(components->Create(&component), ZM_ERR_NONE);
    char name[16];
    std::memset(name, 'x', sizeof name);
    EXPECT_EQ(components->GetName(component, name, sizeof name), ZM_ERR_NONE);
    EXPECT_STREQ(name, "");  // a new rule has no name
    EXPECT_EQ(components->SetName(component, "Kana \xE3\x81\x8B"), ZM_ERR_NONE);
    EXPECT_EQ(components->GetName(component, name, sizeof name), ZM_ERR_NONE);
    EXPECT_STREQ(name, "Kana \xE3\x81\x8B");
    // Seven bytes of room: "Kana " and not the three bytes of the kana.
    EXPECT_EQ(components->GetName(component, name, 7), ZM_ERR_NONE);
    EXPECT_STREQ(name, "Kana ");
    EXPECT_EQ(components->GetName(component, name, 0), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(components->SetName(component, "\xE3\x81"), ZM_ERR_BAD_ARGUMENT);  // cut short
    EXPECT_EQ(components->SetName(component, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(components->Release(component), ZM_ERR_NONE);
    EXPECT_EQ(components->SetName(component, "gone"), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(KRXTextRulesSuitesTest, SetsCountAndFindTheirRulesByName) {
    KRXKinsokuSetRef set = nullptr;
    ASSERT_EQ(kinsokuSets->Create(&set), ZM_ERR_NONE);
    AddNamed<KRXKinsokuRef>(kinsoku, kinsokuSets, set, "Hard");
    AddNamed<KRXKinsokuRef>(kinsoku, kinsokuSets, set, "Soft");
    int32_t size = -1;
    EXPECT_EQ(kinsokuSets->GetSize(set, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 2);
    int32_t index = -2;
    EXPECT_EQ(kinsokuSets->Find(set, "Soft", &index), ZM_ERR_NONE);
    EXPECT_EQ(index, 1);  // appended second
    EXPECT_EQ(kinsokuSets->Find(set, "soft", &index), ZM_ERR_NONE);
    EXPECT_EQ(index, -1);  // names are matched exactly
    KRXKinsokuRef item = nullptr;
    ASSERT_EQ(kinsokuSets->Item(set, 0, &item), ZM_ERR_NONE);
    char name[8] = {};
    EXPECT_EQ(kinsoku->GetName(item, name, sizeof name), ZM_ERR_NONE);
    EXPECT_STREQ(name, "Hard");
    EXPECT_EQ(kinsoku->Release(item), ZM_ERR_NONE);
    EXPECT_EQ(kinsokuSets->Item(set, 2, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(kinsokuSets->Find(set, nullptr, &index), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(kinsokuSets->Release(set), ZM_ERR_NONE);
}

TEST_F(KRXTextRulesSuitesTest, EachKindOfRuleGoesOnlyIntoItsOwnSet) {
    KRXMojiKumiSetRef mojiKumiSet = nullptr;
    ASSERT_EQ(mojiKumiSets->Create(&mojiKumiSet), ZM_ERR_NONE);
    AddNamed<KRXMojiKumiRef>(mojiKumi, mojiKumiSets, mojiKumiSet, "Line end");
    KRXCompFontSetRef fontSet = nullptr;
    ASSERT_EQ(compFontSets->Create(&fontSet), ZM_ERR_NONE);
    AddNamed<KRXCompFontRef>(compFonts, compFontSets, fontSet, "Mixed");
    KRXCompFontClassSetRef classSet = nullptr;
    ASSERT_EQ(classSets->Create(&classSet), ZM_ERR_NONE);
    AddNamed<KRXCompFontClassRef>(compFontClasses, classSets, classSet, "Kana");
    KRXCompFontClassRef fontClass = nullptr;
    ASSERT_EQ(compFontClasses->Create(&fontClass), ZM_ERR_NONE);
    // A composite font class is no composite font.
    EXPECT_EQ(compFontSets->Append(fontSet, reinterpret_cast<KRXCompFontRef>(fontClass)),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(compFontClasses->Release(fontClass), ZM_ERR_NONE);
    int32_t size = -1;
    EXPECT_EQ(compFontSets->GetSize(fontSet, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 1);
    EXPECT_EQ(mojiKumiSets->GetSize(mojiKumiSet, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 1);
    EXPECT_EQ(classSets->GetSize(classSet, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 1);
    EXPECT_EQ(mojiKumiSets->Release(mojiKumiSet), ZM_ERR_NONE);
    EXPECT_EQ(compFontSets->Release(fontSet), ZM_ERR_NONE);
    EXPECT_EQ(classSets->Release(classSet), ZM_ERR_NONE);
}

TEST_F(KRXTextRulesSuitesTest, TabStopsAreWalkedInTheOrderAppended) {
    KRXTabStopsRef list = nullptr;
    ASSERT_EQ(tabStops->Create(&list), ZM_ERR_NONE);
    for (double position : {36.0, 18.0}) {
        KRXTabStopRef stop = nullptr;
        ASSERT_EQ(tabStop->Create(&stop), ZM_ERR_NONE);
        EXPECT_EQ(tabStop->SetPosition(stop, position), ZM_ERR_NONE);
        EXPECT_EQ(tabStops->Append(list, stop), ZM_ERR_NONE);
        EXPECT_EQ(tabStop->SetPosition(stop, -1), ZM_ERR_BAD_ARGUMENT);
        EXPECT_EQ(tabStop->Release(stop), ZM_ERR_NONE);
    }
    KRXTabStopsIteratorRef iterator = nullptr;
    ASSERT_EQ(tabStopsIterators->Create(list, &iterator), ZM_ERR_NONE);
    EXPECT_EQ(tabStops->Release(list), ZM_ERR_NONE);
    auto positions = Walk(
        tabStopsIterators, iterator,
        [&](KRXTabStopRef stop) {
            double position = -1;
            EXPECT_EQ(tabStop->GetPosition(stop, &position), ZM_ERR_NONE);
            return position;
        },
        tabStop->Release);
    EXPECT_EQ(positions, (std::vector<double>{36.0, 18.0}));  // not sorted: as appended
}

TEST_F(KRXTextRulesSuitesTest, WithoutADictionaryNoWordIsMisspelt) {
    OpenText("krx-story.svg");
    KRXSpellRef checker = nullptr;
    ASSERT_EQ(spell->Create(&checker), ZM_ERR_NONE);
    KRXTextRangeRef range = RangeOf("opening");
    int32_t count = -1;
    EXPECT_EQ(spell->CountMisspelledWords(checker, range, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(spell->CountMisspelledWords(checker, nullptr, &count), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(spell->CountMisspelledWords(checker, range, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
    EXPECT_EQ(spell->Release(checker), ZM_ERR_NONE);
    EXPECT_EQ(spell->CountMisspelledWords(checker, range, &count), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(KRXTextRulesSuitesTest, TheEngineIsVersionOneOne) {
    int32_t major = 0;
    int32_t minor = 0;
    EXPECT_EQ(versions->GetMajorVersion(&major), ZM_ERR_NONE);
    EXPECT_EQ(versions->GetMinorVersion(&minor), ZM_ERR_NONE);
    EXPECT_EQ(major, 1);
    EXPECT_EQ(minor, 1);
    EXPECT_EQ(versions->GetMajorVersion(nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(KRXTextRulesSuitesTest, TheApplicationsResourcesHighlightNothing) {
    ZMTextResourcesRef application = nullptr;
    ASSERT_EQ(applicationResources->GetApplicationTextResources(&application), ZM_ERR_NONE);
    uint8_t highlight = 9;
    EXPECT_EQ(documentResources->GetHighlightSubstitutedFonts(application, &highlight),
              ZM_ERR_NONE);
    EXPECT_EQ(highlight, 0);
    KRXKinsokuSetRef set = nullptr;
    ASSERT_EQ(resources->GetKinsokuSet(application, &set), ZM_ERR_NONE);
    int32_t size = -1;
    EXPECT_EQ(kinsokuSets->GetSize(set, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 0);  // the host has no rules of its own
    EXPECT_EQ(kinsokuSets->Release(set), ZM_ERR_NONE);
    EXPECT_EQ(applicationResources->GetApplicationTextResources(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(resources->Release(application), ZM_ERR_NONE);
    EXPECT_EQ(resources->GetKinsokuSet(application, &set), ZM_ERR_BAD_ARGUMENT);  // released
}

TEST_F(KRXTextRulesSuitesTest, ADocumentsResourcesHoldTheNormalStyles) {
    OpenText("krx-story.svg");
    ZMTextResourcesRef document = nullptr;
    ASSERT_EQ(documents->GetDocumentTextResources(&document), ZM_ERR_NONE);
    KRXCharStylesRef characterStyles = nullptr;
    ASSERT_EQ(resources->GetCharStyles(document, &characterStyles), ZM_ERR_NONE);
    int32_t size = -1;
    EXPECT_EQ(charStyles->GetSize(characterStyles, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 1);  // "Normal Character Style"
    EXPECT_EQ(charStyles->Release(characterStyles), ZM_ERR_NONE);
    KRXParaStylesRef paragraphStyles = nullptr;
    ASSERT_EQ(resources->GetParaStyles(document, &paragraphStyles), ZM_ERR_NONE);
    EXPECT_EQ(paraStyles->GetSize(paragraphStyles, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 1);  // "Normal Paragraph Style"
    EXPECT_EQ(paraStyles->Release(paragraphStyles), ZM_ERR_NONE);
    KRXMojiKumiSetRef mojiKumiSet = nullptr;
    ASSERT_EQ(resources->GetMojiKumiSet(document, &mojiKumiSet), ZM_ERR_NONE);
    EXPECT_EQ(mojiKumiSets->Release(mojiKumiSet), ZM_ERR_NONE);
    KRXCompFontSetRef fontSet = nullptr;
    ASSERT_EQ(resources->GetCompFontSet(document, &fontSet), ZM_ERR_NONE);
    EXPECT_EQ(compFontSets->GetSize(fontSet, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(compFontSets->Release(fontSet), ZM_ERR_NONE);
    EXPECT_EQ(resources->GetCharStyles(document, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(resources->AddRef(document), ZM_ERR_NONE);
    EXPECT_EQ(resources->Release(document), ZM_ERR_NONE);
    EXPECT_EQ(documentResources->Release(document), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
