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
    RegisterDocumentSuite(registry);
    RegisterArtboardSuite(registry);
    RegisterDictionarySuite(registry);
    RegisterPreferenceSuite(registry);
    RegisterFilePathSuite(registry);
    RegisterCustomColorSuite(registry);
    RegisterGradientSuite(registry);
    RegisterPatternSuite(registry);
    RegisterArtStyleSuite(registry);
    RegisterArtStyleParserSuite(registry);
    RegisterBlendStyleSuite(registry);
    RegisterBrushMgrSuite(registry);
    RegisterPendingSuites(registry);
}

}  // namespace zm::host
