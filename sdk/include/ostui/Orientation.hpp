#pragma once

namespace ostui {

// The axis along which a container stacks its children.
enum class Orientation { Vertical, Horizontal };

}  // namespace ostui
