#include "suites/SuiteRegistrations.hpp"

#include "localization/NumberText.hpp"
#include "runtime/HostError.hpp"
#include "runtime/Runtime.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMStringFormatUtilsSuite.h>

#include <cmath>
#include <memory>
#include <string>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_STRING_FORMAT_UTILS_SUITE_NAME;
constexpr int32_t kKnownOptions = ZM_NUMBER_FORMAT_NO_GROUPING;

// What a ZMNumberFormat names; kept in Runtime::objects until the plug-in disposes of it.
struct NumberFormatObject {
    NumberText numbers;
    std::string localeTag;
};

NumberFormatObject& RequireFormat(Runtime& runtime, ZMNumberFormat format) {
    return runtime.objects.Require<NumberFormatObject>(format);
}

ZMErr ZM_API NewNumberFormat(int32_t options, ZMNumberFormat* format) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(format);
        if ((options & ~kKnownOptions) != 0) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown number format option");
        }
        bool grouping = (options & ZM_NUMBER_FORMAT_NO_GROUPING) == 0;
        auto object = std::make_unique<NumberFormatObject>(NumberFormatObject{
            NumberText(HostLocale(runtime.localizer), grouping), runtime.localizer.Locale()});
        *format = reinterpret_cast<ZMNumberFormat>(&runtime.objects.Add(std::move(object)));
    });
}

ZMErr ZM_API DisposeNumberFormat(ZMNumberFormat format) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        if (format != nullptr) {
            runtime.objects.Release<NumberFormatObject>(format);
        }
    });
}

ZMErr ZM_API FormatInteger(ZMNumberFormat format, int32_t value, ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const NumberFormatObject& object = RequireFormat(runtime, format);
        Deref(text) = object.numbers.Integer(value);
        RequireUsable(Deref(text));
    });
}

ZMErr ZM_API FormatReal(ZMNumberFormat format, double value, int32_t decimals,
                        ZMUnicodeString text) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const NumberFormatObject& object = RequireFormat(runtime, format);
        Deref(text);
        if (!std::isfinite(value)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not a finite number");
        }
        Deref(text) = object.numbers.Real(value, decimals, decimals);
        RequireUsable(Deref(text));
    });
}

ZMErr ZM_API ParseNumber(ZMNumberFormat format, ZMUnicodeString text, double* value) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const NumberFormatObject& object = RequireFormat(runtime, format);
        RequireArguments(value);
        std::optional<double> number = object.numbers.Parse(Read(text));
        if (!number) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "not a number");
        }
        *value = *number;
    });
}

ZMErr ZM_API GetFormatLocale(ZMNumberFormat format, ZMUnicodeString tag) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        AssignUtf8(tag, RequireFormat(runtime, format).localeTag);
    });
}

const ZMStringFormatUtilsSuite kTable = {
    NewNumberFormat,      // 0
    DisposeNumberFormat,  // 1
    FormatInteger,        // 2
    FormatReal,           // 3
    ParseNumber,          // 4
    GetFormatLocale,      // 5
};

}  // namespace

void RegisterStringFormatUtilsSuite(SuiteRegistry& registry) {
    registry.Add(ZM_STRING_FORMAT_UTILS_SUITE_NAME, ZM_STRING_FORMAT_UTILS_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
