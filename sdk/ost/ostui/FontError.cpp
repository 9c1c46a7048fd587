#include "ostui/FontError.hpp"

namespace ostui {

FontError::~FontError() = default;

}  // namespace ostui
