#pragma once

#include "document/Document.hpp"

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace zm::host {

// A document that cannot be opened: what() reads "<file>: <reason>", one line.
class DocumentOpenError : public std::runtime_error {
public:
    DocumentOpenError(const std::filesystem::path& file, const std::string& reason)
        : std::runtime_error(file.string() + ": " + reason), file_(file), reason_(reason) {}

    const std::filesystem::path& File() const { return file_; }
    const std::string& Reason() const { return reason_; }

private:
    std::filesystem::path file_;
    std::string reason_;
};

// The whole content of a document file. Throws DocumentOpenError for a folder or a file that
// cannot be read.
std::string ReadDocumentBytes(const std::filesystem::path& file);

// Reads a document file into the model, choosing the importer by the file's content.
// Throws DocumentOpenError.
std::unique_ptr<document::Document> ImportDocument(const std::filesystem::path& file);

}  // namespace zm::host
