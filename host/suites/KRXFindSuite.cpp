#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/EngineTextSlices.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"
#include "suites/Utf8Buffer.hpp"

#include <zelmora/KRXFindSuite.h>

#include <optional>

namespace zm::host {

namespace {

ZMErr ZM_API FindText(KRXTextRangeRef range, const char* text, int32_t from, int32_t* start,
                      KRXTextRangeRef* match) {
    return GuardSuiteCall(ZM_KRX_FIND_SUITE_NAME, 0, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(start, match);
        const std::string_view wanted = RequireUtf8(text);
        const int64_t size = CountCodePoints(PlainText(*object.text));
        if (wanted.empty() || from < 0 || from > size) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "nothing to find, or no such place");
        }
        std::optional<int64_t> found = FindCharacters(*object.text, wanted, from);
        if (!found) {
            *start = -1;
            *match = nullptr;
            return;
        }
        const int64_t end = *found + CountCodePoints(wanted);
        *match = AddCounted<KRXTextRangeRef>(
            runtime, TextRangeObject{SliceEngineText(*object.text, *found, end)});
        *start = static_cast<int32_t>(*found);
    });
}

const KRXFindSuite kTable = {
    FindText,  // 0
};

}  // namespace

void RegisterKRXFindSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_FIND_SUITE_NAME, ZM_KRX_FIND_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
