#pragma once

#include <zelmora/ZMTypes.h>

#include <string>

namespace zm::host {

// A code as people read it: its four characters in quotes when they are all printable
// ("'!MEM'"), otherwise the number.
std::string ErrorText(ZMErr code);

}  // namespace zm::host
