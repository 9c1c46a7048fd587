#include "ostui/StaticText.hpp"

#include "ostui/TextWrapper.hpp"

namespace ostui {

StaticText::StaticText(std::string id, std::string text, ThemeFont font, bool multiLine)
    : View(std::move(id)), text_(std::move(text)), font_(std::move(font)), multiLine_(multiLine) {
    SetTakesFocus(false);
}

StaticText::~StaticText() = default;

std::vector<std::string> StaticText::Lines(float width) const {
    if (multiLine_) {
        return WrapText(font_.Face(), text_, width);
    }
    std::string_view text = text_;
    if (text.empty()) {
        return {};
    }
    return {std::string(text.substr(0, text.find_first_of("\r\n")))};
}

float StaticText::MeasureHeight(float width) const {
    return static_cast<float>(Lines(width).size()) * font_.Face().LineHeight();
}

}  // namespace ostui
