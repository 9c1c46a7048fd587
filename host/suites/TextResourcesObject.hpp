#pragma once

#include "runtime/Runtime.hpp"

#include <zelmora/ZMDocumentSuite.h>

namespace zm::host {

// What a ZMTextResourcesRef names: the text engine's settings of a document as they were
// when the reference was handed out. Counted in Runtime::objects.
struct TextResourcesObject {
    bool highlightSubstitutedFonts = false;
    bool highlightSubstitutedGlyphs = false;
};

inline TextResourcesObject& RequireTextResources(Runtime& runtime, ZMTextResourcesRef handle) {
    return runtime.objects.Require<TextResourcesObject>(handle);
}

}  // namespace zm::host
