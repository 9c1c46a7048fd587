#include "suites/ColorRecords.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/DocumentResources.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMGradientSuite.h>

#include <limits>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_GRADIENT_SUITE_NAME;

// The model's gradients blend evenly between two stops, as SVG draws them: every midpoint
// sits halfway.
constexpr double kEvenMidpoint = 0.5;

document::Gradient& RequireGradient(ZMGradientHandle gradient) {
    return RequireResource(RequireCurrentDocument().gradients, gradient);
}

ZMErr ZM_API CountGradients(int32_t* count) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(count);
        *count = CountResources(document.gradients);
    });
}

ZMErr ZM_API GetNthGradient(int32_t index, ZMGradientHandle* gradient) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(gradient);
        *gradient = NthResource<ZMGradientHandle>(document.gradients, index);
    });
}

ZMErr ZM_API GetGradientName(ZMGradientHandle gradient, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 2,
                          [&](Runtime&) { AssignUtf8(name, RequireGradient(gradient).name); });
}

ZMErr ZM_API GetGradientType(ZMGradientHandle gradient, int16_t* type) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        const document::Gradient& held = RequireGradient(gradient);
        RequireArguments(type);
        *type = static_cast<int16_t>(held.type);
    });
}

ZMErr ZM_API GetGradientStopCount(ZMGradientHandle gradient, int16_t* count) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const document::Gradient& held = RequireGradient(gradient);
        RequireArguments(count);
        if (held.stops.size() > static_cast<std::size_t>(std::numeric_limits<int16_t>::max())) {
            throw HostError(ZM_ERR_INTERNAL, "too many gradient stops to count");
        }
        *count = static_cast<int16_t>(held.stops.size());
    });
}

ZMErr ZM_API GetNthGradientStop(ZMGradientHandle gradient, int16_t index, ZMGradientStop* stop) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime&) {
        const document::Gradient& held = RequireGradient(gradient);
        RequireArguments(stop);
        if (index < 0 || static_cast<std::size_t>(index) >= held.stops.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "gradient stop index out of range");
        }
        const document::GradientStop& source = held.stops[static_cast<std::size_t>(index)];
        *stop = ZMGradientStop{};
        stop->offset = source.offset;
        stop->midpoint = kEvenMidpoint;
        stop->opacity = source.opacity;
        stop->color = ToColorRecord(source.color);
    });
}

ZMGradientSuite MakeTable() {
    ZMGradientSuite table{};
    table.CountGradients = CountGradients;
    table.GetNthGradient = GetNthGradient;
    table.GetGradientName = GetGradientName;
    table.GetGradientType = GetGradientType;
    table.GetGradientStopCount = GetGradientStopCount;
    table.GetNthGradientStop = GetNthGradientStop;
    return table;
}

const ZMGradientSuite kTable = MakeTable();

}  // namespace

void RegisterGradientSuite(SuiteRegistry& registry) {
    registry.Add(ZM_GRADIENT_SUITE_NAME, ZM_GRADIENT_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
