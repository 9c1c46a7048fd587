// The font categories survey only text frames and foreign objects, and every frame asks the
// text engine for its fonts and paints: the time must grow with the number of frames, not
// faster, however often the same few fonts come back.
#include "SurveyRun.hpp"

#include <benchmark/benchmark.h>

#include <string>

namespace {

// count point text frames of two runs each, in turn in Liberation Sans, DejaVu Sans and a
// family no font program has, the second run bold and CMYK; every tenth frame is a foreign
// object naming Liberation Sans instead.
std::string Drawing(int count) {
    static const char* const kFamilies[] = {"Liberation Sans", "DejaVu Sans", "Qwertyuiop Sans"};
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1000\" height=\"1000\">";
    for (int i = 0; i < count; ++i) {
        const std::string y = std::to_string(i % 1000);
        if (i % 10 == 9) {
            svg += "<foreignObject x=\"0\" y=\"" + y + "\" width=\"10\" height=\"10\">"
                   "<p xmlns=\"http://www.w3.org/1999/xhtml\" "
                   "style=\"font-family: 'Liberation Sans'\">n</p></foreignObject>";
            continue;
        }
        svg += "<text x=\"0\" y=\"" + y + "\" font-family=\"" + kFamilies[i % 3] +
               "\" fill=\"#f00\">a <tspan font-weight=\"bold\" "
               "fill=\"device-cmyk(0 1 1 0)\">b</tspan></text>";
    }
    svg += "</svg>";
    return svg;
}


void BM_SurveyOfTheFontsCategory(benchmark::State& state) {
    zm::bench::RunSurveys(state, Drawing(static_cast<int>(state.range(0))), 9, 0);
}
void BM_SurveyOfTheFontDetailsCategory(benchmark::State& state) {
    zm::bench::RunSurveys(state, Drawing(static_cast<int>(state.range(0))), 12, 0);
}

}  // namespace

BENCHMARK(BM_SurveyOfTheFontsCategory)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(BM_SurveyOfTheFontDetailsCategory)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
