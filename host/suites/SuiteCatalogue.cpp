#include "suites/SuiteCatalogue.hpp"

#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

void RegisterAllSuites(SuiteRegistry& registry) {
    RegisterFrameworkSuites(registry);
    RegisterContextSuite(registry);
    RegisterPXMBasicSuite(registry);
    RegisterUserSuite(registry);
    RegisterMenuSuite(registry);
    RegisterNotifierSuite(registry);
    RegisterUnicodeStringSuite(registry);
    RegisterArtSuite(registry);
    RegisterLayerSuite(registry);
    RegisterLayerListSuite(registry);
    RegisterMdMemorySuite(registry);
    RegisterMatchingArtSuite(registry);
    RegisterPendingSuites(registry);
}

}  // namespace zm::host
