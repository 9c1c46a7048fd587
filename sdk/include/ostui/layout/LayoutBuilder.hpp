#pragma once

#include "ostcore/Export.hpp"
#include "ostcore/Localize.hpp"
#include "ostui/View.hpp"
#include "ostui/layout/LayoutNode.hpp"

namespace ostui {

// Makes the views of a layout: a root view named after the layout and filling both ways,
// holding one view per node (a ListBox for a list, a StaticText for a text, whose key goes
// through `localizer`). Frames stay empty until ArrangeLayout places them.
OST_API ViewPtr BuildLayout(const LayoutDescription& layout, const ostcore::Localizer& localizer);

}  // namespace ostui
