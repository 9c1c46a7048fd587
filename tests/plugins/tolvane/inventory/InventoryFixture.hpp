#pragma once

#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <document/ArtLookup.hpp>
#include <importers/DocumentImport.hpp>

#include <panel/PanelCategories.hpp>
#include <report/HostString.hpp>
#include <shell/Globals.hpp>
#include <shell/SuiteSet.hpp>
#include <survey/SurveyRecord.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace zm::test {

// The inventories over a real host: a survey record made as the panel makes it, a globals
// block showing one category (Objects unless a test chooses), and a document opened from
// tests/fixtures/svg/inventory by the host's importer. Art is found by its SVG id.
class InventoryFixture : public PluginUnitFixture {
protected:
    void SetUp() override {
        PluginUnitFixture::SetUp();
        tolvane::InitializeGlobals(globals);
        globals.mode = tolvane::kModeObjects;
        tolvane::gGlobals = &globals;
        ASSERT_EQ(tolvane::MakeSurvey(), ZM_ERR_NONE);
    }

    void TearDown() override {
        tolvane::FreeSurvey();
        tolvane::gGlobals = nullptr;
        EXPECT_EQ(runtime.blocks.LiveBlocks(), 0u) << "a list node was not given back";
        PluginUnitFixture::TearDown();
    }

    void Import(const std::string& fixture) {
        document = &Open(
            host::ImportDocument(std::string(ZELMORA_TEST_FIXTURES) + "/svg/inventory/" + fixture));
    }

    ZMArtHandle Art(const std::string& id) {
        host::document::Art* art = host::document::FindArtById(*document, id);
        if (art == nullptr) {
            throw std::runtime_error("no art with id " + id);
        }
        return reinterpret_cast<ZMArtHandle>(art);
    }

    ZMPathStyle PaintOf(const std::string& id) {
        ZMPathStyle style{};
        EXPECT_EQ(tolvane::sPathStyleSuite->GetPathStyle(Art(id), &style), ZM_ERR_NONE);
        return style;
    }
    ZMColor FillOf(const std::string& id) { return PaintOf(id).fill.color; }
    ZMColor StrokeOf(const std::string& id) { return PaintOf(id).stroke.color; }

    // The texts of a list, front to back.
    static std::vector<std::string> Entries(const tolvane::SurveyStringList& list) {
        std::vector<std::string> texts;
        for (const tolvane::SurveyStringNode* node = list.first; node != nullptr;
             node = node->next) {
            texts.push_back(Text(node->text));
        }
        return texts;
    }

    // "text:count" per node, front to back.
    static std::vector<std::string> CountedEntries(const tolvane::SurveyStringList& list) {
        std::vector<std::string> entries;
        for (const tolvane::SurveyStringNode* node = list.first; node != nullptr;
             node = node->next) {
            entries.push_back(Text(node->text) + ":" + std::to_string(node->count));
        }
        return entries;
    }

    tolvane::SurveyRecord& Record() { return tolvane::gSurvey->record; }
    tolvane::SurveyLists& Lists() { return tolvane::gSurvey->lists; }

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

    tolvane::Globals globals{};
    host::document::Document* document = nullptr;
};

}  // namespace zm::test
