#pragma once

#include "fonts/FontCatalogue.hpp"
#include "suites/EngineText.hpp"
#include "suites/TextEngineObjects.hpp"

#include <vector>

namespace zm::host {

// The glyphs of the text, one per character in text order, each from its run's font program
// (see GlyphObject).
std::vector<GlyphObject> TextGlyphs(fonts::FontCatalogue& catalogue, const EngineText& text);

// One glyph run per run of the text that holds characters.
std::vector<GlyphRunObject> TextGlyphRuns(fonts::FontCatalogue& catalogue,
                                          const EngineText& text);

}  // namespace zm::host
