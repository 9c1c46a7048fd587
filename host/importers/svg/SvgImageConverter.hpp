#pragma once

#include "document/Art.hpp"
#include "importers/svg/SvgTransform.hpp"

#include <pugixml.hpp>

#include <filesystem>
#include <memory>

namespace zm::host::svg {

class SvgArtConverter;

// An <image>: a data: URI makes raster art holding the decoded bytes; a link makes placed
// art describing the linked file. The bounds are x, y, width and height after the transform.
std::unique_ptr<document::Art> ConvertImage(SvgArtConverter& converter, pugi::xml_node element,
                                            const Affine& toModel);

// Whether the file starts as a raster format the host reads (PNG, JPEG, TIFF, GIF, BMP,
// WebP) does; false for a missing or unreadable file.
bool IsRasterFile(const std::filesystem::path& file);

}  // namespace zm::host::svg
