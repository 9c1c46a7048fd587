#pragma once

#include <zelmora/ZMArtStyleSuite.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Blending other than normal, or any opacity but full, makes art transparent: a group
// (artType 1) counts with the transparent groups, all other art with the transparent
// objects. Both read the blending of the art's style; 0, or the host's code.

// A plain style's blending, through the blend style suite.
ZMErr CheckStyleTransparency(ZMArtStyleHandle style, int16_t artType);

// A parsed style's blending, from the "Mode" and "Opacity" entries of its blend dictionary.
ZMErr CheckParsedTransparency(ZMStyleParser parser, int16_t artType);

}  // namespace tolvane
