#include "runtime/ErrorText.hpp"

namespace zm::host {

std::string ErrorText(ZMErr code) {
    auto bits = static_cast<uint32_t>(code);
    std::string chars;
    for (int shift = 24; shift >= 0; shift -= 8) {
        char c = static_cast<char>((bits >> shift) & 0xFFu);
        if (c < 0x20 || c > 0x7E) {
            return std::to_string(code);
        }
        chars += c;
    }
    return "'" + chars + "'";
}

}  // namespace zm::host
