#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zm::host::test {

// Tolvane's property list, byte by byte. Every four-character code is stored least significant
// byte first, so its characters appear reversed; the data length counts the padded data.
// clang-format off
inline const std::vector<std::uint8_t> kTolvanePropertyList = {
    0x01, 0x00,              // 16-bit 1
    0x00, 0x00, 0x00, 0x00,  // list version 0
    0x04, 0x00, 0x00, 0x00,  // 4 properties

    'L', 'V', 'R', 'Q',      // vendor "QRVL"
    'd', 'n', 'i', 'k',      // key "kind"
    0x00, 0x00, 0x00, 0x00,  // id 0
    0x04, 0x00, 0x00, 0x00,  // 4 bytes of data
    'A', 'E', 'V', 'H',      // "HVEA"

    'L', 'V', 'R', 'Q',      // vendor "QRVL"
    's', 'r', 'v', 'i',      // key "ivrs"
    0x00, 0x00, 0x00, 0x00,  // id 0
    0x04, 0x00, 0x00, 0x00,  // 4 bytes of data
    0x02, 0x00, 0x00, 0x00,  // interface version 2

    'L', 'V', 'R', 'Q',      // vendor "QRVL"
    '6', '8', 'x', 'w',      // key "wx86"
    0x00, 0x00, 0x00, 0x00,  // id 0
    0x0C, 0x00, 0x00, 0x00,  // 12 bytes of data: 10 characters, the terminator, 1 of padding
    'P', 'l', 'u', 'g', 'i', 'n', 'M', 'a', 'i', 'n', 0x00, 0x00,

    'L', 'V', 'R', 'Q',      // vendor "QRVL"
    'm', 'n', 'i', 'p',      // key "pinm"
    0x00, 0x00, 0x00, 0x00,  // id 0
    0x08, 0x00, 0x00, 0x00,  // 8 bytes of data: 7 characters and the terminator, no padding
    'T', 'o', 'l', 'v', 'a', 'n', 'e', 0x00,
};
// clang-format on

// Where the fields the tests alter sit in the list above.
inline constexpr std::size_t kCountOffset = 6;
inline constexpr std::size_t kKindDataOffset = 26;
inline constexpr std::size_t kIvrsVendorOffset = 30;
inline constexpr std::size_t kIvrsDataOffset = 46;
inline constexpr std::size_t kEntryPointOffset = 50;  // the whole wx86 property
inline constexpr std::size_t kEntryPointSize = 28;
inline constexpr std::size_t kPluginNameDataOffset = 94;

}  // namespace zm::host::test
