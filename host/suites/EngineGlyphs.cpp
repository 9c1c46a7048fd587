#include "suites/EngineGlyphs.hpp"

#include "suites/EngineTextSlices.hpp"
#include "suites/FontKeys.hpp"

#include <unicode/utf8.h>

#include <limits>

namespace zm::host {

namespace {

// A glyph id beyond what the engine's 16-bit ids hold, or a malformed character, shows the
// missing glyph.
KRXGlyphID GlyphOf(const fonts::CatalogueFont& font, UChar32 point) {
    if (font.program == nullptr || point < 0) {
        return 0;
    }
    const uint32_t glyph = font.program->GlyphIndex(static_cast<uint32_t>(point));
    return glyph > std::numeric_limits<KRXGlyphID>::max() ? 0 : static_cast<KRXGlyphID>(glyph);
}

std::vector<KRXGlyphID> RunGlyphs(const fonts::CatalogueFont& font, const std::string& text) {
    std::vector<KRXGlyphID> glyphs;
    const auto length = static_cast<int32_t>(text.size());
    for (int32_t offset = 0; offset < length;) {
        UChar32 point = 0;
        U8_NEXT(text.data(), offset, length, point);
        glyphs.push_back(GlyphOf(font, point));
    }
    return glyphs;
}

const fonts::CatalogueFont& RunFont(fonts::FontCatalogue& catalogue, const EngineRun& run) {
    return FindCatalogueFont(catalogue, run.fontFamily, run.weight, run.fontStyle);
}

}  // namespace

std::vector<GlyphObject> TextGlyphs(fonts::FontCatalogue& catalogue, const EngineText& text) {
    std::vector<GlyphObject> glyphs;
    for (const EngineRun& run : text.runs) {
        const fonts::CatalogueFont& font = RunFont(catalogue, run);
        for (KRXGlyphID glyph : RunGlyphs(font, run.text)) {
            glyphs.push_back(GlyphObject{&font, glyph});
        }
    }
    return glyphs;
}

std::vector<GlyphRunObject> TextGlyphRuns(fonts::FontCatalogue& catalogue,
                                          const EngineText& text) {
    std::vector<GlyphRunObject> runs;
    for (const auto& piece : RunPieces(text)) {
        const EngineRun& run = piece->runs.front();
        const fonts::CatalogueFont& font = RunFont(catalogue, run);
        runs.push_back(GlyphRunObject{&font, run.fontSize, RunGlyphs(font, run.text), piece});
    }
    return runs;
}

}  // namespace zm::host
