#include "importers/svg/SvgColor.hpp"

#include "importers/svg/CssNamedColors.hpp"
#include "importers/svg/SvgNumbers.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace zm::host::svg {

namespace {

using document::Color;
using document::ColorKind;

std::optional<ParsedColor> ParseHex(std::string_view digits) {
    if (digits.size() != 3 && digits.size() != 4 && digits.size() != 6 && digits.size() != 8) {
        return std::nullopt;
    }
    std::vector<int> values;
    for (char c : digits) {
        int value = HexDigitValue(c);
        if (value < 0) {
            return std::nullopt;
        }
        values.push_back(value);
    }
    std::array<double, 4> channels{0, 0, 0, 1};
    bool shortForm = digits.size() <= 4;
    std::size_t count = shortForm ? digits.size() : digits.size() / 2;
    for (std::size_t i = 0; i < count; ++i) {
        int byte = shortForm ? values[i] * 17 : values[2 * i] * 16 + values[2 * i + 1];
        channels[i] = byte / 255.0;
    }
    return ParsedColor{Color::Rgb(channels[0], channels[1], channels[2]), channels[3], false};
}

// One argument of a colour function: a number, or a percentage, or "none".
struct Argument {
    double value = 0;
    bool percent = false;
};

// The arguments inside "name(...)", separated by commas or blanks, with an optional
// "/ alpha" at the end (returned as the last argument, flagged by slashAlpha).
std::optional<std::vector<Argument>> ParseArguments(std::string_view inside, bool& slashAlpha) {
    std::vector<Argument> arguments;
    slashAlpha = false;
    std::size_t i = 0;
    while (true) {
        while (i < inside.size() && (IsSvgSpace(inside[i]) || inside[i] == ',')) {
            ++i;
        }
        if (i >= inside.size()) {
            break;
        }
        if (inside[i] == '/') {
            if (slashAlpha) return std::nullopt;
            slashAlpha = true;
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < inside.size() && !IsSvgSpace(inside[end]) && inside[end] != ',' &&
               inside[end] != '/') {
            ++end;
        }
        std::string_view token = inside.substr(i, end - i);
        Argument argument;
        if (token.ends_with('%')) {
            token.remove_suffix(1);
            argument.percent = true;
        } else if (token.ends_with("deg")) {
            token.remove_suffix(3);
        }
        auto value = ParseNumber(token);
        if (!value) {
            return std::nullopt;
        }
        argument.value = *value;
        arguments.push_back(argument);
        i = end;
    }
    return arguments;
}

double Unit(const Argument& a, double numberScale) {
    double value = a.percent ? a.value / 100 : a.value / numberScale;
    return std::clamp(value, 0.0, 1.0);
}

double HueToChannel(double p, double q, double t) {
    if (t < 0) t += 1;
    if (t > 1) t -= 1;
    if (t < 1.0 / 6) return p + (q - p) * 6 * t;
    if (t < 1.0 / 2) return q;
    if (t < 2.0 / 3) return p + (q - p) * (2.0 / 3 - t) * 6;
    return p;
}

std::optional<ParsedColor> ParseFunction(const std::string& name, std::string_view inside) {
    bool slashAlpha = false;
    auto arguments = ParseArguments(inside, slashAlpha);
    if (!arguments) {
        return std::nullopt;
    }
    auto& args = *arguments;
    ParsedColor parsed;
    if (name == "rgb" || name == "rgba") {
        if (args.size() != 3 && args.size() != 4) return std::nullopt;
        parsed.color = Color::Rgb(Unit(args[0], 255), Unit(args[1], 255), Unit(args[2], 255));
        if (args.size() == 4) parsed.alpha = Unit(args[3], 1);
        return parsed;
    }
    if (name == "hsl" || name == "hsla") {
        if (args.size() != 3 && args.size() != 4) return std::nullopt;
        double hue = std::fmod(args[0].value, 360.0);
        if (hue < 0) hue += 360;
        hue /= 360;
        double saturation = Unit(args[1], 100);
        double lightness = Unit(args[2], 100);
        double q = lightness < 0.5 ? lightness * (1 + saturation)
                                   : lightness + saturation - lightness * saturation;
        double p = 2 * lightness - q;
        parsed.color = Color::Rgb(HueToChannel(p, q, hue + 1.0 / 3), HueToChannel(p, q, hue),
                                  HueToChannel(p, q, hue - 1.0 / 3));
        if (args.size() == 4) parsed.alpha = Unit(args[3], 1);
        return parsed;
    }
    if (name == "device-cmyk") {
        if (args.size() != 4 && args.size() != 5) return std::nullopt;
        parsed.color.kind = ColorKind::Cmyk;
        for (std::size_t i = 0; i < 4; ++i) parsed.color.cmyk[i] = Unit(args[i], 1);
        if (args.size() == 5) parsed.alpha = Unit(args[4], 1);
        return parsed;
    }
    if (name == "device-gray") {
        if (args.size() != 1 && args.size() != 2) return std::nullopt;
        // The device value is the lightness (0 black, 1 white) while the model keeps the
        // amount of black, as print does.
        parsed.color.kind = ColorKind::Gray;
        parsed.color.gray = 1 - Unit(args[0], 1);
        if (args.size() == 2) parsed.alpha = Unit(args[1], 1);
        return parsed;
    }
    return std::nullopt;
}

// Splits "name(inside)"; nothing when the text is not of that form.
bool SplitFunction(std::string_view text, std::string& name, std::string_view& inside) {
    auto open = text.find('(');
    if (open == std::string_view::npos || text.back() != ')') {
        return false;
    }
    name = AsciiLower(TrimSvgSpace(text.substr(0, open)));
    inside = text.substr(open + 1, text.size() - open - 2);
    return true;
}

}  // namespace

std::optional<ParsedColor> ParseColor(std::string_view text) {
    text = TrimSvgSpace(text);
    if (text.empty()) {
        return std::nullopt;
    }
    if (text.front() == '#') {
        return ParseHex(text.substr(1));
    }
    std::string name;
    std::string_view inside;
    if (SplitFunction(text, name, inside)) {
        return ParseFunction(name, inside);
    }
    std::string lower = AsciiLower(text);
    if (lower == "transparent") {
        return ParsedColor{Color::Rgb(0, 0, 0), 0, false};
    }
    if (lower == "currentcolor") {
        return ParsedColor{Color::Black(), 1, true};
    }
    if (auto rgb = NamedColor(lower)) {
        return ParsedColor{Color::Rgb(((*rgb >> 16) & 0xff) / 255.0, ((*rgb >> 8) & 0xff) / 255.0,
                                      (*rgb & 0xff) / 255.0),
                           1, false};
    }
    return std::nullopt;
}

std::optional<std::array<double, 3>> ParseLab(std::string_view text) {
    text = TrimSvgSpace(text);
    std::string name;
    std::string_view inside;
    if (text.empty() || !SplitFunction(text, name, inside) || name != "lab") {
        return std::nullopt;
    }
    bool slashAlpha = false;
    auto args = ParseArguments(inside, slashAlpha);
    if (!args || args->size() < 3) {
        return std::nullopt;
    }
    double lightness = std::clamp((*args)[0].value, 0.0, 100.0);
    return std::array<double, 3>{lightness, std::clamp((*args)[1].value, -128.0, 127.0),
                                 std::clamp((*args)[2].value, -128.0, 127.0)};
}

}  // namespace zm::host::svg
