#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zm::host::svg {

// The CSS named colours as 0xRRGGBB; the name is matched without regard to case.
std::optional<uint32_t> NamedColor(std::string_view name);

}  // namespace zm::host::svg
