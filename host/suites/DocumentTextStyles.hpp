#pragma once

#include "fonts/FontCatalogue.hpp"
#include "suites/TextEngineObjects.hpp"

namespace zm::host {

// The text styles every document of this host has: documents name no styles of their own,
// so each holds the engine's normal styles, whose features are the text defaults the
// importers apply.

// "Normal Paragraph Style": set left.
ParaStylesObject DocumentParaStyles();

// "Normal Character Style": the host's default family, regular, 12 pt, filled black.
CharStylesObject DocumentCharStyles(fonts::FontCatalogue& catalogue);

}  // namespace zm::host
