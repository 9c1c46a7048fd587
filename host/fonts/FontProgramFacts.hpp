#pragma once

#include "fonts/FontFacts.hpp"
#include "fonts/FontProgram.hpp"

namespace zm::host::fonts {

// What an installed font program says of itself: its names, outline technology, format
// flags and script. Composite fonts and proportional Japanese metrics are never reported.
FontFacts ReadFontFacts(const FontProgram& program);

}  // namespace zm::host::fonts
