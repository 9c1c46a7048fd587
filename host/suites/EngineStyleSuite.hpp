#pragma once

#include "suites/CountedObjects.hpp"
#include "suites/KRXArraySuite.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"
#include "suites/Utf8Buffer.hpp"

#include <zelmora/ZMTypes.h>

namespace zm::host {

// The entries of a named text style's suite: 0 AddRef, 1 Release, 2 GetName, 3 GetFeatures
// (a new features object holding a copy of the style's).
template <SuiteName Name, typename Table, typename StyleRef, typename FeaturesRef>
class EngineStyleSuite {
public:
    using Style = typename ObjectOfRef<StyleRef>::type;

    static ZMErr ZM_API AddRef(StyleRef style) { return RetainEntry<Style>(Name.text, 0, style); }
    static ZMErr ZM_API Release(StyleRef style) {
        return ReleaseEntry<Style>(Name.text, 1, style);
    }
    static ZMErr ZM_API GetName(StyleRef style, char* buffer, int32_t bufferSize) {
        return GuardSuiteCall(Name.text, 2, [&](Runtime& runtime) {
            CopyToBuffer(RequireObject(runtime, style).name, buffer, bufferSize);
        });
    }
    static ZMErr ZM_API GetFeatures(StyleRef style, FeaturesRef* features) {
        return GuardSuiteCall(Name.text, 3, [&](Runtime& runtime) {
            const Style& object = RequireObject(runtime, style);
            RequireArguments(features);
            *features = AddCounted<FeaturesRef>(runtime, object.features);
        });
    }

    static constexpr Table kTable = {AddRef, Release, GetName, GetFeatures};
};

}  // namespace zm::host
