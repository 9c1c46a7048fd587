#include "suites/SuiteRegistrations.hpp"

#include "suites/EngineListSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXTextRangeSuites.h>

namespace zm::host {

namespace {

using Ranges = EngineListSuite<ZM_KRX_TEXT_RANGES_SUITE_NAME, KRXTextRangesRef, KRXTextRangeRef>;

const KRXTextRangesSuite kTable = {
    Ranges::Create,   // 0
    Ranges::AddRef,   // 1
    Ranges::Release,  // 2
    Ranges::GetSize,  // 3
    Ranges::Item,     // 4
    Ranges::Append,   // 5
};

}  // namespace

void RegisterKRXTextRangesSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_RANGES_SUITE_NAME, ZM_KRX_TEXT_RANGES_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
