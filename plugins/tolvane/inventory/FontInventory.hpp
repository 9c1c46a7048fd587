#pragma once

#include <zelmora/ZMFontSuite.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// Lists a font met in the surveyed art as its name and type ("LiberationSans (TrueType)"):
// the first time that text is met the font is counted and its details block is written. 0,
// the host's code of a failing font query, or ZM_ERR_NO_MEMORY when the list cannot take
// the entry (after the alert).
ZMErr AddFont(ZMFontKey key);

// Appends the font's details block to the font-details list, one entry per line. Failing
// font queries leave their text empty; a line the list cannot take is alerted and skipped.
void AddFontDetails(ZMFontKey key);

// Font types: the indexes of their texts in the ResFontType and ResFontTypeDetail groups.
inline constexpr int16_t kFontTypeType1 = 1;
inline constexpr int16_t kFontTypeCidType1 = 2;
inline constexpr int16_t kFontTypeTrueType = 3;
inline constexpr int16_t kFontTypeComposite = 4;  // "NWD"
inline constexpr int16_t kFontTypeMultipleMaster = 5;
inline constexpr int16_t kFontTypeBitmap = 6;
inline constexpr int16_t kFontTypeOpenType = 7;
inline constexpr int16_t kFontTypeUnknown = 8;
inline constexpr int16_t kFontTypeNotInstalled = 9;

// The font's type by what its info record says, the first fitting rule deciding: a font that
// is not installed is nothing else, OpenType wins over the outline technology, and a
// PostScript font that says nothing more is a multiple master when it has design axes.
int16_t FontTypeIndex(const ZMFontInfo& info);

}  // namespace tolvane
