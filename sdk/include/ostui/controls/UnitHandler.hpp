#pragma once

#include "ostcore/Export.hpp"
#include "ostui/controls/Unit.hpp"

#include <string>

namespace ostui::controls {

// Shows values of one unit: a value given in points is converted and printed with exactly the
// decimals asked, a "." as decimal point and no grouping, then a blank and the abbreviation
// ("1234.500 px"). A value that rounds to zero prints without a minus sign.
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
    // `decimals` below 0 counts as 0.
    virtual std::string Format(double points, int decimals) const;

private:
    Unit unit_;
    std::string name_;
    std::string abbreviation_;
    double pointsPerUnit_;
};

}  // namespace ostui::controls
