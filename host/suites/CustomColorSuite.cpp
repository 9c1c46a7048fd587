#include "suites/CurrentDocument.hpp"
#include "suites/DocumentResources.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMCustomColorSuite.h>

#include <string>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_CUSTOM_COLOR_SUITE_NAME;

document::CustomColor& RequireColor(ZMCustomColorHandle color) {
    return RequireResource(RequireCurrentDocument().swatches, color);
}

ZMCustomColor ToRecord(const document::CustomColor& color) {
    ZMCustomColor record{};
    record.kind = static_cast<int16_t>(color.kind);
    switch (color.kind) {
        case document::CustomColorKind::Cmyk:
            record.c.four = {color.cmyk[0], color.cmyk[1], color.cmyk[2], color.cmyk[3]};
            break;
        case document::CustomColorKind::Rgb:
            record.c.three = {color.rgb[0], color.rgb[1], color.rgb[2]};
            break;
        case document::CustomColorKind::Lab:
            record.c.lab = {color.lab[0], color.lab[1], color.lab[2]};
            break;
    }
    record.flags = color.spot ? ZM_CUSTOM_COLOR_SPOT : 0;
    return record;
}

ZMErr ZM_API CountCustomColors(int32_t* count) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(count);
        *count = CountResources(document.swatches);
    });
}

ZMErr ZM_API GetNthCustomColor(int32_t index, ZMCustomColorHandle* color) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(color);
        *color = NthResource<ZMCustomColorHandle>(document.swatches, index);
    });
}

ZMErr ZM_API GetCustomColor(ZMCustomColorHandle color, ZMCustomColor* record) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime&) {
        const document::CustomColor& swatch = RequireColor(color);
        RequireArguments(record);
        *record = ToRecord(swatch);
    });
}

ZMErr ZM_API GetCustomColorName(ZMCustomColorHandle color, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) { AssignUtf8(name, RequireColor(color).name); });
}

ZMErr ZM_API FindCustomColor(ZMUnicodeString name, ZMCustomColorHandle* color) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(color);
        std::string wanted = ToUtf8(name);
        for (const auto& swatch : document.swatches) {
            if (swatch->name == wanted) {
                *color = reinterpret_cast<ZMCustomColorHandle>(swatch.get());
                return;
            }
        }
        throw HostError(ZM_ERR_NOT_FOUND, "no custom colour named " + wanted);
    });
}

ZMCustomColorSuite MakeTable() {
    ZMCustomColorSuite table{};
    table.CountCustomColors = CountCustomColors;
    table.GetNthCustomColor = GetNthCustomColor;
    table.GetCustomColor = GetCustomColor;
    table.GetCustomColorName = GetCustomColorName;
    table.FindCustomColor = FindCustomColor;
    return table;
}

const ZMCustomColorSuite kTable = MakeTable();

}  // namespace

void RegisterCustomColorSuite(SuiteRegistry& registry) {
    registry.Add(ZM_CUSTOM_COLOR_SUITE_NAME, ZM_CUSTOM_COLOR_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
