#pragma once

#include "ostcore/Export.hpp"
#include "ostui/View.hpp"

namespace ostui {

// Gives `root` the frame 0, 0, width, height and places its visible children, and theirs, by
// their hints: a container stacks its children along its orientation inside its margin; a
// child that does not fill that axis keeps its own size along it, and the room left over is
// shared equally by the children that fill it; across the axis a child fills the container or
// keeps its own size. Children of views that place their own (a list box) are left alone.
OST_API void ArrangeLayout(View& root, float width, float height);

}  // namespace ostui
