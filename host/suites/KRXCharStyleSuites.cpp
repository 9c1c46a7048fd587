#include "suites/SuiteRegistrations.hpp"

#include "suites/CurrentDocument.hpp"
#include "suites/DocumentTextStyles.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineListSuite.hpp"
#include "suites/EngineStyleSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXCharSuites.h>

#include <vector>

namespace zm::host {

namespace {

using Style = EngineStyleSuite<ZM_KRX_CHAR_STYLE_SUITE_NAME, KRXCharStyleSuite, KRXCharStyleRef,
                               KRXCharFeaturesRef>;
using Styles = EngineListSuite<ZM_KRX_CHAR_STYLES_SUITE_NAME, KRXCharStylesRef, KRXCharStyleRef>;

ZMErr ZM_API GetDocumentCharStyles(KRXCharStylesRef* styles) {
    return GuardSuiteCall(ZM_KRX_CHAR_STYLES_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(styles);
        *styles = AddCounted<KRXCharStylesRef>(runtime, DocumentCharStyles(runtime.fonts));
    });
}

const KRXCharStylesSuite kStylesTable = {
    GetDocumentCharStyles,  // 0
    Styles::AddRef,         // 1
    Styles::Release,        // 2
    Styles::GetSize,        // 3
    Styles::Item,           // 4
};

std::vector<CharStyleObject> ListedStyles(Runtime&, const CharStylesObject& styles) {
    return styles.values;
}

using StylesIterator =
    EngineIteratorSuite<ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME, KRXCharStylesIteratorSuite,
                        KRXCharStylesIteratorRef, KRXCharStylesRef, KRXCharStyleRef, ListedStyles>;

}  // namespace

void RegisterKRXCharStyleSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_CHAR_STYLE_SUITE_NAME, ZM_KRX_CHAR_STYLE_SUITE_VERSION, &Style::kTable);
    registry.Add(ZM_KRX_CHAR_STYLES_SUITE_NAME, ZM_KRX_CHAR_STYLES_SUITE_VERSION, &kStylesTable);
    registry.Add(ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_NAME,
                 ZM_KRX_CHAR_STYLES_ITERATOR_SUITE_VERSION, &StylesIterator::kTable);
}

}  // namespace zm::host
