#pragma once

#include "registry/SuiteRegistry.hpp"

namespace zm::host {

// One per suite file: adds that file's tables to the registry.
void RegisterFrameworkSuites(SuiteRegistry& registry);
void RegisterContextSuite(SuiteRegistry& registry);
void RegisterPXMBasicSuite(SuiteRegistry& registry);
void RegisterUserSuite(SuiteRegistry& registry);
void RegisterMenuSuite(SuiteRegistry& registry);
void RegisterNotifierSuite(SuiteRegistry& registry);
void RegisterUnicodeStringSuite(SuiteRegistry& registry);
void RegisterDocumentSuite(SuiteRegistry& registry);
void RegisterArtboardSuite(SuiteRegistry& registry);
void RegisterDictionarySuite(SuiteRegistry& registry);
void RegisterPreferenceSuite(SuiteRegistry& registry);
void RegisterFilePathSuite(SuiteRegistry& registry);
void RegisterCustomColorSuite(SuiteRegistry& registry);
void RegisterGradientSuite(SuiteRegistry& registry);
void RegisterPatternSuite(SuiteRegistry& registry);
void RegisterArtStyleSuite(SuiteRegistry& registry);
void RegisterArtStyleParserSuite(SuiteRegistry& registry);
void RegisterBlendStyleSuite(SuiteRegistry& registry);
void RegisterBrushMgrSuite(SuiteRegistry& registry);
void RegisterPendingSuites(SuiteRegistry& registry);

}  // namespace zm::host
