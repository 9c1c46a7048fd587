#pragma once

#include "plugins/tolvane/SurveyFixture.hpp"
#include "plugins/tolvane/stats/StandInUsageSuite.hpp"

#include <shell/OptionalSuites.hpp>
#include <stats/DocumentContentStatistics.hpp>

#include <optional>
#include <string>
#include <vector>

namespace zm::test {

// The survey fixture with the optional live-shapes suite held and a recording usage-data
// suite in place of the host's.
class StatisticsFixture : public SurveyFixture {
protected:
    void SetUp() override {
        SurveyFixture::SetUp();
        tolvane::AcquireOptionalSuites(tolvane::sBasicSuite);
        // After the required suites, whose acquisition fills the pointer it stands in for.
        standIn.emplace();
    }

    void TearDown() override {
        standIn.reset();
        tolvane::ReleaseOptionalSuites(tolvane::sBasicSuite);
        SurveyFixture::TearDown();
    }

    // Runs the close-time statistics on the fixture tests/fixtures/svg/stats/<name>.
    const std::vector<LoggedGroup>& LogFixture(const std::string& name) {
        OpenFixture("stats", name);
        tolvane::LogDocumentContentStatistics();
        return standIn->Groups();
    }

    std::optional<StandInUsageSuite> standIn;
    const StandInUsageSuite& usage() const { return *standIn; }
};

}  // namespace zm::test
