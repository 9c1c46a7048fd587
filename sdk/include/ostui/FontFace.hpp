#pragma once

#include "ostcore/Export.hpp"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace ostui {

// One font file opened with FreeType at one pixel size. Widths are the glyphs' hinted
// advances (FreeType's default load), summed without kerning; the line height is the
// face's scaled line spacing. All values are in pixels, which the toolkit takes as points.
class OST_API FontFace {
public:
    // Throws FontError when FreeType cannot open the file.
    FontFace(const std::string& file, float pixelSize);
    ~FontFace();
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;

    const std::string& File() const { return file_; }
    float PixelSize() const { return pixelSize_; }
    std::string FamilyName() const;

    float LineHeight() const;
    float Ascender() const;
    // Width of UTF-8 text set on one line; bytes that are not UTF-8 count as U+FFFD.
    float Advance(std::string_view utf8) const;

private:
    float AdvanceOf(char32_t codePoint) const;

    struct FreeType;
    std::unique_ptr<FreeType> freeType_;
    std::string file_;
    float pixelSize_;
    mutable std::map<char32_t, float> advances_;
};

}  // namespace ostui
