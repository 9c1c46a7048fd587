#pragma once

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/EngineValueObjects.hpp"
#include "suites/KRXArraySuite.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"
#include "suites/Utf8Buffer.hpp"

#include <zelmora/ZMTypes.h>

#include <cstddef>
#include <cstdint>
#include <limits>

namespace zm::host {

// The entries of the text engine's lists of copies, at the positions every such suite gives
// them: 0 Create, 1 AddRef, 2 Release, 3 GetSize, 4 Item, 5 Append, 6 Find (by name). A suite
// whose list comes from elsewhere puts its own maker at 0 and leaves out what it lacks.
template <SuiteName Name, typename Ref, typename ItemRef>
class EngineListSuite {
public:
    using Value = typename ObjectOfRef<ItemRef>::type;
    using Object = ValueListObject<Ref, Value>;

    static ZMErr ZM_API Create(Ref* list) {
        return GuardSuiteCall(Name.text, 0, [&](Runtime& runtime) {
            RequireArguments(list);
            *list = AddCounted<Ref>(runtime, Object{});
        });
    }
    static ZMErr ZM_API AddRef(Ref list) { return RetainEntry<Object>(Name.text, 1, list); }
    static ZMErr ZM_API Release(Ref list) { return ReleaseEntry<Object>(Name.text, 2, list); }
    static ZMErr ZM_API GetSize(Ref list, int32_t* size) {
        return GuardSuiteCall(Name.text, 3, [&](Runtime& runtime) {
            const Object& object = runtime.objects.Require<Object>(list);
            RequireArguments(size);
            *size = static_cast<int32_t>(object.values.size());
        });
    }
    static ZMErr ZM_API Item(Ref list, int32_t index, ItemRef* item) {
        return GuardSuiteCall(Name.text, 4, [&](Runtime& runtime) {
            const Object& object = runtime.objects.Require<Object>(list);
            RequireArguments(item);
            if (index < 0 || static_cast<std::size_t>(index) >= object.values.size()) {
                throw HostError(ZM_ERR_BAD_ARGUMENT, "no item at that index");
            }
            *item = AddCounted<ItemRef>(runtime, object.values[static_cast<std::size_t>(index)]);
        });
    }
    static ZMErr ZM_API Append(Ref list, ItemRef item) {
        return GuardSuiteCall(Name.text, 5, [&](Runtime& runtime) {
            Object& object = runtime.objects.Require<Object>(list);
            const Value& value = RequireObject(runtime, item);
            if (object.values.size() >=
                static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
                throw HostError(ZM_ERR_NO_MEMORY, "a list holds at most 2^31-1 items");
            }
            object.values.push_back(value);
        });
    }
    static ZMErr ZM_API Find(Ref list, const char* name, int32_t* index) {
        return GuardSuiteCall(Name.text, 6, [&](Runtime& runtime) {
            const Object& object = runtime.objects.Require<Object>(list);
            RequireArguments(index);
            const std::string_view wanted = RequireUtf8(name);
            *index = -1;
            for (std::size_t at = 0; at < object.values.size(); ++at) {
                if (object.values[at].name == wanted) {
                    *index = static_cast<int32_t>(at);
                    break;
                }
            }
        });
    }
};

}  // namespace zm::host
