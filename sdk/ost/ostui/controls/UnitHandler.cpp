#include "ostui/controls/UnitHandler.hpp"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace ostui::controls {

UnitHandler::UnitHandler(Unit unit, std::string name, std::string abbreviation,
                         double pointsPerUnit)
    : unit_(unit),
      name_(std::move(name)),
      abbreviation_(std::move(abbreviation)),
      pointsPerUnit_(pointsPerUnit) {
    if (!(pointsPerUnit > 0.0)) {
        throw std::invalid_argument("a unit measures a positive number of points");
    }
}

UnitHandler::~UnitHandler() = default;

std::string UnitHandler::FormatValue(double value, int decimals, uint16_t options,
                                     bool exactDecimals) const {
    const std::string suffix = (options & kShowAbbreviation) != 0 ? ' ' + abbreviation_ : "";
    // to_chars does not follow the C locale, so the decimal point is always ".".
    char digits[400];
    auto [end, error] = std::to_chars(digits, digits + sizeof digits, value,
                                      std::chars_format::fixed, std::max(decimals, 0));
    if (error != std::errc()) {
        return '?' + suffix;
    }
    std::string text(digits, end);
    if (!exactDecimals && text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    if (text.front() == '-' && text.find_first_of("123456789") == std::string::npos) {
        text.erase(0, 1);
    }
    return text + suffix;
}

std::string UnitHandler::Format(double points, int decimals) const {
    return FormatValue(FromPoints(points), decimals, kShowAbbreviation, true);
}

}  // namespace ostui::controls
