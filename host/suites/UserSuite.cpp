#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMUserSuite.h>

namespace zm::host {

namespace {

void Record(Runtime& runtime, AlertKind kind, ZMUnicodeString text) {
    runtime.alerts.push_back({kind, ToUtf8(text)});
}

ZMErr ZM_API WarningAlert(ZMUnicodeString text, const char* /*dontAskKey: never silenced here*/) {
    return GuardSuiteCall(ZM_USER_SUITE_NAME, 37,
                          [&](Runtime& runtime) { Record(runtime, AlertKind::Warning, text); });
}

ZMErr ZM_API ErrorAlert(ZMUnicodeString text) {
    return GuardSuiteCall(ZM_USER_SUITE_NAME, 41,
                          [&](Runtime& runtime) { Record(runtime, AlertKind::Error, text); });
}

ZMErr ZM_API MessageAlert(ZMUnicodeString text) {
    return GuardSuiteCall(ZM_USER_SUITE_NAME, 42,
                          [&](Runtime& runtime) { Record(runtime, AlertKind::Message, text); });
}

ZMUserSuite MakeTable() {
    ZMUserSuite table{};
    table.WarningAlert = WarningAlert;
    table.ErrorAlert = ErrorAlert;
    table.MessageAlert = MessageAlert;
    return table;
}

const ZMUserSuite kTable = MakeTable();

}  // namespace

void RegisterUserSuite(SuiteRegistry& registry) {
    registry.Add(ZM_USER_SUITE_NAME, ZM_USER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
