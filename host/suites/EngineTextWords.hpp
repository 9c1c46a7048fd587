#pragma once

#include "suites/EngineText.hpp"

#include <memory>
#include <vector>

namespace zm::host {

// The words of the text, each a slice of it, in text order, as ICU's word break rules for the
// root locale find them; the blanks and punctuation between words are left out.
std::vector<std::shared_ptr<const EngineText>> WordPieces(const EngineText& text);

}  // namespace zm::host
