#include "ostui/TextWrapper.hpp"

namespace ostui {

namespace {

// Splits at "\r\n", "\n" or "\r"; a break at the very end opens no further paragraph.
std::vector<std::string_view> Paragraphs(std::string_view text) {
    std::vector<std::string_view> paragraphs;
    while (!text.empty()) {
        std::size_t end = text.find_first_of("\r\n");
        paragraphs.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        std::size_t breakLength = text.compare(end, 2, "\r\n") == 0 ? 2 : 1;
        text.remove_prefix(end + breakLength);
    }
    return paragraphs;
}

void WrapParagraph(const FontFace& face, std::string_view paragraph, float width,
                   std::vector<std::string>& lines) {
    std::string line;
    bool lineHasWord = false;
    while (true) {
        std::size_t blank = paragraph.find(' ');
        std::string_view word = paragraph.substr(0, blank);
        if (!lineHasWord) {
            line.assign(word);
            lineHasWord = true;
        } else {
            std::string candidate = line + ' ' + std::string(word);
            if (face.Advance(candidate) <= width) {
                line = std::move(candidate);
            } else {
                lines.push_back(std::move(line));
                line.assign(word);
            }
        }
        if (blank == std::string_view::npos) {
            break;
        }
        paragraph.remove_prefix(blank + 1);
    }
    lines.push_back(std::move(line));
}

}  // namespace

std::vector<std::string> WrapText(const FontFace& face, std::string_view text, float width) {
    std::vector<std::string> lines;
    for (std::string_view paragraph : Paragraphs(text)) {
        WrapParagraph(face, paragraph, width, lines);
    }
    return lines;
}

}  // namespace ostui
