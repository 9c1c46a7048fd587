#pragma once

#include <cstdint>

namespace zm::host::fonts {

// The script of a font from the first code-page range of its OS/2 table: a CJK code page
// wins over the others, since every CJK font covers Latin text as well; then Latin 1,
// Latin 2, Cyrillic and Symbol, in that order. -1 when none of these is declared.
int32_t ScriptFromCodePages(uint32_t codePageRange1);

}  // namespace zm::host::fonts
