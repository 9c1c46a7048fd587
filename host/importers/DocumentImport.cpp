#include "importers/DocumentImport.hpp"

#include "importers/svg/SvgImporter.hpp"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

namespace zm::host {

std::string ReadDocumentBytes(const std::filesystem::path& file) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        throw DocumentOpenError(file, "it is a folder, not a document");
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw DocumentOpenError(file, std::strerror(errno));
    }
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (in.bad()) {
        throw DocumentOpenError(file, "the file could not be read");
    }
    return std::move(bytes).str();
}

std::unique_ptr<document::Document> ImportDocument(const std::filesystem::path& file) {
    std::string bytes = ReadDocumentBytes(file);
    if (bytes.empty()) {
        throw DocumentOpenError(file, "the file is empty");
    }
    if (bytes.starts_with("%PDF-")) {
        throw DocumentOpenError(file, "PDF documents cannot be opened by this host yet");
    }
    // XML text starts with its markup, perhaps after a byte-order mark and blanks; anything
    // else (an image, a word-processor file) is not worth handing to the XML parser.
    std::string_view text(bytes);
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos || text[first] != '<') {
        throw DocumentOpenError(file, "not an SVG document (the file is not XML text)");
    }
    return ImportSvgText(bytes, file);
}

}  // namespace zm::host
