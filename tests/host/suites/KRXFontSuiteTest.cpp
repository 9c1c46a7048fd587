#include "host/suites/TextEngineFixture.hpp"

#include <suites/TextEngineObjects.hpp>

#include <gtest/gtest.h>

namespace zm::host {
namespace {

class KRXFontSuiteTest : public zm::test::TextEngineFixture {
protected:
    // A new text-engine font for a key; the test releases it.
    KRXFontRef FontOf(ZMFontKey key) {
        KRXFontRef font = nullptr;
        EXPECT_EQ(fonts->KRXFontFromFontKey(key, &font), ZM_ERR_NONE);
        return font;
    }

    uint8_t Equal(KRXFontRef font, KRXFontRef other) {
        uint8_t equal = 7;
        EXPECT_EQ(krxFonts->IsEqual(font, other, &equal), ZM_ERR_NONE);
        return equal;
    }
};

TEST_F(KRXFontSuiteTest, TwoFontsOfOneKeyAreEqual) {
    KRXFontRef first = FontOf(Key("Liberation Sans"));
    KRXFontRef second = FontOf(Key("Liberation Sans"));
    EXPECT_NE(first, second);  // two objects
    EXPECT_EQ(Equal(first, second), 1);
    EXPECT_EQ(Equal(first, first), 1);
    EXPECT_EQ(krxFonts->Release(first), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(second), ZM_ERR_NONE);
}

TEST_F(KRXFontSuiteTest, FontsOfTwoKeysAreNotEqual) {
    KRXFontRef regular = FontOf(Key("Liberation Sans"));
    KRXFontRef bold = FontOf(Key("Liberation Sans", 700));
    EXPECT_EQ(Equal(regular, bold), 0);
    EXPECT_EQ(krxFonts->Release(regular), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(bold), ZM_ERR_NONE);
}

TEST_F(KRXFontSuiteTest, AnInspectorsFontEqualsTheFontOfItsKey) {
    OpenText("missing-font.svg");  // "unnamed" is set in the default family, Liberation Sans
    KRXCharInspectorRef first = InspectorOf("unnamed");
    KRXArrayFontRefRef firstFonts = nullptr;
    ASSERT_EQ(inspectors->GetFont(first, &firstFonts), ZM_ERR_NONE);
    KRXFontRef font = nullptr;
    ASSERT_EQ(fontArrays->GetFirst(firstFonts, &font), ZM_ERR_NONE);
    KRXFontRef same = FontOf(Key("Liberation Sans"));
    EXPECT_EQ(Equal(font, same), 1);
    EXPECT_EQ(krxFonts->Release(same), ZM_ERR_NONE);
    EXPECT_EQ(fontArrays->Release(firstFonts), ZM_ERR_NONE);
    EXPECT_EQ(inspectors->Release(first), ZM_ERR_NONE);
}

TEST_F(KRXFontSuiteTest, ReleaseGivesBackOneReferenceAtATime) {
    KRXFontRef font = FontOf(Key("Liberation Sans"));
    EXPECT_EQ(krxFonts->AddRef(font), ZM_ERR_NONE);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 1u);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.Count<FontObject>(), 0u);

    uint8_t equal = 7;
    ZMFontKey key = nullptr;
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->AddRef(font), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->IsEqual(font, font, &equal), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(fonts->FontKeyFromKRXFont(font, &key), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(equal, 7);
    EXPECT_EQ(key, nullptr);
}

TEST_F(KRXFontSuiteTest, BadReferencesAndMissingOutputsAreBadArguments) {
    auto foreign = zm::test::ForeignHandle<KRXFontRef>();
    KRXFontRef font = FontOf(Key("Liberation Sans"));
    uint8_t equal = 7;
    EXPECT_EQ(krxFonts->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->Release(foreign), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->IsEqual(font, foreign, &equal), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->IsEqual(nullptr, font, &equal), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(krxFonts->IsEqual(font, font, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(equal, 7);
    EXPECT_EQ(krxFonts->Release(font), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
