#pragma once

#include "host/importers/svg/ImportedDocumentFixture.hpp"

#include <zelmora/KRXArraySuites.h>
#include <zelmora/KRXCharSuites.h>
#include <zelmora/KRXFontSuite.h>
#include <zelmora/KRXPaintSuites.h>
#include <zelmora/KRXTextFrameSuites.h>
#include <zelmora/KRXTextRangeSuites.h>
#include <zelmora/ZMFontSuite.h>
#include <zelmora/ZMTextFrameSuite.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zm::test {

// An SVG document of tests/fixtures/svg/text opened in a fresh host, read through the text
// engine's suites as a plug-in reads it. Every suite of the engine is taken for every test.
// After the test the host may hold no object of any kind: every reference a test takes, it
// gives back, and every array gave back what it held.
class TextEngineFixture : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_TEXT_FRAME_SUITE_NAME, ZM_TEXT_FRAME_SUITE_VERSION, textFrames);
        Acquire(ZM_KRX_TEXT_FRAME_SUITE_NAME, ZM_KRX_TEXT_FRAME_SUITE_VERSION, frames);
        Acquire(ZM_KRX_TEXT_RANGE_SUITE_NAME, ZM_KRX_TEXT_RANGE_SUITE_VERSION, ranges);
        Acquire(ZM_KRX_CHAR_INSPECTOR_SUITE_NAME, ZM_KRX_CHAR_INSPECTOR_SUITE_VERSION, inspectors);
        Acquire(ZM_KRX_FONT_SUITE_NAME, ZM_KRX_FONT_SUITE_VERSION, krxFonts);
        Acquire(ZM_FONT_SUITE_NAME, ZM_FONT_SUITE_VERSION, fonts);
        Acquire(ZM_ZMKRX_PAINT_SUITE_NAME, ZM_ZMKRX_PAINT_SUITE_VERSION, paintConversion);
        Acquire(ZM_KRX_APPLICATION_PAINT_SUITE_NAME, ZM_KRX_APPLICATION_PAINT_SUITE_VERSION,
                paints);
        Acquire(ZM_KRX_ARRAY_FONT_REF_SUITE_NAME, ZM_KRX_ARRAY_FONT_REF_SUITE_VERSION, fontArrays);
        Acquire(ZM_KRX_ARRAY_REAL_SUITE_NAME, ZM_KRX_ARRAY_REAL_SUITE_VERSION, realArrays);
        Acquire(ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_NAME,
                ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE_VERSION, paintArrays);
    }

    void TearDown() override {
        EXPECT_EQ(runtime.objects.Size(), 0u) << "a reference was not given back";
        ImportedDocumentFixture::TearDown();
    }

    // Opens a file of tests/fixtures/svg/text.
    void OpenText(const std::string& fixture) { Import("text/" + fixture); }

    // The text frame art of the document's layers with that id.
    ZMArtHandle Frame(const char* id) { return ArtNamed(id); }

    // A new range over all the text of the frame with that id; the test releases it.
    KRXTextRangeRef RangeOf(const char* id) {
        KRXTextRangeRef range = nullptr;
        EXPECT_EQ(textFrames->GetKRXTextRange(Frame(id), &range), ZM_ERR_NONE) << id;
        return range;
    }

    // The frame's text as GetContents gives it into a roomy buffer.
    std::string ContentsOf(const char* id) {
        KRXTextRangeRef range = RangeOf(id);
        char buffer[256] = {};
        EXPECT_EQ(ranges->GetContents(range, buffer, sizeof buffer), ZM_ERR_NONE);
        EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
        return buffer;
    }

    // A new inspector over all the text of the frame with that id; the test releases it.
    KRXCharInspectorRef InspectorOf(const char* id) {
        KRXTextRangeRef range = RangeOf(id);
        KRXCharInspectorRef inspector = nullptr;
        EXPECT_EQ(ranges->GetCharInspector(range, &inspector), ZM_ERR_NONE);
        EXPECT_EQ(ranges->Release(range), ZM_ERR_NONE);
        return inspector;
    }

    // The catalogue's keys of the inspector's fonts, in array order; the array is released.
    std::vector<ZMFontKey> FontKeys(KRXCharInspectorRef inspector) {
        KRXArrayFontRefRef array = nullptr;
        EXPECT_EQ(inspectors->GetFont(inspector, &array), ZM_ERR_NONE);
        std::vector<ZMFontKey> keys;
        for (int32_t index = 0; index < Size(fontArrays, array); ++index) {
            KRXFontRef font = nullptr;
            EXPECT_EQ(fontArrays->Item(array, index, &font), ZM_ERR_NONE);
            ZMFontKey key = nullptr;
            EXPECT_EQ(fonts->FontKeyFromKRXFont(font, &key), ZM_ERR_NONE);
            keys.push_back(key);
        }
        EXPECT_EQ(fontArrays->Release(array), ZM_ERR_NONE);
        return keys;
    }

    // The frame's fonts; the inspector is released.
    std::vector<ZMFontKey> FontKeysOf(const char* id) {
        KRXCharInspectorRef inspector = InspectorOf(id);
        std::vector<ZMFontKey> keys = FontKeys(inspector);
        EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
        return keys;
    }

    // The catalogue's key for a request, as a plug-in finds it.
    ZMFontKey Key(const char* family, int32_t weight = 400, const char* style = "normal") {
        ZMFontKey key = nullptr;
        EXPECT_EQ(fonts->FindFontKey(family, weight, style, &key), ZM_ERR_NONE) << family;
        return key;
    }

    std::vector<double> FontSizesOf(const char* id) {
        KRXCharInspectorRef inspector = InspectorOf(id);
        KRXArrayRealRef array = nullptr;
        EXPECT_EQ(inspectors->GetFontSize(inspector, &array), ZM_ERR_NONE);
        std::vector<double> sizes;
        for (int32_t index = 0; index < Size(realArrays, array); ++index) {
            double size = -1;
            EXPECT_EQ(realArrays->Item(array, index, &size), ZM_ERR_NONE);
            sizes.push_back(size);
        }
        EXPECT_EQ(realArrays->Release(array), ZM_ERR_NONE);
        EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
        return sizes;
    }

    using PaintEntry = ZMErr(ZM_API*)(KRXCharInspectorRef, KRXArrayApplicationPaintRefRef*);

    // The fill styles of the paints an inspector entry gives, in array order.
    std::vector<ZMFillStyle> PaintsOf(const char* id, PaintEntry entry) {
        KRXCharInspectorRef inspector = InspectorOf(id);
        KRXArrayApplicationPaintRefRef array = nullptr;
        EXPECT_EQ(entry(inspector, &array), ZM_ERR_NONE);
        std::vector<ZMFillStyle> styles;
        for (int32_t index = 0; index < Size(paintArrays, array); ++index) {
            KRXApplicationPaintRef paint = nullptr;
            EXPECT_EQ(paintArrays->Item(array, index, &paint), ZM_ERR_NONE);
            ZMFillStyle style{};
            EXPECT_EQ(paintConversion->GetZMFillStyle(paint, &style), ZM_ERR_NONE);
            styles.push_back(style);
        }
        EXPECT_EQ(paintArrays->Release(array), ZM_ERR_NONE);
        EXPECT_EQ(inspectors->Release(inspector), ZM_ERR_NONE);
        return styles;
    }

    std::vector<ZMFillStyle> FillsOf(const char* id) {
        return PaintsOf(id, inspectors->GetFillColor);
    }
    std::vector<ZMFillStyle> StrokesOf(const char* id) {
        return PaintsOf(id, inspectors->GetStrokeColor);
    }

    template <typename Suite, typename Array>
    static int32_t Size(const Suite* suite, Array array) {
        int32_t size = -1;
        EXPECT_EQ(suite->GetSize(array, &size), ZM_ERR_NONE);
        return size;
    }

    const ZMTextFrameSuite* textFrames = nullptr;
    const KRXTextFrameSuite* frames = nullptr;
    const KRXTextRangeSuite* ranges = nullptr;
    const KRXCharInspectorSuite* inspectors = nullptr;
    const KRXFontSuite* krxFonts = nullptr;
    const ZMFontSuite* fonts = nullptr;
    const ZMKRXPaintSuite* paintConversion = nullptr;
    const KRXApplicationPaintSuite* paints = nullptr;
    const KRXArrayFontRefSuite* fontArrays = nullptr;
    const KRXArrayRealSuite* realArrays = nullptr;
    const KRXArrayApplicationPaintRefSuite* paintArrays = nullptr;
};

// An RGB colour record, components 0..1.
inline ZMColor Rgb(double red, double green, double blue) {
    ZMColor color{};
    color.kind = ZM_COLOR_THREE;
    color.c.three = {red, green, blue};
    return color;
}

inline void ExpectRgb(const ZMFillStyle& style, double red, double green, double blue) {
    EXPECT_EQ(style.color.kind, ZM_COLOR_THREE);
    EXPECT_EQ(style.color.c.three.red, red);
    EXPECT_EQ(style.color.c.three.green, green);
    EXPECT_EQ(style.color.c.three.blue, blue);
    EXPECT_EQ(style.overprint, 0);  // the document's paint never overprints
}

}  // namespace zm::test
