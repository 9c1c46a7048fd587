#include "suites/SuiteRegistrations.hpp"

#include "suites/KRXArraySuite.hpp"

#include <zelmora/KRXArraySuites.h>

namespace zm::host {

// One table per array suite, each an instance of the one array template over the suite's own
// item type; the name and version constants are paired so that a row cannot mix two suites.
#define ZM_ARRAY_SUITE(Name, SUITE, Item) \
    registry.Add(                         \
        SUITE##_NAME, SUITE##_VERSION,    \
        &KRXArraySuite<SUITE##_NAME, KRXArray##Name##Suite, KRXArray##Name##Ref, Item>::kTable)

void RegisterKRXArraySuites(SuiteRegistry& registry) {
    ZM_ARRAY_SUITE(ApplicationPaintRef, ZM_KRX_ARRAY_APPLICATION_PAINT_REF_SUITE,
                   KRXApplicationPaintRef);
    ZM_ARRAY_SUITE(Real, ZM_KRX_ARRAY_REAL_SUITE, double);
    ZM_ARRAY_SUITE(FontRef, ZM_KRX_ARRAY_FONT_REF_SUITE, KRXFontRef);
}

#undef ZM_ARRAY_SUITE

}  // namespace zm::host
