#include "importers/svg/SvgImportContext.hpp"

#include "importers/svg/SvgTreeWalk.hpp"

#include <utility>

namespace zm::host::svg {

ImportContext::ImportContext(document::Document& target, pugi::xml_node svgRoot,
                             std::filesystem::path folder)
    : document(target),
      root(svgRoot),
      names(svgRoot),
      styles(sheet),
      baseFolder(std::move(folder)) {
    ForEachElement(root, [&](pugi::xml_node element, std::size_t) {
        std::string_view id = element.attribute("id").value();
        if (!id.empty()) {
            ids.emplace(std::string(id), element);
        }
        if (names.Is(element, Vocabulary::Svg, "style")) {
            std::string text;
            for (pugi::xml_node child : element.children()) {
                if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
                    text += child.value();
                }
            }
            sheet.Append(text);
        }
    });
}

pugi::xml_node ImportContext::Lookup(const std::string& id) const {
    auto found = ids.find(id);
    return found == ids.end() ? pugi::xml_node() : found->second;
}

std::string ImportContext::ResourceName(pugi::xml_node element) const {
    if (auto name = names.Value(element, Vocabulary::Zelmora, "name"); !name.empty()) {
        return std::string(name);
    }
    if (auto label = names.Value(element, Vocabulary::Inkscape, "label"); !label.empty()) {
        return std::string(label);
    }
    return element.attribute("id").value();
}

}  // namespace zm::host::svg
