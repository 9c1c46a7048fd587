#include "suites/RangeCharFeatures.hpp"

#include "suites/ColorRecords.hpp"
#include "suites/FontKeys.hpp"

#include <algorithm>
#include <functional>
#include <optional>

namespace zm::host {

namespace {

// Adds value unless an equal one is there already.
template <typename Value, typename Same>
void AddDistinct(std::vector<Value>& values, const Value& value, Same same) {
    auto equal = [&](const Value& held) { return same(held, value); };
    if (std::none_of(values.begin(), values.end(), equal)) {
        values.push_back(value);
    }
}

std::vector<ZMFillStyle> InspectPaints(const EngineText& text,
                                       std::optional<ZMFillStyle> EngineRun::*paint) {
    std::vector<ZMFillStyle> paints;
    for (const EngineRun& run : text.runs) {
        if (!run.text.empty() && (run.*paint).has_value()) {
            AddDistinct(paints, *(run.*paint), [](const ZMFillStyle& a, const ZMFillStyle& b) {
                return SameColorRecord(a.color, b.color);
            });
        }
    }
    return paints;
}

}  // namespace

std::vector<const fonts::CatalogueFont*> InspectFonts(fonts::FontCatalogue& catalogue,
                                                      const EngineText& text) {
    std::vector<const fonts::CatalogueFont*> fonts;
    for (const EngineRun& run : text.runs) {
        if (!run.text.empty()) {
            const fonts::CatalogueFont* font =
                &FindCatalogueFont(catalogue, run.fontFamily, run.weight, run.fontStyle);
            AddDistinct(fonts, font, std::equal_to<>());
        }
    }
    return fonts;
}

std::vector<double> InspectFontSizes(const EngineText& text) {
    std::vector<double> sizes;
    for (const EngineRun& run : text.runs) {
        if (!run.text.empty()) {
            AddDistinct(sizes, run.fontSize, std::equal_to<>());
        }
    }
    return sizes;
}

std::vector<ZMFillStyle> InspectFills(const EngineText& text) {
    return InspectPaints(text, &EngineRun::fill);
}

std::vector<ZMFillStyle> InspectStrokes(const EngineText& text) {
    return InspectPaints(text, &EngineRun::stroke);
}

}  // namespace zm::host
