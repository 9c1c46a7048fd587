#pragma once

#include "document/Art.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <pugixml.hpp>

#include <memory>

namespace zm::host::svg {

class SvgArtConverter;

// A <text> element as a text frame: point text; text on a path when it holds a <textPath>
// (its frame path a copy of the referenced path); area text with shape-inside (the shape is
// the frame path) or inline-size (a rectangle that wide). Each stretch of characters with its
// own element (<text>, <tspan>, <textPath>, <a>) is a run with that element's font and paint.
// The bounds are an estimate (see TextLayout): x, y, dx and dy of the text and its tspans
// place the characters, text-anchor shifts each chunk.
std::unique_ptr<document::Art> ConvertText(SvgArtConverter& converter, pugi::xml_node element,
                                           const Affine& toModel, int depth);

}  // namespace zm::host::svg
