#include "importers/svg/SvgForeignObjectConverter.hpp"

#include "importers/svg/SvgArtConverter.hpp"
#include "importers/svg/SvgPaint.hpp"
#include "importers/svg/SvgTreeWalk.hpp"

#include <algorithm>

namespace zm::host::svg {

std::unique_ptr<document::Art> ConvertForeignObject(SvgArtConverter& converter,
                                                    pugi::xml_node element, const Affine& toModel) {
    ImportContext& context = converter.Context();
    auto art = converter.NewArt(document::ArtType::ForeignObject, element);
    auto content = std::make_unique<document::ForeignContent>();
    ForEachElement(element, [&](pugi::xml_node node, std::size_t depth) {
        if (depth == 0) {
            return;  // the foreignObject's own style is the art's, not its content's
        }
        const ComputedStyle& style = context.styles.For(node);
        if (auto family = style.declared.find("font-family"); family != style.declared.end()) {
            std::string name = FirstFontFamily(family->second);
            if (!name.empty() && std::find(content->fonts.begin(), content->fonts.end(), name) ==
                                     content->fonts.end()) {
                content->fonts.push_back(std::move(name));
            }
        }
        if (style.opacity < 1) {
            content->transparent = true;
        }
        for (const char* property : {"fill", "stroke", "color"}) {
            auto declared = style.declared.find(property);
            if (declared == style.declared.end()) {
                continue;
            }
            auto id = ParseLocalUrl(declared->second);
            document::CustomColor* swatch = id ? context.resources.Swatch(*id) : nullptr;
            if (swatch && std::find(content->customColors.begin(), content->customColors.end(),
                                    swatch) == content->customColors.end()) {
                content->customColors.push_back(swatch);
            }
        }
    });
    art->bounds = converter.BoxBounds(element, toModel);
    art->foreign = std::move(content);
    return art;
}

}  // namespace zm::host::svg
