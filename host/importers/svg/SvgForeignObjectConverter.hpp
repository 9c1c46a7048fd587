#pragma once

#include "document/Art.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <pugixml.hpp>

#include <memory>

namespace zm::host::svg {

class SvgArtConverter;

// A <foreignObject> as a foreign object: the fonts its content's styles name (the first
// family of each font-family, each font once, in document order), transparent when any of
// its content has an opacity below 1, the swatches its content's fill, stroke and color name
// with url(#id) (each once, in document order), bounds from x, y, width and height.
std::unique_ptr<document::Art> ConvertForeignObject(SvgArtConverter& converter,
                                                    pugi::xml_node element, const Affine& toModel);

}  // namespace zm::host::svg
