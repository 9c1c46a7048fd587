#pragma once

#include "ostcore/Export.hpp"
#include "ostui/controls/UnitHandler.hpp"

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace ostui::controls {

// What a custom unit stands for, asked anew each time so that it follows the application.
using NativeUnitSource = boost::function<Unit(CustomUnit)>;

// The unit handlers by unit, and what the custom units stand for. A registry starts with the
// six standard handlers:
//   points pt (1 pt), pixels px (0.75 pt: a CSS pixel), inches in (72 pt),
//   millimeters mm (72 / 25.4 pt), centimeters cm (720 / 25.4 pt), picas pc (12 pt).
// Registering a handler for a unit replaces the one it had.
class OST_API UnitHandlerRegistry {
public:
    UnitHandlerRegistry();
    ~UnitHandlerRegistry();

    // The registry the whole process shares.
    static UnitHandlerRegistry& Get();

    void Register(boost::shared_ptr<const UnitHandler> handler);
    // Null when no handler serves the unit.
    boost::shared_ptr<const UnitHandler> GetUnitHandler(Unit unit) const;
    boost::shared_ptr<const UnitHandler> FindByAbbreviation(const std::string& abbreviation) const;
    // Throws std::out_of_range when no handler serves the unit.
    std::string Format(Unit unit, double points, int decimals) const;

    // The application answers for the custom units (the host: the ruler unit of its current
    // document); an empty source gives the answering back. Without one every custom unit
    // stands for points.
    void SetNativeUnitSource(NativeUnitSource source);
    Unit GetNativeUnit(CustomUnit unit) const;

private:
    std::map<Unit, boost::shared_ptr<const UnitHandler>> handlers_;
    NativeUnitSource nativeUnits_;
};

}  // namespace ostui::controls
