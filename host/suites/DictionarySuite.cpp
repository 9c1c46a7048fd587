#include "suites/DictionaryObject.hpp"
#include "suites/InternTable.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/UnicodeStringHandle.hpp"

#include <zelmora/ZMDictionarySuite.h>

#include <limits>
#include <memory>
#include <string>
#include <variant>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_DICTIONARY_SUITE_NAME;

// Keys are made once per text for the whole process, like atoms.
InternTable& Keys() {
    static InternTable keys;
    return keys;
}

const std::string& RequireKey(ZMDictKey key) { return Keys().Require(key); }

DictionaryObject::Entries& RequireEntries(Runtime& runtime, ZMDictionaryRef dictionary) {
    return RequireDictionary(runtime, dictionary).entries();
}

// The entry's value as Value; the caller's out-pointer is checked before anything is read.
template <typename Value>
const Value& ReadEntry(Runtime& runtime, ZMDictionaryRef dictionary, ZMDictKey key) {
    DictionaryObject::Entries& entries = RequireEntries(runtime, dictionary);
    const std::string& name = RequireKey(key);
    auto found = entries.find(name);
    if (found == entries.end()) {
        throw HostError(ZM_ERR_NOT_FOUND, "no dictionary entry " + name);
    }
    const Value* value = std::get_if<Value>(&found->second);
    if (value == nullptr) {
        throw HostError(ZM_ERR_WRONG_TYPE, "dictionary entry " + name + " is of another type");
    }
    return *value;
}

void WriteEntry(Runtime& runtime, ZMDictionaryRef dictionary, ZMDictKey key,
                document::DictionaryValue value) {
    DictionaryObject::Entries& entries = RequireEntries(runtime, dictionary);
    entries.insert_or_assign(RequireKey(key), std::move(value));
}

ZMErr ZM_API NewDictionary(ZMDictionaryRef* dictionary) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(dictionary);
        *dictionary = AddDictionary(runtime, std::make_unique<DictionaryObject>());
    });
}

ZMErr ZM_API AddRef(ZMDictionaryRef dictionary) {
    return GuardSuiteCall(
        kSuite, 1, [&](Runtime& runtime) { runtime.objects.Retain<DictionaryObject>(dictionary); });
}

ZMErr ZM_API Release(ZMDictionaryRef dictionary) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        runtime.objects.Release<DictionaryObject>(dictionary);
    });
}

ZMErr ZM_API Key(const char* text, ZMDictKey* key) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        RequireArguments(text, key);
        *key = reinterpret_cast<ZMDictKey>(const_cast<std::string*>(&Keys().Intern(text)));
    });
}

ZMErr ZM_API GetKeyText(ZMDictKey key, const char** text) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const std::string& name = RequireKey(key);
        RequireArguments(text);
        *text = name.c_str();
    });
}

ZMErr ZM_API IsKnown(ZMDictionaryRef dictionary, ZMDictKey key, ZMBool* known) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime& runtime) {
        DictionaryObject::Entries& entries = RequireEntries(runtime, dictionary);
        const std::string& name = RequireKey(key);
        RequireArguments(known);
        *known = entries.count(name) != 0 ? 1 : 0;
    });
}

ZMErr ZM_API CountEntries(ZMDictionaryRef dictionary, int32_t* count) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime& runtime) {
        DictionaryObject::Entries& entries = RequireEntries(runtime, dictionary);
        RequireArguments(count);
        if (entries.size() > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
            throw HostError(ZM_ERR_INTERNAL, "too many entries to count");
        }
        *count = static_cast<int32_t>(entries.size());
    });
}

ZMErr ZM_API DeleteEntry(ZMDictionaryRef dictionary, ZMDictKey key) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        DictionaryObject::Entries& entries = RequireEntries(runtime, dictionary);
        const std::string& name = RequireKey(key);
        if (entries.erase(name) == 0) {
            throw HostError(ZM_ERR_NOT_FOUND, "no dictionary entry " + name);
        }
    });
}

ZMErr ZM_API GetBooleanEntry(ZMDictionaryRef dictionary, ZMDictKey key, ZMBool* value) {
    return GuardSuiteCall(kSuite, 8, [&](Runtime& runtime) {
        RequireArguments(value);
        *value = ReadEntry<bool>(runtime, dictionary, key) ? 1 : 0;
    });
}

ZMErr ZM_API SetBooleanEntry(ZMDictionaryRef dictionary, ZMDictKey key, ZMBool value) {
    return GuardSuiteCall(
        kSuite, 9, [&](Runtime& runtime) { WriteEntry(runtime, dictionary, key, value != 0); });
}

ZMErr ZM_API GetIntegerEntry(ZMDictionaryRef dictionary, ZMDictKey key, int32_t* value) {
    return GuardSuiteCall(kSuite, 10, [&](Runtime& runtime) {
        RequireArguments(value);
        *value = ReadEntry<int32_t>(runtime, dictionary, key);
    });
}

ZMErr ZM_API SetIntegerEntry(ZMDictionaryRef dictionary, ZMDictKey key, int32_t value) {
    return GuardSuiteCall(kSuite, 11,
                          [&](Runtime& runtime) { WriteEntry(runtime, dictionary, key, value); });
}

ZMErr ZM_API GetRealEntry(ZMDictionaryRef dictionary, ZMDictKey key, double* value) {
    return GuardSuiteCall(kSuite, 12, [&](Runtime& runtime) {
        RequireArguments(value);
        *value = ReadEntry<double>(runtime, dictionary, key);
    });
}

ZMErr ZM_API SetRealEntry(ZMDictionaryRef dictionary, ZMDictKey key, double value) {
    return GuardSuiteCall(kSuite, 13,
                          [&](Runtime& runtime) { WriteEntry(runtime, dictionary, key, value); });
}

ZMErr ZM_API GetStringEntry(ZMDictionaryRef dictionary, ZMDictKey key, ZMUnicodeString value) {
    return GuardSuiteCall(kSuite, 14, [&](Runtime& runtime) {
        Deref(value);  // a null string is refused before the entry is looked up
        AssignUtf8(value, ReadEntry<std::string>(runtime, dictionary, key));
    });
}

ZMErr ZM_API SetStringEntry(ZMDictionaryRef dictionary, ZMDictKey key, ZMUnicodeString value) {
    return GuardSuiteCall(
        kSuite, 15, [&](Runtime& runtime) { WriteEntry(runtime, dictionary, key, ToUtf8(value)); });
}

ZMDictionarySuite MakeTable() {
    ZMDictionarySuite table{};
    table.NewDictionary = NewDictionary;
    table.AddRef = AddRef;
    table.Release = Release;
    table.Key = Key;
    table.GetKeyText = GetKeyText;
    table.IsKnown = IsKnown;
    table.CountEntries = CountEntries;
    table.DeleteEntry = DeleteEntry;
    table.GetBooleanEntry = GetBooleanEntry;
    table.SetBooleanEntry = SetBooleanEntry;
    table.GetIntegerEntry = GetIntegerEntry;
    table.SetIntegerEntry = SetIntegerEntry;
    table.GetRealEntry = GetRealEntry;
    table.SetRealEntry = SetRealEntry;
    table.GetStringEntry = GetStringEntry;
    table.SetStringEntry = SetStringEntry;
    return table;
}

const ZMDictionarySuite kTable = MakeTable();

}  // namespace

void RegisterDictionarySuite(SuiteRegistry& registry) {
    registry.Add(ZM_DICTIONARY_SUITE_NAME, ZM_DICTIONARY_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
