#include "importers/svg/SvgViewport.hpp"

#include "importers/svg/SvgNumbers.hpp"

#include <algorithm>
#include <string>

namespace zm::host::svg {

std::optional<ViewBox> ParseViewBox(std::string_view text) {
    NumberScanner scanner(text);
    double values[4];
    for (double& value : values) {
        auto number = scanner.Next();
        if (!number) {
            return std::nullopt;
        }
        value = *number;
    }
    if (!scanner.AtEnd() || values[2] <= 0 || values[3] <= 0) {
        return std::nullopt;
    }
    return ViewBox{values[0], values[1], values[2], values[3]};
}

Affine ViewBoxTransform(const ViewBox& box, std::string_view preserveAspectRatio, double width,
                        double height) {
    double sx = width / box.width;
    double sy = height / box.height;
    std::string_view value = TrimSvgSpace(preserveAspectRatio);
    if (value.starts_with("defer")) {
        value = TrimSvgSpace(value.substr(5));
    }
    std::string_view align = value.substr(0, value.find(' '));
    if (align == "none") {
        return Affine::Scale(sx, sy) * Affine::Translate(-box.x, -box.y);
    }
    bool slice = value.find("slice") != std::string_view::npos;
    double scale = slice ? std::max(sx, sy) : std::min(sx, sy);
    // Fractions of the spare room placed before the content: Min 0, Mid 1/2, Max 1.
    double fx = 0.5, fy = 0.5;
    if (align.size() == 8 && align[0] == 'x' && align[4] == 'Y') {
        std::string_view xPart = align.substr(1, 3), yPart = align.substr(5, 3);
        fx = xPart == "Min" ? 0 : xPart == "Max" ? 1 : 0.5;
        fy = yPart == "Min" ? 0 : yPart == "Max" ? 1 : 0.5;
    }
    double tx = (width - box.width * scale) * fx - box.x * scale;
    double ty = (height - box.height * scale) * fy - box.y * scale;
    return Affine{scale, 0, 0, scale, tx, ty};
}

}  // namespace zm::host::svg
