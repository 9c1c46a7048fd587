#pragma once

#include "plugins/tolvane/SurveyFixture.hpp"

#include <panel/PanelCategories.hpp>
#include <report/HostString.hpp>
#include <shell/SuiteSet.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {

// The inventories over a real host, showing one category (Objects unless a test chooses),
// on documents of tests/fixtures/svg/inventory.
class InventoryFixture : public SurveyFixture {
protected:
    void SetUp() override {
        SurveyFixture::SetUp();
        globals.mode = tolvane::kModeObjects;
    }

    void ExpectNothingLeft() override {
        EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u) << "a list node was not given back";
    }

    void Import(const std::string& fixture) { document = &OpenFixture("inventory", fixture); }

    ZMArtHandle Art(const std::string& id) { return Handle(id); }

    ZMPathStyle PaintOf(const std::string& id) {
        ZMPathStyle style{};
        EXPECT_EQ(tolvane::sPathStyleSuite->GetPathStyle(Art(id), &style), ZM_ERR_NONE);
        return style;
    }
    ZMColor FillOf(const std::string& id) { return PaintOf(id).fill.color; }
    ZMColor StrokeOf(const std::string& id) { return PaintOf(id).stroke.color; }

    // The six colour-model counters in the order RGB, CMYK, grayscale, spot, pattern,
    // gradient.
    std::vector<int32_t> ModelCounters() {
        const tolvane::SurveyRecord& record = Record();
        return {record.rgbObjectCount,  record.cmykObjectCount,    record.grayObjectCount,
                record.spotObjectCount, record.patternObjectCount, record.gradientObjectCount};
    }

    // The alert the out-of-memory path shows for a place, as the alert routine lays it out:
    // the title and sentence, then the detail line with the id ("%l" prints nothing, so a
    // negative id leaves "ID = " and two blanks) or the place alone, then two empty parts.
    static std::string OutOfMemoryAlert(const std::string& detail) {
        return "Document Info Error:\r\rThe filter cannot complete because there isn^}t "
               "enough memory (RAM) available:\r\r\n\r" +
               detail + "\n\r\n\r";
    }

    std::vector<std::string> AlertTexts() const {
        std::vector<std::string> texts;
        for (const host::Alert& alert : runtime.alerts) {
            texts.push_back(alert.text);
        }
        return texts;
    }

    host::document::Document* document = nullptr;
};

}  // namespace zm::test
