#pragma once

#include "survey/SurveyStringList.hpp"

#include <zelmora/ZMArtTypes.h>
#include <zelmora/ZMTypes.h>

#include <cstdint>

namespace tolvane {

// While it lives, the process swatches the collectors meet are gathered into names (each
// once) and counted in count. Only the close-time statistics ask for them; the panel's
// report has no place for process swatches, so outside such a scope nothing is gathered.
class GatherProcessColors {
public:
    GatherProcessColors(SurveyStringList& names, uint32_t& count);
    ~GatherProcessColors();
    GatherProcessColors(const GatherProcessColors&) = delete;
    GatherProcessColors& operator=(const GatherProcessColors&) = delete;

private:
    GatherProcessColors* previous_;
    SurveyStringList& names_;
    uint32_t& count_;

    friend ZMErr AddProcessColor(ZMCustomColorHandle color);
};

// Lists the swatch by name the first time it is met and counts it, inside a
// GatherProcessColors scope; nothing otherwise. 0, or the host's code of the failing query
// ('!MEM' when the list cannot grow).
ZMErr AddProcessColor(ZMCustomColorHandle color);

}  // namespace tolvane
