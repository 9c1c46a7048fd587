#include "importers/svg/SvgNumbers.hpp"

#include <charconv>
#include <cmath>
#include <system_error>

namespace zm::host::svg {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Length of the number at the start of text by the SVG number grammar, 0 when none.
std::size_t NumberLength(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        ++i;
    }
    std::size_t digits = 0;
    while (i < text.size() && IsDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        std::size_t afterPoint = i + 1;
        std::size_t fraction = 0;
        while (afterPoint + fraction < text.size() && IsDigit(text[afterPoint + fraction])) {
            ++fraction;
        }
        if (fraction > 0 || digits > 0) {
            i = afterPoint + fraction;
            digits += fraction;
        }
    }
    if (digits == 0) {
        return 0;
    }
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) {
            ++j;
        }
        std::size_t exponentDigits = 0;
        while (j + exponentDigits < text.size() && IsDigit(text[j + exponentDigits])) {
            ++exponentDigits;
        }
        // "2em" is a number followed by a unit, not an exponent.
        if (exponentDigits > 0) {
            i = j + exponentDigits;
        }
    }
    return i;
}

std::optional<double> ConvertNumber(std::string_view text) {
    // from_chars takes no leading plus.
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    double value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

void NumberScanner::SkipSeparators() {
    while (position_ < text_.size() && IsSvgSpace(text_[position_])) {
        ++position_;
    }
    if (position_ < text_.size() && text_[position_] == ',') {
        ++position_;
        while (position_ < text_.size() && IsSvgSpace(text_[position_])) {
            ++position_;
        }
    }
}

bool NumberScanner::AtEnd() {
    while (position_ < text_.size() && IsSvgSpace(text_[position_])) {
        ++position_;
    }
    return position_ >= text_.size();
}

char NumberScanner::Peek() { return AtEnd() ? '\0' : text_[position_]; }

std::optional<double> NumberScanner::Next() {
    SkipSeparators();
    std::size_t length = NumberLength(text_.substr(position_));
    if (length == 0) {
        return std::nullopt;
    }
    auto value = ConvertNumber(text_.substr(position_, length));
    if (value) {
        position_ += length;
    }
    return value;
}

std::optional<bool> NumberScanner::NextFlag() {
    SkipSeparators();
    if (position_ < text_.size() && (text_[position_] == '0' || text_[position_] == '1')) {
        return text_[position_++] == '1';
    }
    return std::nullopt;
}

std::optional<double> ParseNumber(std::string_view text) {
    text = TrimSvgSpace(text);
    if (text.empty() || NumberLength(text) != text.size()) {
        return std::nullopt;
    }
    return ConvertNumber(text);
}

std::vector<double> ParseNumberList(std::string_view text) {
    std::vector<double> numbers;
    NumberScanner scanner(text);
    while (auto value = scanner.Next()) {
        numbers.push_back(*value);
    }
    return numbers;
}

}  // namespace zm::host::svg
