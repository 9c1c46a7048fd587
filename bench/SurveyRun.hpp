#pragma once

#include "PluginSuites.hpp"

#include <importers/svg/SvgImporter.hpp>

#include <shell/Globals.hpp>
#include <survey/ArtWalk.hpp>
#include <survey/SurveyRecord.hpp>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace zm::bench {

// Times one survey of the drawing per iteration, in the panel category mode (and while
// saving when saving is 1), from a fresh record each time, as a refresh does.
inline void RunSurveys(benchmark::State& state, const std::string& svg, int16_t mode,
                       int32_t saving) {
    PluginSuites suites;
    suites.Runtime().documents.Add(zm::host::ImportSvgText(svg, {}));
    tolvane::Globals globals{};
    tolvane::InitializeGlobals(globals);
    globals.mode = mode;
    globals.saving = saving;
    globals.selectionOnly = 0;  // on at first, and nothing is selected: it would match nothing
    tolvane::gGlobals = &globals;
    tolvane::MakeSurvey();
    for (auto _ : state) {
        tolvane::ResetSurvey(true);
        tolvane::RunSurvey();
        benchmark::DoNotOptimize(tolvane::gSurvey->record);
    }
    state.SetComplexityN(state.range(0));
    tolvane::FreeSurvey();
    tolvane::gGlobals = nullptr;
}

}  // namespace zm::bench
