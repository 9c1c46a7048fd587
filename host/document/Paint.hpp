#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zm::host::document {

struct CustomColor;
struct Pattern;
struct Gradient;
struct Brush;

// The host's colour kinds, with their numeric codes.
enum class ColorKind : int16_t {
    Gray = 0,
    Cmyk = 1,
    Pattern = 2,
    Custom = 3,
    Gradient = 4,
    Rgb = 5,
    None = 6,
};

// One colour as a fill, a stroke, a gradient stop or a text run holds it. Component values
// are 0..1; gray is the amount of black (0 white, 1 black), as in print. The pointers name
// document resources and are set only for their kind.
struct Color {
    ColorKind kind = ColorKind::None;
    double gray = 0;
    std::array<double, 4> cmyk{};  // cyan, magenta, yellow, black
    std::array<double, 3> rgb{};   // red, green, blue
    CustomColor* custom = nullptr;
    double tint = 0;  // of a custom colour: 0 the full colour, 1 white
    Pattern* pattern = nullptr;
    Gradient* gradient = nullptr;

    static Color Rgb(double r, double g, double b) {
        Color c;
        c.kind = ColorKind::Rgb;
        c.rgb = {r, g, b};
        return c;
    }
    static Color Black() { return Rgb(0, 0, 0); }
};

// How a path, text run or mesh is painted.
struct PathStyle {
    bool fillPaint = false;
    Color fill;
    bool evenOdd = false;
    bool strokePaint = false;
    Color stroke;
    double strokeWidth = 1;  // points
    // A clipping path of a clip group.
    bool clip = false;
    // The brush put on the stroke, if any.
    Brush* brush = nullptr;
};

// Blend modes by the host's codes; CSS mix-blend-mode names map onto them in this order.
enum class BlendMode : int32_t {
    Normal = 0,
    Multiply,
    Screen,
    Overlay,
    SoftLight,
    HardLight,
    ColorDodge,
    ColorBurn,
    Darken,
    Lighten,
    Difference,
    Exclusion,
    Hue,
    Saturation,
    Color,
    Luminosity,
};

struct BlendStyle {
    BlendMode mode = BlendMode::Normal;
    double opacity = 1;        // of the whole object
    double fillOpacity = 1;    // of its fill alone
    double strokeOpacity = 1;  // of its stroke alone

    // What a user sees as the object's opacity: the object's own, times the fainter of its
    // fill and stroke opacities.
    double EffectiveOpacity() const {
        double part = fillOpacity < strokeOpacity ? fillOpacity : strokeOpacity;
        return opacity * part;
    }
    bool IsOpaqueNormal() const { return mode == BlendMode::Normal && EffectiveOpacity() == 1.0; }
};

}  // namespace zm::host::document
