#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

#include "fonts/FontCatalogue.hpp"

#include <zelmora/ZMFontSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_FONT_GLUE_SUITE_NAME;

ZMErr ZM_API GetAlternateNameSetting(int32_t* setting) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(setting);
        bool on = runtime.preferences.Boolean(ZM_FONT_ALTERNATE_NAMES_PREFERENCE).value_or(false);
        *setting = on ? 1 : 0;
    });
}

ZMErr ZM_API CountDesignAxes(ZMPlatformFont font, int32_t* count) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        RequireArguments(font, count);
        *count = runtime.fonts.RequireProgram(font).DesignAxisCount();
    });
}

ZMFontGlueSuite MakeTable() {
    ZMFontGlueSuite table{};
    table.GetAlternateNameSetting = GetAlternateNameSetting;
    table.CountDesignAxes = CountDesignAxes;
    return table;
}

const ZMFontGlueSuite kTable = MakeTable();

}  // namespace

void RegisterFontGlueSuite(SuiteRegistry& registry) {
    registry.Add(ZM_FONT_GLUE_SUITE_NAME, ZM_FONT_GLUE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
