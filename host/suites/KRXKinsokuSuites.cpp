#include "suites/SuiteRegistrations.hpp"

#include "suites/EngineNamedSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXKinsokuSuites.h>

namespace zm::host {

namespace {

using Rule = EngineNamedSuite<ZM_KRX_KINSOKU_SUITE_NAME, KRXKinsokuSuite, KRXKinsokuRef>;
using RuleSet =
    EngineNamedSetSuite<ZM_KRX_KINSOKU_SET_SUITE_NAME, KRXKinsokuSetSuite, KRXKinsokuSetRef, KRXKinsokuRef>;

}  // namespace

void RegisterKRXKinsokuSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_KINSOKU_SUITE_NAME, ZM_KRX_KINSOKU_SUITE_VERSION, &Rule::kTable);
    registry.Add(ZM_KRX_KINSOKU_SET_SUITE_NAME, ZM_KRX_KINSOKU_SET_SUITE_VERSION, &RuleSet::kTable);
}

}  // namespace zm::host
