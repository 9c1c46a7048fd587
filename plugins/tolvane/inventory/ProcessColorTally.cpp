#include "inventory/ProcessColorTally.hpp"

#include "inventory/FetchedName.hpp"
#include "report/Error.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

GatherProcessColors* sGathering = nullptr;

}  // namespace

GatherProcessColors::GatherProcessColors(SurveyStringList& names, uint32_t& count)
    : previous_(sGathering), names_(names), count_(count) {
    sGathering = this;
}

GatherProcessColors::~GatherProcessColors() { sGathering = previous_; }

ZMErr AddProcessColor(ZMCustomColorHandle color) {
    if (sGathering == nullptr) {
        return ZM_ERR_NONE;
    }
    GatherProcessColors& tally = *sGathering;
    return zm::CodeOrNoMemory([&]() -> ZMErr {
        HostString name = FetchName(sCustomColorSuite->GetCustomColorName, color);
        if (LinkStrFind(tally.names_, name.Get())) {
            return ZM_ERR_NONE;
        }
        if (LinkStrAdd(tally.names_, name.Get(), false) != 0) {
            return ZM_ERR_NO_MEMORY;
        }
        ++tally.count_;
        return ZM_ERR_NONE;
    });
}

}  // namespace tolvane
