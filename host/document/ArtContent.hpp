#pragma once

#include "document/Geometry.hpp"
#include "document/Paint.hpp"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace zm::host::document {

class Art;
struct CustomColor;

// What a text frame holds. Kinds by the text engine's codes.
enum class TextFrameKind : int16_t { Point = 0, Area = 1, OnPath = 2 };

// A stretch of text with one font and one paint.
struct TextRun {
    std::string text;  // UTF-8
    std::string fontFamily;
    int weight = 400;            // CSS weights: 400 regular, 700 bold
    std::string fontStyle = "normal";  // normal, italic or oblique
    double fontSize = 12;        // points
    PathStyle paint;             // fill and stroke of the glyphs
};

struct TextFrame {
    TextFrameKind kind = TextFrameKind::Point;
    std::vector<TextRun> runs;
    // The path an area text flows in or a path text runs along; none for point text. It is
    // not part of the layers' trees.
    std::unique_ptr<Art> framePath;
};

// Placed types of a linked file that is not a raster image.
enum class PlacedType : int16_t { Eps = 0, Other = 1 };

// An <image>: embedded (raster art) or linked (placed art).
struct Image {
    bool embedded = false;
    std::string href;  // as written in the document
    // Embedded: the decoded bytes of the data: URI and its media type.
    std::vector<uint8_t> data;
    std::string mediaType;
    // Linked: the file, resolved against the document's folder.
    std::filesystem::path file;
    bool fileExists = false;
    bool fileIsRaster = false;  // the file's content is a raster format the host reads
    PlacedType placedType = PlacedType::Other;
    std::string assetUrl;  // zm:asset-url, empty when none
};

// What a foreign object's content says about itself.
struct ForeignContent {
    std::vector<std::string> fonts;  // families its styles name, each once, in order met
    bool transparent = false;
    std::vector<CustomColor*> customColors;
};

// One corner of a live shape.
struct Corner {
    int32_t type = 0;          // 0 round, 1 inverted round, 2 chamfer
    int32_t roundingType = 0;  // 0 absolute, 1 relative
    double radius = 0;         // points
    friend bool operator==(const Corner&, const Corner&) = default;
};

enum class LiveShapeKind : int16_t { Rectangle = 0, Ellipse = 1, Polygon = 2 };

// A shape that remembers how it was drawn; ellipses have no corners.
struct LiveShape {
    LiveShapeKind kind = LiveShapeKind::Rectangle;
    std::vector<Corner> corners;
};

}  // namespace zm::host::document
