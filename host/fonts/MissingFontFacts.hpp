#pragma once

#include "fonts/FontFacts.hpp"
#include "fonts/FontRequest.hpp"

namespace zm::host::fonts {

// The facts of a font no installed program serves, made from the request alone: the
// PostScript name is the family without blanks, then "-" and the style unless it is regular
// ("QwertyuiopSans-Bold"); the full name is the family, a blank and the style in words
// ("Qwertyuiop Sans Bold"), made up here and so no alternate name; the Windows name is the
// family as written. Script unknown (-1).
FontFacts MissingFontFacts(const FontRequest& request);

}  // namespace zm::host::fonts
