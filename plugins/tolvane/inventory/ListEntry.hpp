#pragma once

#include "survey/SurveyStringList.hpp"

#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// The ids the inventories show in the out-of-memory alert beside the place of failure.
inline constexpr int32_t kAlertIdNone = 0;
inline constexpr int32_t kAlertIdStyle = -1;     // graphic styles and brushes
inline constexpr int32_t kAlertIdGradient = -1;  // a gradient's spot stops
inline constexpr int32_t kAlertIdSwatch = -2;    // a swatch, on art or in a colour space
inline constexpr int32_t kAlertIdImage = -1;     // an image's block

// Inserts text into a sorted list: without allowRepeat a text already there has its count
// raised, with it a new node goes in front of the equal one. When the list cannot take it,
// shows the out-of-memory alert with alertCode and place ("AddPattern:LinkStrAdd") and gives
// ZM_ERR_NO_MEMORY; else 0.
ZMErr InsertOrAlert(SurveyStringList& list, ZMUnicodeString text, int32_t alertCode,
                    const char* place, bool allowRepeat = false);

}  // namespace tolvane
