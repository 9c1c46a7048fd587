#pragma once

#include "document/ColorSpaceStore.hpp"
#include "document/Paint.hpp"
#include "document/Resources.hpp"

namespace zm::host::document {

// The colour spaces that swatches, colours and gradients are painted in, held in the store of
// their document.

// A spot colour is a separation whose ink is the swatch's name and whose alternate is its
// model's space; a process colour is its model's space (CMYK, RGB or Lab).
const ColorSpace& SwatchColorSpace(ColorSpaceStore& store, const CustomColor& swatch);

// Gray, RGB and CMYK colours are in their own space, a swatch's colour in the swatch's space.
// Null for paint that is no colour: none, a pattern or a gradient.
const ColorSpace* PaintColorSpace(ColorSpaceStore& store, const Color& color);

// DeviceN whose members are the distinct spaces of the stops' colours, in stop order; stops
// without a space add none, so a gradient without stops has no members.
const ColorSpace& GradientColorSpace(ColorSpaceStore& store, const Gradient& gradient);

}  // namespace zm::host::document
