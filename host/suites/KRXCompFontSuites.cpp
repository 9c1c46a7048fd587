#include "suites/SuiteRegistrations.hpp"

#include "suites/EngineNamedSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXCompFontSuites.h>

namespace zm::host {

namespace {

using Font = EngineNamedSuite<ZM_KRX_COMP_FONT_SUITE_NAME, KRXCompFontSuite, KRXCompFontRef>;
using FontClass = EngineNamedSuite<ZM_KRX_COMP_FONT_CLASS_SUITE_NAME, KRXCompFontClassSuite,
                                   KRXCompFontClassRef>;
using Component = EngineNamedSuite<ZM_KRX_COMP_FONT_COMPONENT_SUITE_NAME,
                                   KRXCompFontComponentSuite, KRXCompFontComponentRef>;
using FontSet = EngineNamedSetSuite<ZM_KRX_COMP_FONT_SET_SUITE_NAME, KRXCompFontSetSuite,
                                    KRXCompFontSetRef, KRXCompFontRef>;
using ClassSet = EngineNamedSetSuite<ZM_KRX_COMP_FONT_CLASS_SET_SUITE_NAME,
                                     KRXCompFontClassSetSuite, KRXCompFontClassSetRef,
                                     KRXCompFontClassRef>;

}  // namespace

void RegisterKRXCompFontSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_COMP_FONT_SUITE_NAME, ZM_KRX_COMP_FONT_SUITE_VERSION, &Font::kTable);
    registry.Add(ZM_KRX_COMP_FONT_CLASS_SUITE_NAME, ZM_KRX_COMP_FONT_CLASS_SUITE_VERSION,
                 &FontClass::kTable);
    registry.Add(ZM_KRX_COMP_FONT_COMPONENT_SUITE_NAME, ZM_KRX_COMP_FONT_COMPONENT_SUITE_VERSION,
                 &Component::kTable);
    registry.Add(ZM_KRX_COMP_FONT_SET_SUITE_NAME, ZM_KRX_COMP_FONT_SET_SUITE_VERSION,
                 &FontSet::kTable);
    registry.Add(ZM_KRX_COMP_FONT_CLASS_SET_SUITE_NAME, ZM_KRX_COMP_FONT_CLASS_SET_SUITE_VERSION,
                 &ClassSet::kTable);
}

}  // namespace zm::host
