#include "support/ReportHeading.hpp"

#include <array>
#include <cctype>
#include <string_view>

namespace zm::test {

namespace {

constexpr std::array<std::string_view, 7> kDays = {"Sun", "Mon", "Tue", "Wed",
                                                   "Thu", "Fri", "Sat"};
constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

bool Digit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

template <std::size_t N>
bool OneOf(std::string_view word, const std::array<std::string_view, N>& words) {
    for (std::string_view candidate : words) {
        if (word == candidate) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool IsAsctimeStamp(std::string_view text) {
    // "Sat Nov 21 09:58:14 2026"
    //  0123456789012345678901234
    if (text.size() != 24 || text[3] != ' ' || text[7] != ' ' || text[10] != ' ' ||
        text[13] != ':' || text[16] != ':' || text[19] != ' ') {
        return false;
    }
    if (!OneOf(text.substr(0, 3), kDays) || !OneOf(text.substr(4, 3), kMonths)) {
        return false;
    }
    if (!(text[8] == ' ' || Digit(text[8])) || !Digit(text[9])) {
        return false;
    }
    for (std::size_t at : {11, 12, 14, 15, 17, 18, 20, 21, 22, 23}) {
        if (!Digit(text[at])) {
            return false;
        }
    }
    return true;
}

std::optional<std::string> AfterReportHeading(const std::string& text, std::string_view after) {
    constexpr std::string_view kTitle = "Document Info - ";
    constexpr std::size_t kStamp = 24;
    const std::string end = "\n\r\n" + std::string(after);
    if (text.compare(0, kTitle.size(), kTitle) != 0 ||
        !IsAsctimeStamp(std::string_view(text).substr(kTitle.size(), kStamp)) ||
        text.compare(kTitle.size() + kStamp, end.size(), end) != 0) {
        return std::nullopt;
    }
    return text.substr(kTitle.size() + kStamp + end.size());
}

}  // namespace zm::test
