#include "host/suites/TextEngineFixture.hpp"

#include "support/DocumentBuilder.hpp"

#include <suites/TextEngineObjects.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zm::host {
namespace {

using Keys = std::vector<ZMFontKey>;
using Sizes = std::vector<double>;

class KRXCharInspectorSuiteTest : public zm::test::TextEngineFixture {
protected:
    // A document built by hand with one point text frame "built" holding these runs.
    void OpenRuns(std::vector<document::TextRun> runs) {
        document::Document& built = Open();
        document::Art& frame = zm::test::AddArt(*zm::test::AddLayer(built, "Layer 1").root,
                                                document::ArtType::TextFrame, "built");
        frame.text = std::make_unique<document::TextFrame>();
        frame.text->runs = std::move(runs);
    }

    static document::TextRun Run(std::string text, std::string family, double size) {
        document::TextRun run;
        run.text = std::move(text);
        run.fontFamily = std::move(family);
        run.fontSize = size;
        return run;
    }
};

// Each run's family, weight and style go to the catalogue as FindFontKey takes them, so the
// keys are the ones a plug-in finds for the same requests.
TEST_F(KRXCharInspectorSuiteTest, TwoRunsInTwoFontsGiveTwoFontsInRunOrder) {
    OpenText("two-fonts.svg");
    EXPECT_EQ(FontKeysOf("greeting"), (Keys{Key("Liberation Sans"), Key("Nimbus Sans", 700)}));
}

TEST_F(KRXCharInspectorSuiteTest, TheSameFontInSeveralRunsIsOneFont) {
    OpenText("repeated-font.svg");
    EXPECT_EQ(FontKeysOf("repeated"), (Keys{Key("Liberation Sans")}));
}

TEST_F(KRXCharInspectorSuiteTest, AFamilyNoFontHasIsAFontThatIsNotInstalled) {
    OpenText("missing-font.svg");
    Keys keys = FontKeysOf("missing");
    ASSERT_EQ(keys, (Keys{Key("Qwertyuiop Sans", 400, "italic")}));
    ZMFontInfo info{};
    EXPECT_EQ(fonts->GetFontInfo(keys[0], &info), ZM_ERR_NONE);
    EXPECT_EQ(info.installed, 0);
    char name[64] = {};
    EXPECT_EQ(fonts->GetPostScriptName(keys[0], name, sizeof name), ZM_ERR_NONE);
    EXPECT_STREQ(name, "QwertyuiopSans-Italic");
}

TEST_F(KRXCharInspectorSuiteTest, TextThatNamesNoFamilyIsSetInTheDefaultFamily) {
    OpenText("missing-font.svg");
    EXPECT_EQ(FontKeysOf("unnamed"), (Keys{Key("Liberation Sans")}));
}

TEST_F(KRXCharInspectorSuiteTest, SizesAreDistinctAndInPoints) {
    OpenText("repeated-font.svg");
    EXPECT_EQ(FontSizesOf("repeated"), (Sizes{15, 7.5}));  // 20 px twice, then 10 px
    OpenText("two-fonts.svg");
    EXPECT_EQ(FontSizesOf("greeting"), (Sizes{15, 12}));  // 20 px, 16 px
}

TEST_F(KRXCharInspectorSuiteTest, FillsAreTheRunsRgbColoursInOrder) {
    OpenText("two-fonts.svg");
    std::vector<ZMFillStyle> fills = FillsOf("greeting");
    ASSERT_EQ(fills.size(), 2u);
    zm::test::ExpectRgb(fills[0], 1, 0, 0);      // #ff0000
    zm::test::ExpectRgb(fills[1], 0, 0, 1);      // #0000ff
    EXPECT_TRUE(StrokesOf("greeting").empty());  // neither run is stroked
}

TEST_F(KRXCharInspectorSuiteTest, AColourUsedAgainIsOnePaint) {
    OpenText("repeated-font.svg");
    std::vector<ZMFillStyle> fills = FillsOf("repeated");
    ASSERT_EQ(fills.size(), 2u);  // red, blue; the third run's red is the first's
    zm::test::ExpectRgb(fills[0], 1, 0, 0);
    zm::test::ExpectRgb(fills[1], 0, 0, 1);
}

TEST_F(KRXCharInspectorSuiteTest, ARunWithoutFillAddsOnlyItsStroke) {
    OpenText("stroked.svg");
    std::vector<ZMFillStyle> fills = FillsOf("outlined");
    ASSERT_EQ(fills.size(), 1u);
    zm::test::ExpectRgb(fills[0], 0, 0, 0);  // "Solid ": the default black
    std::vector<ZMFillStyle> strokes = StrokesOf("outlined");
    ASSERT_EQ(strokes.size(), 1u);
    zm::test::ExpectRgb(strokes[0], 0, 1, 0);  // "Hollow": #00ff00
}

// No character has the font, size or paint of a run without text.
TEST_F(KRXCharInspectorSuiteTest, ARunWithoutCharactersAddsNothing) {
    document::TextRun empty = Run("", "Qwertyuiop Sans", 30);
    empty.paint.fillPaint = true;
    empty.paint.fill = document::Color::Rgb(0, 1, 0);
    document::TextRun full = Run("Text", "Liberation Sans", 10);
    full.paint.fillPaint = true;
    full.paint.fill = document::Color::Rgb(1, 0, 0);
    OpenRuns({empty, full});
    EXPECT_EQ(FontKeysOf("built"), (Keys{Key("Liberation Sans")}));
    EXPECT_EQ(FontSizesOf("built"), (Sizes{10}));
    std::vector<ZMFillStyle> fills = FillsOf("built");
    ASSERT_EQ(fills.size(), 1u);
    zm::test::ExpectRgb(fills[0], 1, 0, 0);
}

// A run whose weight no font request can have is no font: the fonts cannot be listed, and no
// array is left behind.
TEST_F(KRXCharInspectorSuiteTest, ARunThatNamesNoPossibleFontFailsTheFonts) {
    document::TextRun heavy = Run("Text", "Liberation Sans", 10);
    heavy.weight = 5000;
    OpenRuns({Run("Fine", "Liberation Sans", 10), heavy});
    KRXCharInspectorRef inspector = InspectorOf("built");
    KRXArrayFontRefRef array = nullptr;
    EXPECT_EQ(inspectors->GetFont(inspector, &array), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
}

// The array holds the only reference to each font it hands out: they go with it, unless the
// plug-in took one of its own.
TEST_F(KRXCharInspectorSuiteTest, TheFontArrayGivesBackItsFontsWhenItGoes) {
    OpenText("two-fonts.svg");
    KRXCharInspectorRef inspector = InspectorOf("greeting");
    KRXArrayFontRefRef array = nullptr;
    ASSERT_EQ(inspectors->GetFont(inspector, &array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 2u);
    KRXFontRef kept = nullptr;
    ASSERT_EQ(fontArrays->GetLast(array, &kept), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->AddRef(kept), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 1u);  // the one taken survives

    ZMFontKey key = nullptr;
    EXPECT_EQ(fonts->FontKeyFromKRXFont(kept, &key), ZM_ERR_NONE);
    EXPECT_EQ(key, Key("Nimbus Sans", 700));
    EXPECT_EQ(krxFonts->Release(kept), ZM_ERR_NONE);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
}

TEST_F(KRXCharInspectorSuiteTest, ThePaintArrayGivesBackItsPaintsWhenItGoes) {
    OpenText("two-fonts.svg");
    KRXCharInspectorRef inspector = InspectorOf("greeting");
    KRXArrayApplicationPaintRefRef array = nullptr;
    ASSERT_EQ(inspectors->GetFillColor(inspector, &array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<ApplicationPaintObject>(), 2u);
    EXPECT_EQ(paintArrays->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<ApplicationPaintObject>(), 0u);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
}

TEST_F(KRXCharInspectorSuiteTest, EachCallMakesANewArray) {
    OpenText("two-fonts.svg");
    KRXCharInspectorRef inspector = InspectorOf("greeting");
    KRXArrayRealRef first = nullptr;
    KRXArrayRealRef second = nullptr;
    ASSERT_EQ(inspectors->GetFontSize(inspector, &first), ZM_ERR_NONE);
    ASSERT_EQ(inspectors->GetFontSize(inspector, &second), ZM_ERR_NONE);
    EXPECT_NE(first, second);
    EXPECT_EQ(realArrays->Release(first), ZM_ERR_NONE);
    EXPECT_EQ(realArrays->Release(second), ZM_ERR_NONE);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
}

TEST_F(KRXCharInspectorSuiteTest, TheInspectorOutlivesItsDocument) {
    OpenText("two-fonts.svg");
    KRXCharInspectorRef inspector = InspectorOf("greeting");
    runtime.documents.CloseCurrent();
    EXPECT_EQ(FontKeys(inspector), (Keys{Key("Liberation Sans"), Key("Nimbus Sans", 700)}));
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
}

TEST_F(KRXCharInspectorSuiteTest, ReleaseGivesBackOneReferenceAtATime) {
    OpenText("two-fonts.svg");
    KRXCharInspectorRef inspector = InspectorOf("greeting");
    EXPECT_EQ(inspectors->AddRef(inspector), ZM_ERR_NONE);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<CharInspectorObject>(), 1u);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<CharInspectorObject>(), 0u);

    KRXArrayFontRefRef fontArray = nullptr;
    KRXArrayRealRef sizes = nullptr;
    KRXArrayApplicationPaintRefRef paintArray = nullptr;
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->AddRef(inspector), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetFont(inspector, &fontArray), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetFontSize(inspector, &sizes), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetFillColor(inspector, &paintArray), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetStrokeColor(inspector, &paintArray), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fontArray, nullptr);
    EXPECT_EQ(sizes, nullptr);
    EXPECT_EQ(paintArray, nullptr);
}

TEST_F(KRXCharInspectorSuiteTest, BadReferencesAndMissingOutputsAreBadArguments) {
    OpenText("two-fonts.svg");
    auto foreign = zm::test::ForeignHandle<KRXCharInspectorRef>();
    KRXArrayFontRefRef fontArray = nullptr;
    EXPECT_EQ(inspectors->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->Release(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetFont(foreign, &fontArray), ZM_ERR_BAD_ARGUMENT);

    KRXCharInspectorRef inspector = InspectorOf("greeting");
    EXPECT_EQ(inspectors->GetFont(inspector, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetFontSize(inspector, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetFillColor(inspector, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->GetStrokeColor(inspector, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Size(), 0u);  // a refused call makes no array
}

}  // namespace
}  // namespace zm::host
