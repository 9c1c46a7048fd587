#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <document/ArtLookup.hpp>
#include <filesystem>
#include <importers/DocumentImport.hpp>
#include <shell/Globals.hpp>
#include <stdexcept>
#include <string>
#include <survey/ArtWalk.hpp>
#include <survey/SurveyRecord.hpp>

#include "plugins/tolvane/PluginUnitFixture.hpp"
#include "support/RecordingReporter.hpp"

namespace zm::test {

// The plug-in's survey over a document of tests/fixtures/svg/walk, opened by the host's
// importer, with a globals block of the test's own and the host's progress recorded.
class SurveyWalkFixture : public PluginUnitFixture {
protected:
    void SetUp() override {
        PluginUnitFixture::SetUp();
        tolvane::InitializeGlobals(globals);
        globals.selectionOnly = 0;
        tolvane::gGlobals = &globals;
        ASSERT_EQ(tolvane::MakeSurvey(), ZM_ERR_NONE);
        runtime.progress.SetReporter(&progress);
    }

    void TearDown() override {
        runtime.progress.SetReporter(nullptr);
        tolvane::FreeSurvey();
        tolvane::gGlobals = nullptr;
        EXPECT_EQ(runtime.memory.LiveHandles(), 0u);  // the match handles went back too
        EXPECT_TRUE(runtime.masks.All().empty());     // every mask reference was released
        PluginUnitFixture::TearDown();
    }

    host::document::Document& OpenWalkFixture(const std::string& name) {
        return Open(host::ImportDocument(std::filesystem::path(ZELMORA_TEST_FIXTURES) / "svg" /
                                         "walk" / name));
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

    void Select(const std::string& id) { ArtWithId(id).SetSelected(true); }

    static bool AllZero(const tolvane::SurveyRecord& record) {
        tolvane::SurveyRecord zero{};
        return std::memcmp(&record, &zero, sizeof record) == 0;
    }

    // A fresh record, then one survey in that category.
    const tolvane::SurveyRecord& Survey(int16_t mode) {
        globals.mode = mode;
        tolvane::ResetSurvey(true);
        EXPECT_EQ(tolvane::RunSurvey(), ZM_ERR_NONE);
        return tolvane::gSurvey->record;
    }

    tolvane::Globals globals{};
    RecordingReporter progress;
};

}  // namespace zm::test
