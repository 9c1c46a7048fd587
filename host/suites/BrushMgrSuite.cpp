#include "suites/CurrentDocument.hpp"
#include "suites/DocumentResources.hpp"
#include "suites/InternTable.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMBrushMgrSuite.h>

#include <string>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_BRUSH_MGR_SUITE_NAME;

// Brush types are named by their titles; one handle per title, for the whole process.
InternTable& BrushTypes() {
    static InternTable types;
    return types;
}

document::Brush& RequireBrush(ZMBrushHandle brush) {
    return RequireResource(RequireCurrentDocument().brushes, brush);
}

ZMErr ZM_API CountBrushes(int32_t* count) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(count);
        *count = CountResources(document.brushes);
    });
}

ZMErr ZM_API GetNthBrush(int32_t index, ZMBrushHandle* brush) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(brush);
        *brush = NthResource<ZMBrushHandle>(document.brushes, index);
    });
}

ZMErr ZM_API GetBrushForLiveEffect(ZMLiveEffectHandle effect, ZMBrushHandle* brush) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        const auto* held = reinterpret_cast<const document::LiveEffect*>(effect);
        if (held == nullptr || !document.artStyles.Holds(held)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "unknown live effect");
        }
        RequireArguments(brush);
        *brush = reinterpret_cast<ZMBrushHandle>(held->brush);
    });
}

ZMErr ZM_API GetBrushName(ZMBrushHandle brush, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) { AssignUtf8(name, RequireBrush(brush).name); });
}

ZMErr ZM_API GetBrushType(ZMBrushHandle brush, ZMBrushTypeHandle* type) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const document::Brush& held = RequireBrush(brush);
        RequireArguments(type);
        const std::string& title = BrushTypes().Intern(held.typeTitle);
        *type = reinterpret_cast<ZMBrushTypeHandle>(const_cast<std::string*>(&title));
    });
}

ZMErr ZM_API GetBrushTypeTitle(ZMBrushTypeHandle type, const char** title) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime&) {
        const std::string& held = BrushTypes().Require(type);
        RequireArguments(title);
        *title = held.c_str();
    });
}

ZMBrushMgrSuite MakeTable() {
    ZMBrushMgrSuite table{};
    table.CountBrushes = CountBrushes;
    table.GetNthBrush = GetNthBrush;
    table.GetBrushForLiveEffect = GetBrushForLiveEffect;
    table.GetBrushName = GetBrushName;
    table.GetBrushType = GetBrushType;
    table.GetBrushTypeTitle = GetBrushTypeTitle;
    return table;
}

const ZMBrushMgrSuite kTable = MakeTable();

}  // namespace

void RegisterBrushMgrSuite(SuiteRegistry& registry) {
    registry.Add(ZM_BRUSH_MGR_SUITE_NAME, ZM_BRUSH_MGR_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
