#include "suites/DocumentTextStyles.hpp"

#include "suites/FontKeys.hpp"

#include <zelmora/KRXParagraphSuites.h>

namespace zm::host {

ParaStylesObject DocumentParaStyles() {
    ParaStyleObject normal{"Normal Paragraph Style", {}};
    normal.features.justification = KRX_PARAGRAPH_JUSTIFICATION_LEFT;
    return ParaStylesObject{{normal}};
}

CharStylesObject DocumentCharStyles(fonts::FontCatalogue& catalogue) {
    CharStyleObject normal{"Normal Character Style", {}};
    normal.features.font = &FindCatalogueFont(catalogue, kDefaultFontFamily, 400, "normal");
    normal.features.fontSize = 12;
    ZMFillStyle black{};
    black.color.kind = ZM_COLOR_THREE;  // RGB 0 0 0, as unpainted text is filled
    normal.features.fill = black;
    return CharStylesObject{{normal}};
}

}  // namespace zm::host
