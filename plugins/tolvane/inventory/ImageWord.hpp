#pragma once

#include "report/HostString.hpp"

#include <cstdint>

namespace tolvane {

// A word of the image descriptions: an entry of the ResImage group (index above 0) or a key of
// its own (index 0), so that tables can hold both kinds.
struct ImageWord {
    int16_t index;
    const char* key;
};

inline constexpr ImageWord ImageGroupWord(int16_t index) { return {index, nullptr}; }
inline constexpr ImageWord ImageKeyWord(const char* key) { return {0, key}; }

// The word's localized text. Throws zm::Error with the suite's code.
HostString LoadImageWord(const ImageWord& word);

}  // namespace tolvane
