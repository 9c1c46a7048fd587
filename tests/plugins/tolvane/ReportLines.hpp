#pragma once

#include <string>
#include <vector>

namespace zm::test {

// One line of a report as a section writer appends it: what the screen shows after it and,
// in the file, always one line end.
struct Line {
    std::string text;
    int breaks;  // line ends after it on screen
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
