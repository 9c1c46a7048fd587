#include "ostui/ResourceError.hpp"

namespace ostui {

ResourceError::~ResourceError() = default;

}  // namespace ostui
