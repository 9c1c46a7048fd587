#pragma once

#include "Description.hpp"

#include <cstdint>
#include <vector>

namespace zm::pipl {

// The binary property list of the properties, in their order.
std::vector<std::uint8_t> WritePropertyList(const std::vector<Property>& properties);

}  // namespace zm::pipl
