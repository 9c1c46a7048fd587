#pragma once

#include "document/ArtContent.hpp"

#include <zelmora/KRXTypes.h>
#include <zelmora/ZMArtTypes.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zm::host {

// One run as the text engine keeps it: a copy of what the document's run says, holding no
// pointer into the document, so the engine's objects stay whole after the document closes.
struct EngineRun {
    std::string text;  // UTF-8
    std::string fontFamily;
    int32_t weight = 400;               // CSS weights: 400 regular, 700 bold
    std::string fontStyle = "normal";   // normal, italic or oblique
    double fontSize = 12;               // points
    std::optional<ZMFillStyle> fill;    // none: the glyphs are not filled
    std::optional<ZMFillStyle> stroke;  // none: the glyphs are not stroked
};

// All the text of one frame.
struct EngineText {
    KRXFrameType frameType = KRX_FRAME_TYPE_POINT;
    std::vector<EngineRun> runs;
};

// Text that names no family is set in this one, a family the host installs with itself.
inline constexpr const char* kDefaultFontFamily = "Liberation Sans";

// The engine's copy of a frame's text; a text frame art without content is an empty point
// text.
std::shared_ptr<const EngineText> CopyEngineText(const document::TextFrame* frame);

}  // namespace zm::host
