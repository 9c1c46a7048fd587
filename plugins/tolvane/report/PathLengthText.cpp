#include "report/PathLengthText.hpp"

#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"

#include <ostui/controls/UnitHandlerRegistry.hpp>

#include <boost/shared_ptr.hpp>

#include <cstdint>
#include <string>

namespace tolvane {

namespace {

using ostui::controls::UnitHandler;
using ostui::controls::UnitHandlerRegistry;

constexpr const char* kRulerTypePreference = "rulerType";
constexpr int32_t kRulerTypeWhenAbsent = 2;

// Only the bit of value 4 is set aside: the preference picks the decimals, never the unit.
int LengthDecimals(int32_t rulerType) { return (rulerType & ~4) == 0 ? 4 : 3; }

const UnitHandler& RequireHandler(const boost::shared_ptr<const UnitHandler>& handler) {
    if (!handler) {
        throw zm::Error(ZM_ERR_PARAMETER);
    }
    return *handler;
}

}  // namespace

HostString PathLengthText(double totalPathLength) {
    int32_t rulerType = kRulerTypeWhenAbsent;
    zm::Check(sPreferenceSuite->GetIntegerPreference(nullptr, kRulerTypePreference, &rulerType));
    const int decimals = LengthDecimals(rulerType);

    const UnitHandlerRegistry& registry = UnitHandlerRegistry::Get();
    auto native =
        registry.GetUnitHandler(registry.GetNativeUnit(ostui::controls::CustomUnit::Ruler));
    const UnitHandler& ruler = RequireHandler(native);
    if (totalPathLength < 0.0) {
        return LoadTolvaneString(ResOther, kOtherTooLong);
    }
    auto pointsHandler = registry.GetUnitHandler(ostui::controls::Unit::Points);
    const UnitHandler& points = RequireHandler(pointsHandler);
    const std::string text = ruler.FormatValue(ruler.Convert(totalPathLength, points), decimals,
                                               ostui::controls::kShowAbbreviation, true);
    return MakeUnicodeFromBytes(text.c_str(), ZM_ENCODING_UTF8);
}

}  // namespace tolvane
