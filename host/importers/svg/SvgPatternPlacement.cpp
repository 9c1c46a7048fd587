#include "importers/svg/SvgPatternPlacement.hpp"

#include "importers/svg/SvgAttributes.hpp"
#include "importers/svg/SvgImportContext.hpp"
#include "importers/svg/SvgSyntax.hpp"
#include "importers/svg/SvgViewport.hpp"

#include <algorithm>
#include <unordered_set>

namespace zm::host::svg {

namespace {

// The first pattern of the href chain (the pattern itself first) that has the attribute.
pugi::xml_node Holder(const ImportContext& context, pugi::xml_node pattern, const char* name) {
    std::unordered_set<const void*> seen;
    while (context.names.SvgName(pattern) == "pattern" &&
           seen.insert(pattern.internal_object()).second) {
        if (pattern.attribute(name)) {
            return pattern;
        }
        pattern = context.Lookup(context.names.HrefId(pattern));
    }
    return {};
}

std::string_view Inherited(const ImportContext& context, pugi::xml_node pattern,
                           const char* name) {
    return Holder(context, pattern, name).attribute(name).value();
}

bool InBoxUnits(const ImportContext& context, pugi::xml_node pattern, const char* name,
                bool fallback) {
    std::string_view units = TrimSvgSpace(Inherited(context, pattern, name));
    if (units == "objectBoundingBox") return true;
    if (units == "userSpaceOnUse") return false;
    return fallback;
}

}  // namespace

Affine PatternContentTransform(const ImportContext& context, pugi::xml_node pattern,
                               const UserBox& box) {
    bool tileInBox = InBoxUnits(context, pattern, "patternUnits", true);
    auto tileLength = [&](const char* name, double boxOrigin, double boxSize, double viewport) {
        pugi::xml_node holder = Holder(context, pattern, name);
        if (tileInBox) {
            // Fractions ("0.5" or "50%") of the box.
            return boxOrigin + LengthAttribute(holder, name, 0, 1) * boxSize;
        }
        return LengthAttribute(holder, name, 0, viewport);
    };
    double x = tileLength("x", box.x, box.width, context.viewportWidth);
    double y = tileLength("y", box.y, box.height, context.viewportHeight);
    double width = std::max(0.0, tileLength("width", 0, box.width, context.viewportWidth));
    double height = std::max(0.0, tileLength("height", 0, box.height, context.viewportHeight));

    Affine result = ParseTransform(Inherited(context, pattern, "patternTransform"))
                        .value_or(Affine{}) *
                    Affine::Translate(x, y);
    if (auto viewBox = ParseViewBox(Inherited(context, pattern, "viewBox"))) {
        return result * ViewBoxTransform(*viewBox,
                                         Inherited(context, pattern, "preserveAspectRatio"),
                                         width, height);
    }
    if (InBoxUnits(context, pattern, "patternContentUnits", false)) {
        return result * Affine::Scale(box.width, box.height);
    }
    return result;
}

}  // namespace zm::host::svg
