#include <zelmora/ZMLayerSuite.h>

#include "suites/CurrentDocument.hpp"
#include "suites/LayerHandles.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"

namespace zm::host {

namespace {

ZMErr ZM_API GetCurrentLayerList(ZMLayerList* list) {
    return GuardSuiteCall(ZM_LAYER_LIST_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(list);
        *list = LayerListOf(document);
    });
}

ZMErr ZM_API CountLayersOfList(ZMLayerList list, int32_t* count) {
    return GuardSuiteCall(ZM_LAYER_LIST_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::Document& document = DocumentOfList(CurrentDocument(runtime), list);
        RequireArguments(count);
        *count = static_cast<int32_t>(document.layers.size());
    });
}

ZMErr ZM_API GetFirstLayerOfList(ZMLayerList list, ZMLayerHandle* layer) {
    return GuardSuiteCall(ZM_LAYER_LIST_SUITE_NAME, 2, [&](Runtime& runtime) {
        const document::Document& document = DocumentOfList(CurrentDocument(runtime), list);
        RequireArguments(layer);
        *layer = document.layers.empty() ? nullptr : HandleOf(document.layers.front().get());
    });
}

ZMErr ZM_API GetNextLayerOfList(ZMLayerList list, ZMLayerHandle layer, ZMLayerHandle* next) {
    return GuardSuiteCall(ZM_LAYER_LIST_SUITE_NAME, 3, [&](Runtime& runtime) {
        const document::Document& document = DocumentOfList(CurrentDocument(runtime), list);
        RequireArguments(next);
        std::size_t following = LayerIndex(document, layer) + 1;
        *next = following < document.layers.size() ? HandleOf(document.layers[following].get())
                                                   : nullptr;
    });
}

ZMLayerListSuite MakeTable() {
    ZMLayerListSuite table{};
    table.GetCurrentLayerList = GetCurrentLayerList;
    table.CountLayersOfList = CountLayersOfList;
    table.GetFirstLayerOfList = GetFirstLayerOfList;
    table.GetNextLayerOfList = GetNextLayerOfList;
    return table;
}

const ZMLayerListSuite kTable = MakeTable();

}  // namespace

void RegisterLayerListSuite(SuiteRegistry& registry) {
    registry.Add(ZM_LAYER_LIST_SUITE_NAME, ZM_LAYER_LIST_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
