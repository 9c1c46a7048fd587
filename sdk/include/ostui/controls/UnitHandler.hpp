#pragma once

#include "ostcore/Export.hpp"
#include "ostui/controls/Unit.hpp"

#include <cstdint>
#include <string>

namespace ostui::controls {

// Options of UnitHandler::FormatValue, or-ed together; the other bits are ignored.
inline constexpr uint16_t kShowAbbreviation = 4;  // a blank and the abbreviation follow

// Shows values of one unit. Numbers print with a "." as decimal point whatever the locale, and
// no grouping; a value that prints as zero has no minus sign.
class OST_API UnitHandler {
public:
    UnitHandler(Unit unit, std::string name, std::string abbreviation, double pointsPerUnit);
    virtual ~UnitHandler();

    Unit GetUnit() const { return unit_; }
    const std::string& Name() const { return name_; }
    const std::string& Abbreviation() const { return abbreviation_; }
    double PointsPerUnit() const { return pointsPerUnit_; }

    double FromPoints(double points) const { return points / pointsPerUnit_; }
    double ToPoints(double value) const { return value * pointsPerUnit_; }
    // A value given in `from`'s unit, in this handler's unit.
    double Convert(double value, const UnitHandler& from) const {
        return FromPoints(from.ToPoints(value));
    }

    // A value in this handler's unit, UTF-8: `decimals` decimals (below 0 counts as 0), exactly
    // that many with exactDecimals, else at most that many with trailing zeros and a bare point
    // dropped; then what `options` add.
    virtual std::string FormatValue(double value, int decimals, uint16_t options,
                                    bool exactDecimals) const;
    // Points in this unit with exactly `decimals` decimals, a blank and the abbreviation
    // ("1234.500 px").
    std::string Format(double points, int decimals) const;

private:
    Unit unit_;
    std::string name_;
    std::string abbreviation_;
    double pointsPerUnit_;
};

}  // namespace ostui::controls
