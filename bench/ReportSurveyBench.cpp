// A whole report is a million characters through AppendReportLine, and a large document can
// offer a hundred thousand distinct names to one survey list; neither may grow quadratically.
#include "PluginSuites.hpp"

#include <report/HostString.hpp>
#include <report/ReportBuffer.hpp>
#include <survey/SurveyStringList.hpp>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

// 1,000,000 characters in lines of 78 and a line end: 12,500 lines of 80.
void BM_ReportOfAMillionCharacters(benchmark::State& state) {
    zm::bench::PluginSuites suites;
    const std::string text(78, 'x');
    for (auto _ : state) {
        tolvane::ReportText report;
        for (int line = 0; line < 12500; ++line) {
            tolvane::HostString next = tolvane::MakeUnicodeFromBytes(text.c_str(), ZM_ENCODING_UTF8);
            tolvane::AppendReportLine(report, next.Get(), 1);
        }
        benchmark::DoNotOptimize(report.saveText.Get());
    }
}
BENCHMARK(BM_ReportOfAMillionCharacters)->Unit(benchmark::kMillisecond);

// 100,000 distinct names, offered in an order that is not sorted.
void BM_SortedListOfAHundredThousandNames(benchmark::State& state) {
    zm::bench::PluginSuites suites;
    std::vector<tolvane::HostString> names;
    for (int i = 0; i < 100000; ++i) {
        std::string name = "Font " + std::to_string((i * 7919) % 100000);
        names.push_back(tolvane::MakeUnicodeFromBytes(name.c_str(), ZM_ENCODING_UTF8));
    }
    for (auto _ : state) {
        tolvane::SurveyStringList list{};
        for (const tolvane::HostString& name : names) {
            if (!tolvane::LinkStrFind(list, name.Get())) {
                tolvane::LinkStrAdd(list, name.Get(), false);
            }
        }
        state.PauseTiming();
        tolvane::FreeSurveyStringList(list);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SortedListOfAHundredThousandNames)->Unit(benchmark::kMillisecond);

}  // namespace
