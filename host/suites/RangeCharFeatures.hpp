#pragma once

#include "fonts/FontCatalogue.hpp"
#include "suites/EngineText.hpp"

#include <zelmora/ZMArtTypes.h>

#include <vector>

namespace zm::host {

// What the characters of a text have: each distinct value once, in the order of first use. A
// run without characters adds nothing, nor does a run that is not filled (or not stroked) to
// the paints. Fonts are distinct by catalogue font, sizes by value, paints by colour.
std::vector<const fonts::CatalogueFont*> InspectFonts(fonts::FontCatalogue& catalogue,
                                                      const EngineText& text);
std::vector<double> InspectFontSizes(const EngineText& text);
std::vector<ZMFillStyle> InspectFills(const EngineText& text);
std::vector<ZMFillStyle> InspectStrokes(const EngineText& text);

}  // namespace zm::host
