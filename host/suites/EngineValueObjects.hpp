#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zm::host {

// The generic shapes of the text engine's counted objects. Each is keyed by its own reference
// type, so that a reference of one suite is refused by another even where both hold the same
// kind of values.

// A composition rule or style known by its name.
template <typename Ref>
struct NamedObject {
    std::string name;  // UTF-8
};

// A list that holds copies of its items' objects, not references to them.
template <typename Ref, typename Value>
struct ValueListObject {
    std::vector<Value> values;
};

// A walk over a copy of what its source held when the walk began.
template <typename Ref, typename Value>
struct ValueIteratorObject {
    std::vector<Value> values;
    std::size_t position = 0;
};

}  // namespace zm::host
