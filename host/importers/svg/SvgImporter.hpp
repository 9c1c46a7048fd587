#pragma once

#include "document/Document.hpp"

#include <filesystem>
#include <memory>
#include <string_view>

namespace zm::host {

// Reads an SVG document. Relative links resolve against the file's folder; the document's
// file path is the file. Throws DocumentOpenError naming the file and the reason.
std::unique_ptr<document::Document> ImportSvgFile(const std::filesystem::path& file);

// The same from text already in memory; `file` names it in errors and becomes the
// document's file path (empty: an untitled document whose links resolve against the
// current folder).
std::unique_ptr<document::Document> ImportSvgText(std::string_view text,
                                                  const std::filesystem::path& file);

}  // namespace zm::host
