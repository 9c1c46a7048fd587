// A survey visits every matched art object once and gives back what it took: its time must
// grow with the number of objects, not faster, in the category that does the most per object
// and while saving, which runs every collector.
#include "SurveyRun.hpp"

#include <benchmark/benchmark.h>

#include <string>

namespace {

// count rectangles in groups of ten, painted in turn with an RGB colour, a spot swatch and
// one of 100 gradients, every tenth in a named graphic style.
std::string Drawing(int count) {
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:zm=\"https://zelmora.example/ns/1.0\" "
        "width=\"1000\" height=\"1000\"><style>.styled { stroke: #000; }</style><defs>"
        "<zm:swatch id=\"spot\" name=\"Spot\" model=\"cmyk\" spot=\"true\" "
        "color=\"device-cmyk(0 1 1 0)\"/>";
    for (int g = 0; g < 100; ++g) {
        svg += "<linearGradient id=\"g" + std::to_string(g) + "\"><stop offset=\"0\" "
               "stop-color=\"#fff\"/><stop offset=\"1\" stop-color=\"url(#spot)\"/>"
               "</linearGradient>";
    }
    svg += "</defs>";
    for (int i = 0; i < count; ++i) {
        if (i % 10 == 0) {
            svg += i == 0 ? "<g>" : "</g><g>";
        }
        const char* fill = i % 3 == 0 ? "#f00" : i % 3 == 1 ? "url(#spot)" : nullptr;
        std::string paint = fill ? fill : "url(#g" + std::to_string(i % 100) + ")";
        svg += "<rect x=\"" + std::to_string(i % 1000) + "\" width=\"1\" height=\"1\" fill=\"" +
               paint + "\"" + (i % 10 == 0 ? " class=\"styled\"" : "") + "/>";
    }
    svg += "</g></svg>";
    return svg;
}


void BM_SurveyOfTheObjectsCategory(benchmark::State& state) {
    zm::bench::RunSurveys(state, Drawing(static_cast<int>(state.range(0))), 3, 0);
}
void BM_SurveyWhileSaving(benchmark::State& state) {
    zm::bench::RunSurveys(state, Drawing(static_cast<int>(state.range(0))), 2, 1);
}

}  // namespace

BENCHMARK(BM_SurveyOfTheObjectsCategory)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(BM_SurveyWhileSaving)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
