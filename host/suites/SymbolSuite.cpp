#include <unicode/unistr.h>
#include <zelmora/ZMSymbolSuite.h>

#include <cstddef>

#include "document/Resources.hpp"
#include "suites/ArtHandles.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

namespace zm::host {

namespace {

// A symbol handle is the address of a model Symbol of the current document.
ZMSymbolHandle HandleOf(const document::Symbol* symbol) {
    return reinterpret_cast<ZMSymbolHandle>(const_cast<document::Symbol*>(symbol));
}

const document::Symbol& SymbolOf(const document::Document& document, ZMSymbolHandle handle) {
    for (const auto& symbol : document.symbols) {
        if (HandleOf(symbol.get()) == handle) {
            return *symbol;
        }
    }
    throw HostError(ZM_ERR_BAD_ARGUMENT, "not a symbol of the current document");
}

ZMErr ZM_API CountSymbols(int32_t* count) {
    return GuardSuiteCall(ZM_SYMBOL_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(count);
        *count = static_cast<int32_t>(document.symbols.size());
    });
}

ZMErr ZM_API GetNthSymbol(int32_t index, ZMSymbolHandle* symbol) {
    return GuardSuiteCall(ZM_SYMBOL_SUITE_NAME, 1, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(symbol);
        if (index < 0 || static_cast<std::size_t>(index) >= document.symbols.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no symbol at that index");
        }
        *symbol = HandleOf(document.symbols[static_cast<std::size_t>(index)].get());
    });
}

ZMErr ZM_API GetSymbolName(ZMSymbolHandle symbol, ZMUnicodeString* name) {
    return GuardSuiteCall(ZM_SYMBOL_SUITE_NAME, 2, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(name);
        *name = MakeHandle(icu::UnicodeString::fromUTF8(SymbolOf(document, symbol).name));
    });
}

ZMErr ZM_API GetSymbolDefinitionArt(ZMSymbolHandle symbol, ZMArtHandle* art) {
    return GuardSuiteCall(ZM_SYMBOL_SUITE_NAME, 3, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(art);
        *art = host::HandleOf(SymbolOf(document, symbol).definition.get());
    });
}

ZMErr ZM_API GetSymbolOfInstance(ZMArtHandle instance, ZMSymbolHandle* symbol) {
    return GuardSuiteCall(ZM_SYMBOL_SUITE_NAME, 4, [&](Runtime& runtime) {
        CurrentDocument(runtime);
        RequireArguments(symbol);
        *symbol = HandleOf(ArtOf(instance, document::ArtType::SymbolInstance).symbol);
    });
}

ZMSymbolSuite MakeTable() {
    ZMSymbolSuite table{};
    table.CountSymbols = CountSymbols;
    table.GetNthSymbol = GetNthSymbol;
    table.GetSymbolName = GetSymbolName;
    table.GetSymbolDefinitionArt = GetSymbolDefinitionArt;
    table.GetSymbolOfInstance = GetSymbolOfInstance;
    return table;
}

const ZMSymbolSuite kTable = MakeTable();

}  // namespace

void RegisterSymbolSuite(SuiteRegistry& registry) {
    registry.Add(ZM_SYMBOL_SUITE_NAME, ZM_SYMBOL_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
