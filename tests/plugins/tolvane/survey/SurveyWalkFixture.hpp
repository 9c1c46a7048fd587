#pragma once

#include "plugins/tolvane/SurveyFixture.hpp"
#include "support/RecordingReporter.hpp"

#include <survey/ArtWalk.hpp>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace zm::test {

// The plug-in's survey over a document of tests/fixtures/svg/walk, opened by the host's
// importer, with a globals block of the test's own and the host's progress recorded.
class SurveyWalkFixture : public SurveyFixture {
protected:
    void SetUp() override {
        SurveyFixture::SetUp();
        globals.selectionOnly = 0;
        runtime.progress.SetReporter(&progress);
    }

    void TearDown() override {
        runtime.progress.SetReporter(nullptr);
        SurveyFixture::TearDown();
    }

    void ExpectNothingLeft() override {
        EXPECT_EQ(runtime.memory.LiveHandles(), 0u);  // the match handles went back too
        EXPECT_TRUE(runtime.masks.All().empty());     // every mask reference was released
        EXPECT_EQ(runtime.objects.Size(), 0u);        // and every text-engine reference
    }

    host::document::Document& OpenWalkFixture(const std::string& name) {
        return OpenFixture("walk", name);
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

    RecordingReporter progress;
};

}  // namespace zm::test
