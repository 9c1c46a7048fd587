#pragma once

#include "suites/EngineText.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zm::host {

// Positions in the engine's text count Unicode code points; a malformed UTF-8 sequence counts
// as the one character that stands for it.
int64_t CountCodePoints(std::string_view text);

// All the text, UTF-8, runs joined.
std::string PlainText(const EngineText& text);

// Characters start..end-1 of the text, each keeping its run's features; a run left without
// characters goes. Positions are clamped to 0..size.
std::shared_ptr<const EngineText> SliceEngineText(const EngineText& text, int64_t start,
                                                  int64_t end);

// One piece per run that holds characters, in text order.
std::vector<std::shared_ptr<const EngineText>> RunPieces(const EngineText& text);

// The paragraphs: the text cut after each line break (LF, CR, CR LF as one, U+2029); the
// break stays with the paragraph it ends. Text without characters has no paragraph, and a
// break at the very end starts none.
std::vector<std::shared_ptr<const EngineText>> ParagraphPieces(const EngineText& text);

// Where needle (UTF-8, not empty) first occurs at or after character from; none when absent.
std::optional<int64_t> FindCharacters(const EngineText& text, std::string_view needle,
                                      int64_t from);

}  // namespace zm::host
