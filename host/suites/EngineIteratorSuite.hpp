#pragma once

#include "runtime/HostError.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/EngineValueObjects.hpp"
#include "suites/KRXArraySuite.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/ZMTypes.h>

#include <utility>
#include <vector>

namespace zm::host {

// The entries of one text-engine iterator suite (its table has the layout KRX_ITERATOR_SUITE
// gives): Table is the suite's table, Ref the iterator's reference, SourceRef what it walks,
// ItemRef what it hands out. Items gives the values of a source, each becoming a new object
// when the walk reaches it.
template <SuiteName Name, typename Table, typename Ref, typename SourceRef, typename ItemRef,
          auto Items>
class EngineIteratorSuite {
public:
    using Value = typename ObjectOfRef<ItemRef>::type;
    using Object = ValueIteratorObject<Ref, Value>;

    static ZMErr ZM_API Create(SourceRef source, Ref* iterator) {
        return GuardSuiteCall(Name.text, 0, [&](Runtime& runtime) {
            const auto& object = RequireObject(runtime, source);
            RequireArguments(iterator);
            std::vector<Value> values = Items(runtime, object);
            *iterator = AddCounted<Ref>(runtime, Object{std::move(values), 0});
        });
    }
    static ZMErr ZM_API AddRef(Ref iterator) {
        return RetainEntry<Object>(Name.text, 1, iterator);
    }
    static ZMErr ZM_API Release(Ref iterator) {
        return ReleaseEntry<Object>(Name.text, 2, iterator);
    }
    static ZMErr ZM_API IsDone(Ref iterator, int32_t* done) {
        return GuardSuiteCall(Name.text, 3, [&](Runtime& runtime) {
            const Object& object = runtime.objects.Require<Object>(iterator);
            RequireArguments(done);
            *done = object.position >= object.values.size() ? 1 : 0;
        });
    }
    static ZMErr ZM_API Next(Ref iterator) {
        return GuardSuiteCall(Name.text, 4, [&](Runtime& runtime) {
            Object& object = runtime.objects.Require<Object>(iterator);
            RequireCurrent(object);
            ++object.position;
        });
    }
    static ZMErr ZM_API Item(Ref iterator, ItemRef* item) {
        return GuardSuiteCall(Name.text, 5, [&](Runtime& runtime) {
            const Object& object = runtime.objects.Require<Object>(iterator);
            RequireArguments(item);
            RequireCurrent(object);
            *item = AddCounted<ItemRef>(runtime, object.values[object.position]);
        });
    }

    static constexpr Table kTable = {Create, AddRef, Release, IsDone, Next, Item};

private:
    static void RequireCurrent(const Object& object) {
        if (object.position >= object.values.size()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "the iterator is done");
        }
    }
};

}  // namespace zm::host
