#include "importers/svg/SvgTextLayout.hpp"

#include "importers/svg/SvgLength.hpp"

#include <algorithm>
#include <utility>

namespace zm::host::svg {

void TextLayout::Open(Positions positions) { levels_.push_back({std::move(positions), 0}); }

void TextLayout::Close() {
    if (!levels_.empty()) {
        levels_.pop_back();
    }
}

std::optional<double> TextLayout::Take(std::vector<double> Positions::*list) const {
    for (auto level = levels_.rbegin(); level != levels_.rend(); ++level) {
        const std::vector<double>& values = level->positions.*list;
        if (level->used < values.size()) {
            return values[level->used];
        }
    }
    return std::nullopt;
}

void TextLayout::AddCharacters(std::size_t count, double fontSize, TextAnchor anchor) {
    for (std::size_t i = 0; i < count; ++i) {
        auto x = Take(&Positions::x);
        auto y = Take(&Positions::y);
        bool newChunk = chunks_.empty() || x || y;
        if (x) penX_ = *x;
        if (y) penY_ = *y;
        penX_ = ClampCoordinate(penX_ + Take(&Positions::dx).value_or(0));
        penY_ = ClampCoordinate(penY_ + Take(&Positions::dy).value_or(0));
        if (newChunk) {
            chunks_.push_back({anchor});
        }
        double advance = 0.5 * fontSize;
        glyphs_.push_back({penX_, penY_, advance, fontSize, chunks_.size() - 1});
        penX_ = ClampCoordinate(penX_ + advance);
        for (Level& level : levels_) {
            ++level.used;
        }
    }
}

void TextLayout::DropLastCharacter() {
    if (!glyphs_.empty()) {
        glyphs_.pop_back();
    }
}

std::optional<TextLayout::Box> TextLayout::Bounds() const {
    // Each chunk runs from its first character's left to its last one's right; an anchor
    // moves it back by all (end) or half (middle) of that width.
    std::vector<std::optional<double>> start(chunks_.size()), end(chunks_.size());
    for (const Glyph& glyph : glyphs_) {
        if (!start[glyph.chunk]) start[glyph.chunk] = glyph.x;
        end[glyph.chunk] = glyph.x + glyph.advance;
    }
    std::vector<double> shift(chunks_.size(), 0);
    for (std::size_t chunk = 0; chunk < chunks_.size(); ++chunk) {
        if (!start[chunk]) continue;
        double width = *end[chunk] - *start[chunk];
        if (chunks_[chunk].anchor == TextAnchor::Middle) shift[chunk] = -width / 2;
        if (chunks_[chunk].anchor == TextAnchor::End) shift[chunk] = -width;
    }
    std::optional<Box> box;
    for (const Glyph& glyph : glyphs_) {
        Box one{glyph.x + shift[glyph.chunk], glyph.y - glyph.fontSize,
                glyph.x + shift[glyph.chunk] + glyph.advance, glyph.y};
        if (!box) {
            box = one;
            continue;
        }
        box->left = std::min(box->left, one.left);
        box->top = std::min(box->top, one.top);
        box->right = std::max(box->right, one.right);
        box->bottom = std::max(box->bottom, one.bottom);
    }
    return box;
}

}  // namespace zm::host::svg
