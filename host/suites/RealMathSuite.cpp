#include <zelmora/ZMRealMathSuite.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

void RequireNumbers(std::initializer_list<double> values) {
    for (double value : values) {
        if (std::isnan(value)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not a number");
        }
    }
}

ZMErr ZM_API EqualWithinTol(double a, double b, double tolerance, ZMBool* equal) {
    return GuardSuiteCall(ZM_REAL_MATH_SUITE_NAME, 0, [&](Runtime&) {
        RequireArguments(equal);
        RequireNumbers({a, b, tolerance});
        if (tolerance < 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "negative tolerance");
        }
        *equal = std::abs(a - b) <= tolerance ? 1 : 0;
    });
}

ZMErr ZM_API AbsReal(double a, double* result) {
    return GuardSuiteCall(ZM_REAL_MATH_SUITE_NAME, 1, [&](Runtime&) {
        RequireArguments(result);
        RequireNumbers({a});
        *result = std::abs(a);
    });
}

ZMErr ZM_API MinReal(double a, double b, double* result) {
    return GuardSuiteCall(ZM_REAL_MATH_SUITE_NAME, 2, [&](Runtime&) {
        RequireArguments(result);
        RequireNumbers({a, b});
        *result = std::min(a, b);
    });
}

ZMErr ZM_API MaxReal(double a, double b, double* result) {
    return GuardSuiteCall(ZM_REAL_MATH_SUITE_NAME, 3, [&](Runtime&) {
        RequireArguments(result);
        RequireNumbers({a, b});
        *result = std::max(a, b);
    });
}

ZMErr ZM_API ClampReal(double a, double low, double high, double* result) {
    return GuardSuiteCall(ZM_REAL_MATH_SUITE_NAME, 4, [&](Runtime&) {
        RequireArguments(result);
        RequireNumbers({a, low, high});
        if (low > high) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "low above high");
        }
        *result = std::clamp(a, low, high);
    });
}

ZMErr ZM_API PointDistance(const ZMRealPoint* a, const ZMRealPoint* b, double* distance) {
    return GuardSuiteCall(ZM_REAL_MATH_SUITE_NAME, 5, [&](Runtime&) {
        RequireArguments(a, b, distance);
        RequireNumbers({a->x, a->y, b->x, b->y});
        *distance = std::hypot(b->x - a->x, b->y - a->y);
    });
}

ZMRealMathSuite MakeTable() {
    ZMRealMathSuite table{};
    table.EqualWithinTol = EqualWithinTol;
    table.AbsReal = AbsReal;
    table.MinReal = MinReal;
    table.MaxReal = MaxReal;
    table.ClampReal = ClampReal;
    table.PointDistance = PointDistance;
    return table;
}

const ZMRealMathSuite kTable = MakeTable();

}  // namespace

void RegisterRealMathSuite(SuiteRegistry& registry) {
    registry.Add(ZM_REAL_MATH_SUITE_NAME, ZM_REAL_MATH_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
