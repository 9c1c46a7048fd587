#pragma once

#include "document/Paint.hpp"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zm::host::document {

class Art;

// A swatch: a named ("global") colour, either a process colour or a spot colour.
enum class CustomColorKind : int16_t { Cmyk = 0, Rgb = 1, Lab = 2 };

struct CustomColor {
    std::string id;
    std::string name;
    CustomColorKind kind = CustomColorKind::Rgb;
    std::array<double, 4> cmyk{};  // 0..1
    std::array<double, 3> rgb{};   // 0..1
    std::array<double, 3> lab{};   // L 0..100, a and b -128..127
    bool spot = false;
};

struct GradientStop {
    double offset = 0;  // 0..1 along the gradient
    Color color;
    double opacity = 1;
};

enum class GradientType : int16_t { Linear = 0, Radial = 1 };

struct Gradient {
    std::string id;
    std::string name;
    GradientType type = GradientType::Linear;
    std::vector<GradientStop> stops;
};

// A pattern's definition is a group of its own, outside the layers.
struct Pattern {
    std::string id;
    std::string name;
    std::unique_ptr<Art> art;
};

// A symbol's definition is the element that <use> refers to, outside the layers.
struct Symbol {
    std::string id;
    std::string name;
    std::unique_ptr<Art> definition;
};

struct Brush {
    std::string id;
    std::string name;
    std::string typeTitle;  // as written, "&Art Brush"
};

// A named graphic style. Art without one has an anonymous style.
struct GraphicStyle {
    std::string name;
};

}  // namespace zm::host::document
