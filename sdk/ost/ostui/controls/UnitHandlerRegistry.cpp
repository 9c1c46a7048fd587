#include "ostui/controls/UnitHandlerRegistry.hpp"

#include <boost/make_shared.hpp>

#include <stdexcept>
#include <utility>

namespace ostui::controls {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kMillimetersPerInch = 25.4;

}  // namespace

UnitHandlerRegistry::UnitHandlerRegistry() {
    Register(boost::make_shared<UnitHandler>(Unit::Points, "Points", "pt", 1.0));
    Register(boost::make_shared<UnitHandler>(Unit::Pixels, "Pixels", "px", 0.75));
    Register(boost::make_shared<UnitHandler>(Unit::Inches, "Inches", "in", kPointsPerInch));
    Register(boost::make_shared<UnitHandler>(Unit::Millimeters, "Millimeters", "mm",
                                             kPointsPerInch / kMillimetersPerInch));
    Register(boost::make_shared<UnitHandler>(Unit::Centimeters, "Centimeters", "cm",
                                             10.0 * kPointsPerInch / kMillimetersPerInch));
    Register(boost::make_shared<UnitHandler>(Unit::Picas, "Picas", "pc", 12.0));
}

UnitHandlerRegistry::~UnitHandlerRegistry() = default;

UnitHandlerRegistry& UnitHandlerRegistry::Get() {
    static UnitHandlerRegistry registry;
    return registry;
}

void UnitHandlerRegistry::Register(boost::shared_ptr<const UnitHandler> handler) {
    if (handler) {
        Unit unit = handler->GetUnit();
        handlers_[unit] = std::move(handler);
    }
}

boost::shared_ptr<const UnitHandler> UnitHandlerRegistry::GetUnitHandler(Unit unit) const {
    auto found = handlers_.find(unit);
    return found == handlers_.end() ? nullptr : found->second;
}

boost::shared_ptr<const UnitHandler> UnitHandlerRegistry::FindByAbbreviation(
    const std::string& abbreviation) const {
    for (const auto& [unit, handler] : handlers_) {
        if (handler->Abbreviation() == abbreviation) {
            return handler;
        }
    }
    return nullptr;
}

std::string UnitHandlerRegistry::Format(Unit unit, double points, int decimals) const {
    boost::shared_ptr<const UnitHandler> handler = GetUnitHandler(unit);
    if (!handler) {
        throw std::out_of_range("no unit handler for that unit");
    }
    return handler->Format(points, decimals);
}

void UnitHandlerRegistry::SetNativeUnitSource(NativeUnitSource source) {
    nativeUnits_ = std::move(source);
}

Unit UnitHandlerRegistry::GetNativeUnit(CustomUnit unit) const {
    return nativeUnits_ ? nativeUnits_(unit) : Unit::Points;
}

}  // namespace ostui::controls
