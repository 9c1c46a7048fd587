#pragma once

#include <cstdint>

namespace tolvane {

// The flyout's item ids. Items 2 to 12 are the categories, and their ids are the values of
// Globals::mode.
inline constexpr int kItemSelectionOnly = 1;
inline constexpr int16_t kModeDocument = 2;
inline constexpr int16_t kModeObjects = 3;
inline constexpr int16_t kModeGraphicStyles = 4;
inline constexpr int16_t kModeBrushes = 5;
inline constexpr int16_t kModeSpotColors = 6;
inline constexpr int16_t kModePatterns = 7;
inline constexpr int16_t kModeGradients = 8;
inline constexpr int16_t kModeFonts = 9;
inline constexpr int16_t kModeLinkedImages = 10;
inline constexpr int16_t kModeEmbeddedImages = 11;
inline constexpr int16_t kModeFontDetails = 12;
inline constexpr int kItemSave = 13;

}  // namespace tolvane
