#include "suites/CurrentDocument.hpp"
#include "suites/DocumentResources.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMPatternSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_PATTERN_SUITE_NAME;

document::Pattern& RequirePattern(ZMPatternHandle pattern) {
    return RequireResource(RequireCurrentDocument().patterns, pattern);
}

ZMErr ZM_API CountPatterns(int32_t* count) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(count);
        *count = CountResources(document.patterns);
    });
}

ZMErr ZM_API GetNthPattern(int32_t index, ZMPatternHandle* pattern) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(pattern);
        *pattern = NthResource<ZMPatternHandle>(document.patterns, index);
    });
}

ZMErr ZM_API GetPatternName(ZMPatternHandle pattern, ZMUnicodeString name) {
    return GuardSuiteCall(kSuite, 2,
                          [&](Runtime&) { AssignUtf8(name, RequirePattern(pattern).name); });
}

ZMErr ZM_API GetPatternArt(ZMPatternHandle pattern, ZMArtHandle* art) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        const document::Pattern& held = RequirePattern(pattern);
        RequireArguments(art);
        *art = reinterpret_cast<ZMArtHandle>(held.art.get());
    });
}

ZMPatternSuite MakeTable() {
    ZMPatternSuite table{};
    table.CountPatterns = CountPatterns;
    table.GetNthPattern = GetNthPattern;
    table.GetPatternName = GetPatternName;
    table.GetPatternArt = GetPatternArt;
    return table;
}

const ZMPatternSuite kTable = MakeTable();

}  // namespace

void RegisterPatternSuite(SuiteRegistry& registry) {
    registry.Add(ZM_PATTERN_SUITE_NAME, ZM_PATTERN_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
