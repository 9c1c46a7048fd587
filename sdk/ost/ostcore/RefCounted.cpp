#include "ostcore/RefCounted.hpp"

namespace ostcore {

// Out of line so the class's type information lives in the toolkit library only.
RefCounted::~RefCounted() = default;

}  // namespace ostcore
