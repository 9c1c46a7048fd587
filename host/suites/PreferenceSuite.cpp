#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMPreferenceSuite.h>

#include <optional>
#include <string>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_PREFERENCE_SUITE_NAME;

// A preference needs at least its suffix.
std::string RequireKey(const char* prefix, const char* suffix) {
    RequireArguments(suffix);
    return Preferences::Key(prefix, suffix);
}

// Leaves *value alone when the preference is not set: it holds the caller's default.
template <typename Value, typename Stored>
void ReadInto(const std::optional<Stored>& stored, Value* value) {
    if (stored) {
        *value = static_cast<Value>(*stored);
    }
}

ZMErr ZM_API GetBooleanPreference(const char* prefix, const char* suffix, ZMBool* value) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        std::string key = RequireKey(prefix, suffix);
        RequireArguments(value);
        ReadInto(runtime.preferences.Boolean(key), value);  // true reads as 1
    });
}

ZMErr ZM_API PutBooleanPreference(const char* prefix, const char* suffix, ZMBool value) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        runtime.preferences.SetBoolean(RequireKey(prefix, suffix), value != 0);
    });
}

ZMErr ZM_API GetIntegerPreference(const char* prefix, const char* suffix, int32_t* value) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        std::string key = RequireKey(prefix, suffix);
        RequireArguments(value);
        ReadInto(runtime.preferences.Integer(key), value);
    });
}

ZMErr ZM_API PutIntegerPreference(const char* prefix, const char* suffix, int32_t value) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        runtime.preferences.SetInteger(RequireKey(prefix, suffix), value);
    });
}

ZMErr ZM_API GetRealPreference(const char* prefix, const char* suffix, double* value) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        std::string key = RequireKey(prefix, suffix);
        RequireArguments(value);
        ReadInto(runtime.preferences.Real(key), value);
    });
}

ZMErr ZM_API PutRealPreference(const char* prefix, const char* suffix, double value) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        runtime.preferences.SetReal(RequireKey(prefix, suffix), value);
    });
}

ZMErr ZM_API GetStringPreference(const char* prefix, const char* suffix, ZMUnicodeString value) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        std::string key = RequireKey(prefix, suffix);
        Deref(value);  // a null string is refused even when the preference is not set
        if (std::optional<std::string> stored = runtime.preferences.Text(key)) {
            AssignUtf8(value, *stored);
        }
    });
}

ZMErr ZM_API PutStringPreference(const char* prefix, const char* suffix, ZMUnicodeString value) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        runtime.preferences.Set(RequireKey(prefix, suffix), ToUtf8(value));
    });
}

ZMPreferenceSuite MakeTable() {
    ZMPreferenceSuite table{};
    table.GetBooleanPreference = GetBooleanPreference;
    table.PutBooleanPreference = PutBooleanPreference;
    table.GetIntegerPreference = GetIntegerPreference;
    table.PutIntegerPreference = PutIntegerPreference;
    table.GetRealPreference = GetRealPreference;
    table.PutRealPreference = PutRealPreference;
    table.GetStringPreference = GetStringPreference;
    table.PutStringPreference = PutStringPreference;
    return table;
}

const ZMPreferenceSuite kTable = MakeTable();

}  // namespace

void RegisterPreferenceSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PREFERENCE_SUITE_NAME, ZM_PREFERENCE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
