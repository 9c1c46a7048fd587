#pragma once

#include "ostcore/Export.hpp"
#include "ostui/ThemeFont.hpp"
#include "ostui/View.hpp"

#include <string>
#include <vector>

namespace ostui {

// Read-only text. A multi-line control wraps its text to a width (see WrapText); a single-line
// control shows its first line as it is.
class OST_API StaticText : public View {
public:
    StaticText(std::string id, std::string text, ThemeFont font, bool multiLine = true);
    ~StaticText() override;

    const std::string& Text() const { return text_; }
    void SetText(std::string text) { text_ = std::move(text); }
    const ThemeFont& Font() const { return font_; }
    void SetFont(ThemeFont font) { font_ = std::move(font); }
    bool IsMultiLine() const { return multiLine_; }

    // The lines shown when the text is laid out `width` wide.
    std::vector<std::string> Lines(float width) const;
    // The height of those lines: their count times the font's line height.
    float MeasureHeight(float width) const;

private:
    std::string text_;
    ThemeFont font_;
    bool multiLine_;
};

}  // namespace ostui
