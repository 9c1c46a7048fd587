#pragma once

#include <string>
#include <vector>

namespace zm::test {

// The lines of a section: what the screen shows after each line and what the file does.
struct Line {
    std::string text;
    int breaks;  // on screen; the file always has one
};

inline std::string Displayed(const std::vector<Line>& lines) {
    std::string text;
    for (const Line& line : lines) {
        text += line.text;
        for (int i = 0; i < line.breaks; ++i) {
            text += "\r\n";
        }
    }
    return text;
}

inline std::string Saved(const std::vector<Line>& lines) {
    std::string text;
    for (const Line& line : lines) {
        text += line.text + "\r\n";
    }
    return text;
}

}  // namespace zm::test
