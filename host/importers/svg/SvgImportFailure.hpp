#pragma once

#include <stdexcept>
#include <string>

namespace zm::host::svg {

// A document the importer refuses; the entry points turn it into DocumentOpenError naming
// the file, so the reason alone is said here.
class SvgImportFailure : public std::runtime_error {
public:
    explicit SvgImportFailure(const std::string& reason) : std::runtime_error(reason) {}
};

// How deep elements may nest, references followed included. Deeper documents are refused
// rather than risk the stack.
inline constexpr int kMaxNesting = 256;

}  // namespace zm::host::svg
