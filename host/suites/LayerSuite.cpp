#include <unicode/unistr.h>
#include <zelmora/ZMLayerSuite.h>

#include <cstddef>

#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/LayerHandles.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API CountLayers(int32_t* count) {
    return GuardSuiteCall(ZM_LAYER_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(count);
        *count = static_cast<int32_t>(document.layers.size());
    });
}

ZMErr ZM_API GetNthLayer(int32_t index, ZMLayerHandle* layer) {
    return GuardSuiteCall(ZM_LAYER_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(layer);
        if (index < 0 || static_cast<std::size_t>(index) >= document.layers.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no layer at that index");
        }
        *layer = HandleOf(document.layers[static_cast<std::size_t>(index)].get());
    });
}

ZMErr ZM_API GetLayerTitle(ZMLayerHandle layer, ZMUnicodeString* title) {
    return GuardSuiteCall(ZM_LAYER_SUITE_NAME, 2, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(title);
        *title = MakeHandle(icu::UnicodeString::fromUTF8(LayerOf(document, layer).name));
    });
}

ZMErr ZM_API GetFirstArtOfLayer(ZMLayerHandle layer, ZMArtHandle* art) {
    return GuardSuiteCall(ZM_LAYER_SUITE_NAME, 3, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(art);
        const auto& members = LayerOf(document, layer).root->Children();
        *art = members.empty() ? nullptr : HandleOf(members.front().get());
    });
}

ZMErr ZM_API GetCurrentLayer(ZMLayerHandle* layer) {
    return GuardSuiteCall(ZM_LAYER_SUITE_NAME, 4, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(layer);
        if (document.layers.empty()) {
            throw HostError(ZM_ERR_NOT_FOUND, "the document has no layers");
        }
        *layer = HandleOf(document.layers.front().get());
    });
}

ZMLayerSuite MakeTable() {
    ZMLayerSuite table{};
    table.CountLayers = CountLayers;
    table.GetNthLayer = GetNthLayer;
    table.GetLayerTitle = GetLayerTitle;
    table.GetFirstArtOfLayer = GetFirstArtOfLayer;
    table.GetCurrentLayer = GetCurrentLayer;
    return table;
}

const ZMLayerSuite kTable = MakeTable();

}  // namespace

void RegisterLayerSuite(SuiteRegistry& registry) {
    registry.Add(ZM_LAYER_SUITE_NAME, ZM_LAYER_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
