#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace zm::host::svg {

enum class TextAnchor { Start, Middle, End };

// Where the characters of one <text> land, estimated without fonts: each character is half
// its font size wide and one font size high above the baseline. Elements hand in their x, y,
// dx and dy lists, whose values go to the characters they hold in order (an inner element's
// value wins over an outer one's). An absolute x or y starts a new text chunk, which its first
// character's text-anchor shifts as a whole. User units, y growing downwards.
class TextLayout {
public:
    struct Positions {
        std::vector<double> x, y, dx, dy;
    };
    struct Box {
        double left = 0, top = 0, right = 0, bottom = 0;  // top < bottom
    };

    // The text starts at (x, y) with no character placed yet.
    TextLayout(double x, double y) : penX_(x), penY_(y) {}

    // An element (the <text> first, then each <tspan> inside) opens and closes around the
    // characters it holds.
    void Open(Positions positions);
    void Close();
    void AddCharacters(std::size_t count, double fontSize, TextAnchor anchor);
    // Takes back the last character (a trailing blank that is not drawn).
    void DropLastCharacter();

    // The union of the characters' boxes, anchors applied; none without characters.
    std::optional<Box> Bounds() const;

private:
    struct Level {
        Positions positions;
        std::size_t used = 0;  // characters of the element placed so far
    };
    struct Glyph {
        double x, y, advance, fontSize;
        std::size_t chunk;
    };
    struct Chunk {
        TextAnchor anchor;
    };
    // The value the innermost element with one left gives the next character.
    std::optional<double> Take(std::vector<double> Positions::*list) const;

    std::vector<Level> levels_;
    std::vector<Glyph> glyphs_;
    std::vector<Chunk> chunks_;
    double penX_, penY_;
};

}  // namespace zm::host::svg
