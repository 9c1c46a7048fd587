#include "suites/SuiteRegistrations.hpp"

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXTextRangeSuites.h>

#include <unicode/utf8.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_KRX_TEXT_RANGE_SUITE_NAME;

// Code points of UTF-8 text; a malformed sequence counts as the one character that stands for
// it.
int64_t CountCodePoints(const std::string& text) {
    int64_t count = 0;
    const auto length = static_cast<int64_t>(text.size());
    for (int64_t index = 0; index < length; ++count) {
        U8_FWD_1(text.data(), index, length);
    }
    return count;
}

std::string Contents(const EngineText& text) {
    std::string contents;
    for (const EngineRun& run : text.runs) {
        contents += run.text;
    }
    return contents;
}

ZMErr ZM_API AddRef(KRXTextRangeRef range) {
    return RetainEntry<TextRangeObject>(kSuite, 0, range);
}

ZMErr ZM_API Release(KRXTextRangeRef range) {
    return ReleaseEntry<TextRangeObject>(kSuite, 1, range);
}

ZMErr ZM_API GetSize(KRXTextRangeRef range, int32_t* size) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(size);
        int64_t count = 0;
        for (const EngineRun& run : object.text->runs) {
            count += CountCodePoints(run.text);
        }
        *size = static_cast<int32_t>(std::min<int64_t>(count, std::numeric_limits<int32_t>::max()));
    });
}

ZMErr ZM_API GetContents(KRXTextRangeRef range, char* buffer, int32_t bufferSize) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(buffer);
        if (bufferSize < 1) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no room for the text");
        }
        std::string contents = Contents(*object.text);
        auto length = static_cast<int32_t>(
            std::min<std::size_t>(contents.size(), static_cast<std::size_t>(bufferSize) - 1));
        // A character whose bytes would not all fit is left out whole.
        U8_TRUNCATE_IF_INCOMPLETE(contents.data(), 0, length);
        std::memcpy(buffer, contents.data(), static_cast<std::size_t>(length));
        buffer[length] = '\0';
    });
}

ZMErr ZM_API GetCharInspector(KRXTextRangeRef range, KRXCharInspectorRef* inspector) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime& runtime) {
        const TextRangeObject& object = RequireObject(runtime, range);
        RequireArguments(inspector);
        *inspector = AddCounted<KRXCharInspectorRef>(runtime, CharInspectorObject{object.text});
    });
}

const KRXTextRangeSuite kTable = {
    AddRef,            // 0
    Release,           // 1
    GetSize,           // 2
    GetContents,       // 3
    GetCharInspector,  // 4
};

}  // namespace

void RegisterKRXTextRangeSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_RANGE_SUITE_NAME, ZM_KRX_TEXT_RANGE_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
