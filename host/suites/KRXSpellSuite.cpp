#include "suites/SuiteRegistrations.hpp"

#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXSpellSuite.h>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_SPELL_SUITE_NAME;

ZMErr ZM_API Create(KRXSpellRef* spell) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(spell);
        *spell = AddCounted<KRXSpellRef>(runtime, SpellObject{});
    });
}

ZMErr ZM_API AddRef(KRXSpellRef spell) { return RetainEntry<SpellObject>(kSuite, 1, spell); }

ZMErr ZM_API Release(KRXSpellRef spell) { return ReleaseEntry<SpellObject>(kSuite, 2, spell); }

ZMErr ZM_API CountMisspelledWords(KRXSpellRef spell, KRXTextRangeRef range, int32_t* count) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        RequireObject(runtime, spell);
        RequireObject(runtime, range);
        RequireArguments(count);
        *count = 0;  // without a dictionary no word is known to be wrong
    });
}

const KRXSpellSuite kTable = {
    Create,                // 0
    AddRef,                // 1
    Release,               // 2
    CountMisspelledWords,  // 3
};

}  // namespace

void RegisterKRXSpellSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_SPELL_SUITE_NAME, ZM_KRX_SPELL_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
