#pragma once

#include "document/Document.hpp"
#include "runtime/Runtime.hpp"

#include <zelmora/ZMArtTypes.h>

#include <map>
#include <string>

namespace zm::host {

// What a ZMDictionaryRef names: a document's dictionary, or entries of its own (a new
// dictionary, a parsed style's blending). Counted in Runtime::objects; the entries of a
// document stay with the document when the last reference goes.
class DictionaryObject {
public:
    using Entries = std::map<std::string, document::DictionaryValue>;

    DictionaryObject() : entries_(&own_) {}
    explicit DictionaryObject(Entries& documentEntries) : entries_(&documentEntries) {}
    DictionaryObject(const DictionaryObject&) = delete;
    DictionaryObject& operator=(const DictionaryObject&) = delete;

    Entries& entries() { return *entries_; }

private:
    Entries own_;
    Entries* entries_;
};

// A new reference to a new dictionary object, as an entry hands it out.
inline ZMDictionaryRef AddDictionary(Runtime& runtime, std::unique_ptr<DictionaryObject> object) {
    return reinterpret_cast<ZMDictionaryRef>(&runtime.objects.Add(std::move(object)));
}

inline DictionaryObject& RequireDictionary(Runtime& runtime, ZMDictionaryRef handle) {
    return runtime.objects.Require<DictionaryObject>(handle);
}

}  // namespace zm::host
