#pragma once

#include "importers/svg/SvgBoundingBox.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <pugixml.hpp>

namespace zm::host::svg {

struct ImportContext;

// Pattern content units to the user units of the element that paints with the pattern,
// whose bounding box is box: patternTransform, then the first tile's corner (x, y), then the
// content's own scale: the viewBox fitted to the tile, else the box's size when
// patternContentUnits is objectBoundingBox. x, y, width and height are fractions of the box
// unless patternUnits is userSpaceOnUse. Each attribute the pattern lacks comes from the
// patterns its href chain names.
Affine PatternContentTransform(const ImportContext& context, pugi::xml_node pattern,
                               const UserBox& box);

}  // namespace zm::host::svg
