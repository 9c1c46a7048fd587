#include "suites/SuiteRegistrations.hpp"

#include "suites/CurrentDocument.hpp"
#include "suites/DocumentTextStyles.hpp"
#include "suites/EngineIteratorSuite.hpp"
#include "suites/EngineListSuite.hpp"
#include "suites/EngineStyleSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXParagraphSuites.h>

#include <vector>

namespace zm::host {

namespace {

using Style = EngineStyleSuite<ZM_KRX_PARA_STYLE_SUITE_NAME, KRXParaStyleSuite, KRXParaStyleRef,
                               KRXParaFeaturesRef>;
using Styles = EngineListSuite<ZM_KRX_PARA_STYLES_SUITE_NAME, KRXParaStylesRef, KRXParaStyleRef>;

ZMErr ZM_API GetDocumentParaStyles(KRXParaStylesRef* styles) {
    return GuardSuiteCall(ZM_KRX_PARA_STYLES_SUITE_NAME, 0, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(styles);
        *styles = AddCounted<KRXParaStylesRef>(runtime, DocumentParaStyles());
    });
}

const KRXParaStylesSuite kStylesTable = {
    GetDocumentParaStyles,  // 0
    Styles::AddRef,         // 1
    Styles::Release,        // 2
    Styles::GetSize,        // 3
    Styles::Item,           // 4
};

std::vector<ParaStyleObject> ListedStyles(Runtime&, const ParaStylesObject& styles) {
    return styles.values;
}

using StylesIterator =
    EngineIteratorSuite<ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME, KRXParaStylesIteratorSuite,
                        KRXParaStylesIteratorRef, KRXParaStylesRef, KRXParaStyleRef, ListedStyles>;

}  // namespace

void RegisterKRXParaStyleSuites(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_PARA_STYLE_SUITE_NAME, ZM_KRX_PARA_STYLE_SUITE_VERSION, &Style::kTable);
    registry.Add(ZM_KRX_PARA_STYLES_SUITE_NAME, ZM_KRX_PARA_STYLES_SUITE_VERSION, &kStylesTable);
    registry.Add(ZM_KRX_PARA_STYLES_ITERATOR_SUITE_NAME,
                 ZM_KRX_PARA_STYLES_ITERATOR_SUITE_VERSION, &StylesIterator::kTable);
}

}  // namespace zm::host
