#pragma once

#include "importers/svg/SvgTransform.hpp"

#include <optional>
#include <string_view>

namespace zm::host::svg {

struct ViewBox {
    double x = 0, y = 0, width = 0, height = 0;
};

// "min-x min-y width height"; nothing when malformed or when a size is not positive (such a
// viewBox is ignored).
std::optional<ViewBox> ParseViewBox(std::string_view text);

// Maps viewBox user units onto a viewport of width x height pixels as preserveAspectRatio
// says ("xMidYMid meet" when empty or unreadable, "none", the nine alignments, meet or
// slice).
Affine ViewBoxTransform(const ViewBox& box, std::string_view preserveAspectRatio, double width,
                        double height);

}  // namespace zm::host::svg
