#pragma once

#include "suites/CountedObjects.hpp"
#include "suites/EngineListSuite.hpp"
#include "suites/EngineValueObjects.hpp"
#include "suites/KRXArraySuite.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/Utf8Buffer.hpp"

#include <zelmora/ZMTypes.h>

#include <string>

namespace zm::host {

// The entries of a named composition rule (the layout KRX_NAMED_SUITE gives).
template <SuiteName Name, typename Table, typename Ref>
class EngineNamedSuite {
public:
    using Object = NamedObject<Ref>;

    static ZMErr ZM_API Create(Ref* object) {
        return GuardSuiteCall(Name.text, 0, [&](Runtime& runtime) {
            RequireArguments(object);
            *object = AddCounted<Ref>(runtime, Object{});
        });
    }
    static ZMErr ZM_API AddRef(Ref object) { return RetainEntry<Object>(Name.text, 1, object); }
    static ZMErr ZM_API Release(Ref object) {
        return ReleaseEntry<Object>(Name.text, 2, object);
    }
    static ZMErr ZM_API GetName(Ref object, char* buffer, int32_t bufferSize) {
        return GuardSuiteCall(Name.text, 3, [&](Runtime& runtime) {
            const Object& named = runtime.objects.Require<Object>(object);
            CopyToBuffer(named.name, buffer, bufferSize);
        });
    }
    static ZMErr ZM_API SetName(Ref object, const char* name) {
        return GuardSuiteCall(Name.text, 4, [&](Runtime& runtime) {
            Object& named = runtime.objects.Require<Object>(object);
            named.name = std::string(RequireUtf8(name));
        });
    }

    static constexpr Table kTable = {Create, AddRef, Release, GetName, SetName};
};

// The entries of a set of named composition rules (the layout KRX_NAMED_SET_SUITE gives).
template <SuiteName Name, typename Table, typename Ref, typename ItemRef>
struct EngineNamedSetSuite {
    using List = EngineListSuite<Name, Ref, ItemRef>;
    static constexpr Table kTable = {List::Create,  List::AddRef, List::Release, List::GetSize,
                                     List::Item,    List::Append, List::Find};
};

}  // namespace zm::host
