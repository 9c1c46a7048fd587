#include <zelmora/ZMFOConversionSuite.h>

#include "fonts/FontCatalogue.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_FO_CONVERSION_SUITE_NAME;

// A foreign object made by hand may hold no content record: it then names nothing.
const document::ForeignContent* ContentOf(Runtime& runtime, ZMArtHandle art) {
    CurrentDocument(runtime);
    return ArtOf(art, document::ArtType::ForeignObject).foreign.get();
}

void RequireVisitor(const void* visitor) {
    if (visitor == nullptr) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "no callback");
    }
}

void Visit(ZMErr result) {
    if (result != ZM_ERR_NONE) {
        throw HostError(result, "the callback stopped the enumeration");
    }
}

// The content's styles name families only, so each is the family's regular face, as a
// browser would draw text that asks for no weight or style.
ZMErr ZM_API EnumerateFonts(ZMArtHandle art, ZMFOFontVisitor visitor, void* data) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        const document::ForeignContent* content = ContentOf(runtime, art);
        RequireVisitor(reinterpret_cast<const void*>(visitor));
        if (content == nullptr) {
            return;
        }
        for (const std::string& family : content->fonts) {
            const fonts::CatalogueFont& font = runtime.fonts.Find({family});
            Visit(visitor(data, reinterpret_cast<ZMFontKey>(
                                    const_cast<fonts::CatalogueFont*>(&font))));
        }
    });
}

ZMErr ZM_API EnumerateContents(ZMArtHandle art, ZMFOContentVisitor visitor, void* data) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        const document::ForeignContent* content = ContentOf(runtime, art);
        RequireVisitor(reinterpret_cast<const void*>(visitor));
        ZMFOContentItem item{};
        item.kind = ZM_FO_CONTENT_TRANSPARENCY;
        item.value.flag = content != nullptr && content->transparent ? 1 : 0;
        Visit(visitor(data, &item));
        if (content == nullptr) {
            return;
        }
        if (!content->fonts.empty()) {
            item = ZMFOContentItem{};
            item.kind = ZM_FO_CONTENT_TEXT;
            item.value.flag = 1;
            Visit(visitor(data, &item));
        }
        for (document::CustomColor* color : content->customColors) {
            item = ZMFOContentItem{};
            item.kind = ZM_FO_CONTENT_CUSTOM_COLOR;
            item.value.customColor = reinterpret_cast<ZMCustomColorHandle>(color);
            Visit(visitor(data, &item));
        }
    });
}

ZMFOConversionSuite MakeTable() {
    ZMFOConversionSuite table{};
    table.EnumerateFonts = EnumerateFonts;
    table.EnumerateContents = EnumerateContents;
    return table;
}

const ZMFOConversionSuite kTable = MakeTable();

}  // namespace

void RegisterFOConversionSuite(SuiteRegistry& registry) {
    registry.Add(ZM_FO_CONVERSION_SUITE_NAME, ZM_FO_CONVERSION_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
