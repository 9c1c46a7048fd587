#pragma once

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Counts a plug-in group under the kind of art its plug-in makes (blends, compound shapes,
// live paint groups, envelopes, flares, image tracing).
ZMErr ClassifyPluginGroup(ZMArtHandle art);

// isSet becomes 1, and the symbol set counter goes up, when the art sits two levels below a
// group of the symbolism plug-in (a symbol set's instance).
ZMErr IsSymbolSetGroup(ZMArtHandle art, int32_t& isSet);

}  // namespace tolvane
