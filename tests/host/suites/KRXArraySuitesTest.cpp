#include "host/suites/SuiteFixture.hpp"

#include <suites/CountedObjects.hpp>
#include <suites/KRXArrayObject.hpp>
#include <suites/TextEngineObjects.hpp>

#include <zelmora/KRXArraySuites.h>
#include <zelmora/KRXFontSuite.h>
#include <zelmora/ZMFontSuite.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zm::host {
namespace {

// --- The array template, through three of its suites: reals (plain values), fonts (references
// the array holds) and arrays of reals (arrays held by an array). ---------------------------

class KRXArraySuitesTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_KRX_ARRAY_REAL_SUITE_NAME, ZM_KRX_ARRAY_REAL_SUITE_VERSION, reals);
        Acquire(ZM_KRX_ARRAY_INTEGER_SUITE_NAME, ZM_KRX_ARRAY_INTEGER_SUITE_VERSION, integers);
        Acquire(ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_NAME, ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE_VERSION,
                lineCaps);
        Acquire(ZM_KRX_ARRAY_FONT_REF_SUITE_NAME, ZM_KRX_ARRAY_FONT_REF_SUITE_VERSION, fontArrays);
        Acquire(ZM_KRX_ARRAY_ARRAY_REAL_SUITE_NAME, ZM_KRX_ARRAY_ARRAY_REAL_SUITE_VERSION,
                realArrays);
        Acquire(ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, fonts);
        Acquire(ZM_KRX_FONT_SUITE_NAME, ZM_KRX_FONT_SUITE_VERSION, krxFonts);
    }

    void TearDown() override {
        EXPECT_EQ(runtime.objects.Size(), 0u) << "a reference was not given back";
        SuiteFixture::TearDown();
    }

    KRXArrayRealRef NewReals(const std::vector<double>& values = {}) {
        KRXArrayRealRef array = nullptr;
        EXPECT_EQ(reals->Create(&array), ZM_ERR_NONE);
        for (double value : values) {
            EXPECT_EQ(reals->Append(array, value), ZM_ERR_NONE);
        }
        return array;
    }

    KRXArrayFontRefRef NewFonts() {
        KRXArrayFontRefRef array = nullptr;
        EXPECT_EQ(fontArrays->Create(&array), ZM_ERR_NONE);
        return array;
    }

    // A new text-engine font of an installed family; the test releases it.
    KRXFontRef NewFont() {
        ZMFontKey key = nullptr;
        EXPECT_EQ(fonts->FindFontKey("Liberation Sans", 400, "normal", &key), ZM_ERR_NONE);
        KRXFontRef font = nullptr;
        EXPECT_EQ(fonts->KRXFontFromFontKey(key, &font), ZM_ERR_NONE);
        return font;
    }

    int32_t References(const void* handle) const { return runtime.objects.References(handle); }

    const KRXArrayRealSuite* reals = nullptr;
    const KRXArrayIntegerSuite* integers = nullptr;
    const KRXArrayLineCapTypeSuite* lineCaps = nullptr;
    const KRXArrayFontRefSuite* fontArrays = nullptr;
    const KRXArrayArrayRealSuite* realArrays = nullptr;
    const ZMFontSuite* fonts = nullptr;
    const KRXFontSuite* krxFonts = nullptr;
};

TEST_F(KRXArraySuitesTest, ANewArrayIsEmpty) {
    KRXArrayRealRef array = NewReals();
    int32_t size = -1;
    EXPECT_EQ(reals->GetSize(array, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 0);
    double item = 7;
    EXPECT_EQ(reals->GetFirst(array, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetLast(array, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Item(array, 0, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(item, 7);
    EXPECT_EQ(reals->Release(array), ZM_ERR_NONE);
}

// Arrays are lists, not sets: an item appended twice is there twice.
TEST_F(KRXArraySuitesTest, ItemsComeBackInTheOrderTheyWereAppended) {
    KRXArrayRealRef array = NewReals({1.5, -2, 1.5, 4.25});
    int32_t size = -1;
    EXPECT_EQ(reals->GetSize(array, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 4);
    std::vector<double> items;
    for (int32_t index = 0; index < 4; ++index) {
        double item = 0;
        EXPECT_EQ(reals->Item(array, index, &item), ZM_ERR_NONE);
        items.push_back(item);
    }
    EXPECT_EQ(items, (std::vector<double>{1.5, -2, 1.5, 4.25}));
    double first = 0, last = 0;
    EXPECT_EQ(reals->GetFirst(array, &first), ZM_ERR_NONE);
    EXPECT_EQ(reals->GetLast(array, &last), ZM_ERR_NONE);
    EXPECT_EQ(first, 1.5);
    EXPECT_EQ(last, 4.25);
    EXPECT_EQ(reals->Release(array), ZM_ERR_NONE);
}

TEST_F(KRXArraySuitesTest, AnIndexOutsideTheArrayIsABadArgument) {
    KRXArrayRealRef array = NewReals({1, 2, 3});
    double item = 7;
    for (int32_t index :
         {-1, 3, std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::min()}) {
        EXPECT_EQ(reals->Item(array, index, &item), ZM_ERR_BAD_ARGUMENT) << index;
    }
    EXPECT_EQ(item, 7);
    EXPECT_EQ(reals->Release(array), ZM_ERR_NONE);
}

TEST_F(KRXArraySuitesTest, ReleaseGivesBackOneReferenceAtATime) {
    KRXArrayRealRef array = NewReals({1});
    EXPECT_EQ(reals->AddRef(array), ZM_ERR_NONE);
    EXPECT_EQ(References(array), 2);
    EXPECT_EQ(reals->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(References(array), 1);
    EXPECT_EQ(reals->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Size(), 0u);

    int32_t size = -1;
    double item = 7;
    EXPECT_EQ(reals->AddRef(array), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Release(array), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetSize(array, &size), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetFirst(array, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetLast(array, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Item(array, 0, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Append(array, 2), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(item, 7);
}

TEST_F(KRXArraySuitesTest, BadReferencesAndMissingOutputsAreBadArguments) {
    EXPECT_EQ(reals->Create(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(runtime.objects.Size(), 0u);  // the refused call made no array

    auto foreign = zm::test::ForeignHandle<KRXArrayRealRef>();
    int32_t size = -1;
    double item = 7;
    EXPECT_EQ(reals->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Release(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetSize(foreign, &size), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Item(nullptr, 0, &item), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Append(foreign, 1), ZM_ERR_BAD_ARGUMENT);

    KRXArrayRealRef array = NewReals({1});
    EXPECT_EQ(reals->GetSize(array, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetFirst(array, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->GetLast(array, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Item(array, 0, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(reals->Release(array), ZM_ERR_NONE);
}

// Integers and line cap types both hold 32-bit values, but each suite takes only its own
// arrays.
TEST_F(KRXArraySuitesTest, AnArrayOfOneSuiteIsRefusedByAnother) {
    KRXArrayIntegerRef array = nullptr;
    ASSERT_EQ(integers->Create(&array), ZM_ERR_NONE);
    auto asLineCaps = reinterpret_cast<KRXArrayLineCapTypeRef>(array);
    int32_t size = -1;
    EXPECT_EQ(lineCaps->GetSize(asLineCaps, &size), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(lineCaps->Append(asLineCaps, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(lineCaps->Release(asLineCaps), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(integers->Release(array), ZM_ERR_NONE);
}

// A failure the fault plan asks of one suite's entry leaves the same entry of another suite,
// made from the same template, alone.
TEST_F(KRXArraySuitesTest, EachSuiteAnswersUnderItsOwnName) {
    runtime.faults.FailCall(ZM_KRX_ARRAY_INTEGER_SUITE_NAME, 7, ZM_ERR_NO_MEMORY);
    KRXArrayIntegerRef integerArray = nullptr;
    KRXArrayLineCapTypeRef lineCapArray = nullptr;
    ASSERT_EQ(integers->Create(&integerArray), ZM_ERR_NONE);
    ASSERT_EQ(lineCaps->Create(&lineCapArray), ZM_ERR_NONE);
    EXPECT_EQ(integers->Append(integerArray, 1), ZM_ERR_NO_MEMORY);
    EXPECT_EQ(lineCaps->Append(lineCapArray, 1), ZM_ERR_NONE);
    EXPECT_EQ(integers->Release(integerArray), ZM_ERR_NONE);
    EXPECT_EQ(lineCaps->Release(lineCapArray), ZM_ERR_NONE);
}

TEST_F(KRXArraySuitesTest, AppendTakesAReferenceOfItsOwnAndItemLendsIt) {
    KRXArrayFontRefRef array = NewFonts();
    KRXFontRef font = NewFont();
    EXPECT_EQ(fontArrays->Append(array, font), ZM_ERR_NONE);
    EXPECT_EQ(References(font), 2);  // the test's and the array's
    KRXFontRef lent = nullptr;
    EXPECT_EQ(fontArrays->Item(array, 0, &lent), ZM_ERR_NONE);
    EXPECT_EQ(lent, font);
    EXPECT_EQ(fontArrays->GetFirst(array, &lent), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->GetLast(array, &lent), ZM_ERR_NONE);
    EXPECT_EQ(References(font), 2);  // lending takes none

    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(References(font), 1);  // the array keeps it alive
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);  // and gave it back as it went
}

TEST_F(KRXArraySuitesTest, AReferenceAppendedTwiceIsHeldTwice) {
    KRXArrayFontRefRef array = NewFonts();
    KRXFontRef font = NewFont();
    EXPECT_EQ(fontArrays->Append(array, font), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->Append(array, font), ZM_ERR_NONE);
    EXPECT_EQ(References(font), 3);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);
}

TEST_F(KRXArraySuitesTest, AnArrayThatIsStillHeldKeepsItsItems) {
    KRXArrayFontRefRef array = NewFonts();
    KRXFontRef font = NewFont();
    EXPECT_EQ(fontArrays->Append(array, font), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->AddRef(array), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);  // not its last reference
    EXPECT_EQ(References(font), 1);
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);
}

TEST_F(KRXArraySuitesTest, OnlyAReferenceOfTheItemsKindIsAppended) {
    KRXArrayFontRefRef array = NewFonts();
    KRXFontRef released = NewFont();
    EXPECT_EQ(krxFonts->Release(released), ZM_ERR_NONE);
    KRXArrayRealRef notAFont = NewReals();
    EXPECT_EQ(fontArrays->Append(array, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fontArrays->Append(array, zm::test::ForeignHandle<KRXFontRef>()),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fontArrays->Append(array, released), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fontArrays->Append(array, reinterpret_cast<KRXFontRef>(notAFont)),
              ZM_ERR_BAD_ARGUMENT);
    int32_t size = -1;
    EXPECT_EQ(fontArrays->GetSize(array, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(References(notAFont), 1);  // refused, so not taken
    EXPECT_EQ(reals->Release(notAFont), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
}

TEST_F(KRXArraySuitesTest, AnArrayHeldByAnArrayGoesWithIt) {
    KRXArrayArrayRealRef outer = nullptr;
    ASSERT_EQ(realArrays->Create(&outer), ZM_ERR_NONE);
    KRXArrayRealRef inner = NewReals({0.5, 0.25});
    EXPECT_EQ(realArrays->Append(outer, inner), ZM_ERR_NONE);
    EXPECT_EQ(reals->Release(inner), ZM_ERR_NONE);

    KRXArrayRealRef lent = nullptr;
    EXPECT_EQ(realArrays->GetFirst(outer, &lent), ZM_ERR_NONE);
    double item = 0;
    EXPECT_EQ(reals->GetLast(lent, &item), ZM_ERR_NONE);  // read through the outer array
    EXPECT_EQ(item, 0.25);

    EXPECT_EQ(realArrays->Release(outer), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Size(), 0u);  // the inner array went with the outer one
}

// A plug-in that gives back a reference it does not hold cannot stop an array going: the item
// it took from the array is simply gone already.
TEST_F(KRXArraySuitesTest, AnItemGivenBackOnceTooOftenDoesNotStopTheArrayGoing) {
    KRXArrayFontRefRef array = NewFonts();
    KRXFontRef font = NewFont();
    EXPECT_EQ(fontArrays->Append(array, font), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);  // the array's reference
    EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
}

// --- Every array suite: registered under its name and version, and working. ----------------

// The reference and item types of an array suite, read from its GetFirst entry.
template <typename Ref, typename Item>
struct ArraySignature {
    using RefType = Ref;
    using ItemType = Item;
};

template <typename Ref, typename Item>
ArraySignature<Ref, Item> SignatureOf(ZMErr (*)(Ref, Item*));

#define ZM_ARRAY_CASE(Name, SUITE)                           \
    struct Name##Array {                                     \
        using Table = KRXArray##Name##Suite;                 \
        static constexpr const char* kLabel = #Name;         \
        static constexpr const char* kName = SUITE##_NAME;   \
        static constexpr int32_t kVersion = SUITE##_VERSION; \
    }

ZM_ARRAY_CASE(ApplicationPaintRef, ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE);
ZM_ARRAY_CASE(Real, ZM_KRX_ARRAY_REAL_SUITE);
ZM_ARRAY_CASE(Bool, ZM_KRX_ARRAY_BOOL_SUITE);
ZM_ARRAY_CASE(Integer, ZM_KRX_ARRAY_INTEGER_SUITE);
ZM_ARRAY_CASE(LineCapType, ZM_KRX_ARRAY_LINE_CAP_TYPE_SUITE);
ZM_ARRAY_CASE(FigureStyle, ZM_KRX_ARRAY_FIGURE_STYLE_SUITE);
ZM_ARRAY_CASE(LineJoinType, ZM_KRX_ARRAY_LINE_JOIN_TYPE_SUITE);
ZM_ARRAY_CASE(WariChuJustification, ZM_KRX_ARRAY_WARI_CHU_JUSTIFICATION_SUITE);
ZM_ARRAY_CASE(StyleRunAlignment, ZM_KRX_ARRAY_STYLE_RUN_ALIGNMENT_SUITE);
ZM_ARRAY_CASE(AutoKernType, ZM_KRX_ARRAY_AUTO_KERN_TYPE_SUITE);
ZM_ARRAY_CASE(BaselineDirection, ZM_KRX_ARRAY_BASELINE_DIRECTION_SUITE);
ZM_ARRAY_CASE(Language, ZM_KRX_ARRAY_LANGUAGE_SUITE);
ZM_ARRAY_CASE(FontCapsOption, ZM_KRX_ARRAY_FONT_CAPS_OPTION_SUITE);
ZM_ARRAY_CASE(FontBaselineOption, ZM_KRX_ARRAY_FONT_BASELINE_OPTION_SUITE);
ZM_ARRAY_CASE(FontOpenTypePositionOption, ZM_KRX_ARRAY_FONT_OPEN_TYPE_POSITION_OPTION_SUITE);
ZM_ARRAY_CASE(UnderlinePosition, ZM_KRX_ARRAY_UNDERLINE_POSITION_SUITE);
ZM_ARRAY_CASE(StrikethroughPosition, ZM_KRX_ARRAY_STRIKETHROUGH_POSITION_SUITE);
ZM_ARRAY_CASE(ParagraphJustification, ZM_KRX_ARRAY_PARAGRAPH_JUSTIFICATION_SUITE);
ZM_ARRAY_CASE(ArrayReal, ZM_KRX_ARRAY_ARRAY_REAL_SUITE);
ZM_ARRAY_CASE(BurasagariType, ZM_KRX_ARRAY_BURASAGARI_TYPE_SUITE);
ZM_ARRAY_CASE(PreferredKinsokuOrder, ZM_KRX_ARRAY_PREFERRED_KINSOKU_ORDER_SUITE);
ZM_ARRAY_CASE(KinsokuRef, ZM_KRX_ARRAY_KINSOKU_REF_SUITE);
ZM_ARRAY_CASE(MojiKumiRef, ZM_KRX_ARRAY_MOJI_KUMI_REF_SUITE);
ZM_ARRAY_CASE(MojiKumiSetRef, ZM_KRX_ARRAY_MOJI_KUMI_SET_REF_SUITE);
ZM_ARRAY_CASE(TabStopsRef, ZM_KRX_ARRAY_TAB_STOPS_REF_SUITE);
ZM_ARRAY_CASE(LeadingType, ZM_KRX_ARRAY_LEADING_TYPE_SUITE);
ZM_ARRAY_CASE(FontRef, ZM_KRX_ARRAY_FONT_REF_SUITE);
ZM_ARRAY_CASE(GlyphID, ZM_KRX_ARRAY_GLYPH_ID_SUITE);
ZM_ARRAY_CASE(RealPoint, ZM_KRX_ARRAY_REAL_POINT_SUITE);
ZM_ARRAY_CASE(RealMatrix, ZM_KRX_ARRAY_REAL_MATRIX_SUITE);
ZM_ARRAY_CASE(ParagraphDirection, ZM_KRX_ARRAY_PARAGRAPH_DIRECTION_SUITE);
ZM_ARRAY_CASE(JustificationMethod, ZM_KRX_ARRAY_JUSTIFICATION_METHOD_SUITE);
ZM_ARRAY_CASE(KashidaWidth, ZM_KRX_ARRAY_KASHIDA_WIDTH_SUITE);
ZM_ARRAY_CASE(Kashidas, ZM_KRX_ARRAY_KASHIDAS_SUITE);
ZM_ARRAY_CASE(DirOverride, ZM_KRX_ARRAY_DIR_OVERRIDE_SUITE);
ZM_ARRAY_CASE(DigitSet, ZM_KRX_ARRAY_DIGIT_SET_SUITE);
ZM_ARRAY_CASE(DiacVPos, ZM_KRX_ARRAY_DIAC_V_POS_SUITE);

#undef ZM_ARRAY_CASE

using AllArraySuites = ::testing::Types<
    ApplicationPaintRefArray, RealArray, BoolArray, IntegerArray, LineCapTypeArray,
    FigureStyleArray, LineJoinTypeArray, WariChuJustificationArray, StyleRunAlignmentArray,
    AutoKernTypeArray, BaselineDirectionArray, LanguageArray, FontCapsOptionArray,
    FontBaselineOptionArray, FontOpenTypePositionOptionArray, UnderlinePositionArray,
    StrikethroughPositionArray, ParagraphJustificationArray, ArrayRealArray, BurasagariTypeArray,
    PreferredKinsokuOrderArray, KinsokuRefArray, MojiKumiRefArray, MojiKumiSetRefArray,
    TabStopsRefArray, LeadingTypeArray, FontRefArray, GlyphIDArray, RealPointArray, RealMatrixArray,
    ParagraphDirectionArray, JustificationMethodArray, KashidaWidthArray, KashidasArray,
    DirOverrideArray, DigitSetArray, DiacVPosArray>;

struct ArraySuiteLabel {
    template <typename Case>
    static std::string GetName(int) {
        return Case::kLabel;
    }
};

template <typename Case>
class KRXArraySuiteTableTest : public zm::test::SuiteFixture {
protected:
    using Table = typename Case::Table;
    using Signature = decltype(SignatureOf(std::declval<Table>().GetFirst));
    using Ref = typename Signature::RefType;
    using Item = typename Signature::ItemType;

    void SetUp() override { Acquire(Case::kName, Case::kVersion, table); }

    // Two different items. A reference is a new object of the item's kind, made in the store as
    // the suite that hands out such objects would make it; the test gives it back.
    Item Sample(int which) {
        if constexpr (CountedRef<Item>) {
            return AddCounted<Item>(runtime, typename ObjectOfRef<Item>::type{});
        } else if constexpr (std::is_same_v<Item, ZMRealPoint>) {
            return ZMRealPoint{1.0 * which, 2.0 * which};
        } else if constexpr (std::is_same_v<Item, KRXRealMatrix>) {
            return KRXRealMatrix{1, 0, 0, 1, 1.0 * which, 2.0 * which};
        } else {
            return static_cast<Item>(which);
        }
    }

    static bool Same(const Item& first, const Item& second) {
        return std::memcmp(&first, &second, sizeof(Item)) == 0;
    }

    const Table* table = nullptr;
};

TYPED_TEST_SUITE(KRXArraySuiteTableTest, AllArraySuites, ArraySuiteLabel);

TYPED_TEST(KRXArraySuiteTableTest, HoldsWhatIsAppendedAndGivesItBack) {
    using Item = typename TestFixture::Item;
    const auto* table = this->table;
    typename TestFixture::Ref array = nullptr;
    ASSERT_EQ(table->Create(&array), ZM_ERR_NONE);
    Item first = this->Sample(0);
    Item second = this->Sample(1);
    ASSERT_FALSE(TestFixture::Same(first, second));
    EXPECT_EQ(table->Append(array, first), ZM_ERR_NONE);
    EXPECT_EQ(table->Append(array, second), ZM_ERR_NONE);

    int32_t size = -1;
    EXPECT_EQ(table->GetSize(array, &size), ZM_ERR_NONE);
    EXPECT_EQ(size, 2);
    Item item{};
    EXPECT_EQ(table->Item(array, 0, &item), ZM_ERR_NONE);
    EXPECT_TRUE(TestFixture::Same(item, first));
    EXPECT_EQ(table->Item(array, 1, &item), ZM_ERR_NONE);
    EXPECT_TRUE(TestFixture::Same(item, second));
    EXPECT_EQ(table->GetFirst(array, &item), ZM_ERR_NONE);
    EXPECT_TRUE(TestFixture::Same(item, first));
    EXPECT_EQ(table->GetLast(array, &item), ZM_ERR_NONE);
    EXPECT_TRUE(TestFixture::Same(item, second));
    EXPECT_EQ(table->Item(array, 2, &item), ZM_ERR_BAD_ARGUMENT);

    if constexpr (CountedRef<Item>) {
        // The test lets go of its own references; the array's keep the items alive.
        using Object = typename ObjectOfRef<Item>::type;
        this->runtime.objects.template Release<Object>(first);
        this->runtime.objects.template Release<Object>(second);
        EXPECT_EQ(this->runtime.objects.References(first), 1);
        EXPECT_EQ(this->runtime.objects.References(second), 1);
    }
    EXPECT_EQ(table->AddRef(array), ZM_ERR_NONE);
    EXPECT_EQ(table->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(table->Release(array), ZM_ERR_NONE);
    EXPECT_EQ(this->runtime.objects.Size(), 0u);  // the array, and what it held
    EXPECT_EQ(table->GetSize(array, &size), ZM_ERR_BAD_ARGUMENT);
}

}  // namespace
}  // namespace zm::host
