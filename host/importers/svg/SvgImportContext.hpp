#pragma once

#include "document/Document.hpp"
#include "importers/svg/CssStyleSheet.hpp"
#include "importers/svg/SvgNames.hpp"
#include "importers/svg/SvgResources.hpp"
#include "importers/svg/SvgStyle.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <pugixml.hpp>

#include <cstddef>
#include <filesystem>
#include <string>
#include <unordered_map>

namespace zm::host::svg {

// Everything the parts of one import share: the XML, its names, styles and resources, and
// the document being filled.
struct ImportContext {
    ImportContext(document::Document& target, pugi::xml_node svgRoot, std::filesystem::path folder);
    ImportContext(const ImportContext&) = delete;
    ImportContext& operator=(const ImportContext&) = delete;

    // The element with that id (the first one when ids repeat), or an empty node.
    pugi::xml_node Lookup(const std::string& id) const;
    // zm:name, else inkscape:label, else the id.
    std::string ResourceName(pugi::xml_node element) const;

    document::Document& document;
    pugi::xml_node root;
    SvgNames names;
    std::unordered_map<std::string, pugi::xml_node> ids;
    CssStyleSheet sheet;
    StyleResolver styles;
    SvgResources resources;
    // Where relative links point from.
    std::filesystem::path baseFolder;
    // User units of the root to model points: viewBox, pixels to points, y upwards.
    Affine rootToModel;
    // The root viewport in its user units, what percentages of lengths refer to.
    double viewportWidth = 300;
    double viewportHeight = 150;
};

}  // namespace zm::host::svg
