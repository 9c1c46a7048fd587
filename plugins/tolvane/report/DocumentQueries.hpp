#pragma once

#include "report/HostString.hpp"

#include <zelmora/ZMDocumentSuite.h>

#include <cstdint>

namespace tolvane {

// The Document section's calls into "ZM User Suite" (units), "Override ZM Color Conversion
// Suite" and "KRX DocumentTextResources Suite", in one place. Each throws zm::Error with the
// host's code; an entry the host's table leaves empty counts as a missing suite.

// The current ruler unit's name ("Points").
HostString RulerUnitsName();

// value (points) in the current ruler unit, with the host's default precision ("612 pt").
HostString FormatInRulerUnits(double value);

// The name of one of the document's colour profiles.
HostString ColorProfileName(ZMColorProfile profile);

struct HighlightFlags {
    uint8_t substitutedFonts = 0;
    uint8_t substitutedGlyphs = 0;
};

HighlightFlags GetHighlightFlags(ZMTextResourcesRef resources);

}  // namespace tolvane
