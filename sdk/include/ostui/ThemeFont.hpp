#pragma once

#include "ostcore/Export.hpp"
#include "ostui/FontFace.hpp"

#include <memory>
#include <string>

namespace ostui {

// The sizes the theme offers for control text.
enum class ThemeFontSize { Small, Regular, Large };

// The font the theme uses for control text: one family at one of the theme's sizes. Faces are
// opened once per size and shared by every control and every plug-in.
class OST_API ThemeFont {
public:
    static constexpr const char* kFamily = "DejaVu Sans";
    static constexpr float kSmallSize = 11.0f;
    static constexpr float kRegularSize = 13.0f;
    static constexpr float kLargeSize = 15.0f;

    static float SizeOf(ThemeFontSize size);
    // Throws FontError when the family is not installed.
    static ThemeFont Get(ThemeFontSize size = ThemeFontSize::Small);

    ThemeFontSize Size() const { return size_; }
    float PixelSize() const { return face_->PixelSize(); }
    const FontFace& Face() const { return *face_; }

private:
    ThemeFont(ThemeFontSize size, std::shared_ptr<const FontFace> face)
        : size_(size), face_(std::move(face)) {}

    ThemeFontSize size_;
    std::shared_ptr<const FontFace> face_;
};

}  // namespace ostui
