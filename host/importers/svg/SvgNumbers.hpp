#pragma once

#include "importers/svg/SvgSyntax.hpp"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace zm::host::svg {

// Reads SVG numbers one after the other from a text ("10,20 .5.5-3e2"), as path data and
// number lists write them: separated by blanks and at most one comma, or by nothing where the
// next number's sign or point makes the border clear. Infinite or out-of-range values are not
// numbers: the scanner stops there as at any other bad character.
class NumberScanner {
public:
    explicit NumberScanner(std::string_view text) : text_(text) {}

    std::optional<double> Next();
    // A single flag digit ("0" or "1"), as arc commands write them, possibly unseparated.
    std::optional<bool> NextFlag();
    void SkipSeparators();
    bool AtEnd();
    // The character at the cursor after blanks, or 0 at the end.
    char Peek();
    void Advance() { ++position_; }
    std::size_t Position() const { return position_; }

private:
    std::string_view text_;
    std::size_t position_ = 0;
};

// The whole text (blanks around it allowed) as one finite number.
std::optional<double> ParseNumber(std::string_view text);

// A list of numbers separated by blanks and commas; stops at the first bad entry, keeping
// what came before it, as a browser does with a polyline's points.
std::vector<double> ParseNumberList(std::string_view text);

}  // namespace zm::host::svg
