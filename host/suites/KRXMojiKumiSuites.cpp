#include "suites/SuiteRegistrations.hpp"

#include "suites/EngineNamedSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXMojiKumiSuites.h>

namespace zm::host {

namespace {

using Rule = EngineNamedSuite<ZM_KRX_MOJI_KUMI_SUITE_NAME, KRXMojiKumiSuite, KRXMojiKumiRef>;
using RuleSet =
    EngineNamedSetSuite<ZM_KRX_MOJI_KUMI_SET_SUITE_NAME, KRXMojiKumiSetSuite, KRXMojiKumiSetRef, KRXMojiKumiRef>;

}  // namespace

void RegisterKRXMojiKumiSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_MOJI_KUMI_SUITE_NAME, ZM_KRX_MOJI_KUMI_SUITE_VERSION, &Rule::kTable);
    registry.Add(ZM_KRX_MOJI_KUMI_SET_SUITE_NAME, ZM_KRX_MOJI_KUMI_SET_SUITE_VERSION, &RuleSet::kTable);
}

}  // namespace zm::host
