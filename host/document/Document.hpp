#pragma once

#include "document/Art.hpp"
#include "document/ArtStyle.hpp"
#include "document/ColorSpaceStore.hpp"
#include "document/Geometry.hpp"
#include "document/Resources.hpp"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace zm::host::document {

// Colour models by the document suite's codes; a document may carry another value.
inline constexpr int16_t kColorModelGray = 0;
inline constexpr int16_t kColorModelRgb = 1;
inline constexpr int16_t kColorModelCmyk = 2;

enum class RulerUnits : int16_t {
    Points = 0,
    Pixels,
    Inches,
    Millimeters,
    Centimeters,
    Picas,
};

struct DocumentSetup {
    double width = 612;   // points
    double height = 792;  // points
    bool showPlacedImages = false;
};

struct Artboard {
    std::string name;
    Rect bounds;  // points
};

// Document settings that have no field of their own, by key ("ZM9 paper simulation").
using DictionaryValue = std::variant<bool, int32_t, double, std::string>;

struct Document {
    // Where the document was opened from; empty for an untitled document.
    std::filesystem::path filePath;
    int16_t colorModel = kColorModelRgb;
    // Names of the colour profiles, by the space they describe; none when not set.
    std::optional<std::string> grayProfile;
    std::optional<std::string> rgbProfile;
    std::optional<std::string> cmykProfile;
    RulerUnits rulerUnits = RulerUnits::Pixels;
    DocumentSetup setup;
    bool highlightSubstitutedFonts = false;
    bool highlightSubstitutedGlyphs = false;
    std::map<std::string, DictionaryValue> dictionary;

    // Art: each layer's root group holds its art; layers in the order the file lists them.
    std::vector<std::unique_ptr<Layer>> layers;
    std::vector<Artboard> artboards;

    // Resources art refers to by pointer; held by pointer so that they stay put.
    std::vector<std::unique_ptr<CustomColor>> swatches;
    std::vector<std::unique_ptr<Gradient>> gradients;
    std::vector<std::unique_ptr<Pattern>> patterns;
    std::vector<std::unique_ptr<Symbol>> symbols;
    std::vector<std::unique_ptr<Brush>> brushes;
    std::vector<std::unique_ptr<GraphicStyle>> graphicStyles;

    // The art styles the host has handed out for this document's art; they go with it.
    ArtStyleCache artStyles;
    // The colour spaces handed out for this document; they go with it.
    ColorSpaceStore colorSpaces;
};

// Dictionary keys the host writes for the document settings of the same meaning.
inline constexpr const char* kPreserveTextEditabilityKey = "ZM11 Preserve Text Editability";
inline constexpr const char* kPaperSimulationKey = "ZM9 paper simulation";

}  // namespace zm::host::document
