#pragma once

#include "plugins/tolvane/PluginUnitFixture.hpp"

#include <document/ArtLookup.hpp>
#include <importers/DocumentImport.hpp>
#include <shell/Globals.hpp>
#include <survey/SurveyRecord.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace zm::test {

// The plug-in's survey record made as the panel makes it, a globals block of the test's own,
// and documents opened from tests/fixtures/svg by the host's importer, their art found by
// SVG id.
class SurveyFixture : public PluginUnitFixture {
protected:
    void SetUp() override {
        PluginUnitFixture::SetUp();
        tolvane::InitializeGlobals(globals);
        tolvane::gGlobals = &globals;
        ASSERT_EQ(tolvane::MakeSurvey(), ZM_ERR_NONE);
    }

    void TearDown() override {
        tolvane::FreeSurvey();
        tolvane::gGlobals = nullptr;
        ExpectNothingLeft();
        PluginUnitFixture::TearDown();
    }

    // What a test fixture checks once the survey is given back, while the suites are held.
    virtual void ExpectNothingLeft() {}

    // A document of tests/fixtures/svg/<folder>/<name>, made the current one.
    host::document::Document& OpenFixture(const std::string& folder, const std::string& name) {
        return Open(host::ImportDocument(std::filesystem::path(ZELMORA_TEST_FIXTURES) / "svg" /
                                         folder / name));
    }

    host::document::Art& ArtWithId(const std::string& id) {
        host::document::Art* art = host::document::FindArtById(*runtime.documents.Current(), id);
        if (art == nullptr) {
            throw std::runtime_error("no art with id " + id);
        }
        return *art;
    }

    // The plug-in names art by the model object's address.
    ZMArtHandle Handle(const std::string& id) {
        return reinterpret_cast<ZMArtHandle>(&ArtWithId(id));
    }

    tolvane::SurveyRecord& Record() { return tolvane::gSurvey->record; }
    tolvane::SurveyLists& Lists() { return tolvane::gSurvey->lists; }

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

    tolvane::Globals globals{};
};

}  // namespace zm::test
