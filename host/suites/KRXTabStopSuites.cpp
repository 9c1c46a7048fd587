#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineListSuite.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXTabStopSuites.h>

#include <cmath>
#include <vector>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_TAB_STOP_SUITE_NAME;

ZMErr ZM_API Create(KRXTabStopRef* tabStop) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(tabStop);
        *tabStop = AddCounted<KRXTabStopRef>(runtime, TabStopObject{});
    });
}

ZMErr ZM_API AddRef(KRXTabStopRef tabStop) {
    return RetainEntry<TabStopObject>(kSuite, 1, tabStop);
}

ZMErr ZM_API Release(KRXTabStopRef tabStop) {
    return ReleaseEntry<TabStopObject>(kSuite, 2, tabStop);
}

ZMErr ZM_API GetPosition(KRXTabStopRef tabStop, double* position) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const TabStopObject& object = RequireObject(runtime, tabStop);
        RequireArguments(position);
        *position = object.position;
    });
}

ZMErr ZM_API SetPosition(KRXTabStopRef tabStop, double position) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        TabStopObject& object = RequireObject(runtime, tabStop);
        if (!(position >= 0) || !std::isfinite(position)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a tab stop sits at 0 or after");
        }
        object.position = position;
    });
}

const KRXTabStopSuite kTable = {
    Create,       // 0
    AddRef,       // 1
    Release,      // 2
    GetPosition,  // 3
    SetPosition,  // 4
};

using TabStops = EngineListSuite<ZM_KRX_TAB_STOPS_SUITE_NAME, KRXTabStopsRef, KRXTabStopRef>;

const KRXTabStopsSuite kListTable = {
    TabStops::Create,   // 0
    TabStops::AddRef,   // 1
    TabStops::Release,  // 2
    TabStops::GetSize,  // 3
    TabStops::Item,     // 4
    TabStops::Append,   // 5
};

std::vector<TabStopObject> ListedTabStops(Runtime&, const TabStopsObject& tabStops) {
    return tabStops.values;
}

using TabStopsIterator =
    EngineIteratorSuite<ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME, KRXTabStopsIteratorSuite,
                        KRXTabStopsIteratorRef, KRXTabStopsRef, KRXTabStopRef, ListedTabStops>;

}  // namespace

void RegisterKRXTabStopSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TAB_STOP_SUITE_NAME, ZM_KRX_TAB_STOP_SUITE_VERSION, &kTable);
    registry.Add(ZM_KRX_TAB_STOPS_SUITE_NAME, ZM_KRX_TAB_STOPS_SUITE_VERSION, &kListTable);
    registry.Add(ZM_KRX_TAB_STOPS_ITERATOR_SUITE_NAME, ZM_KRX_TAB_STOPS_ITERATOR_SUITE_VERSION,
                 &TabStopsIterator::kTable);
}

}  // namespace zm::host
