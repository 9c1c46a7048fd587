#pragma once

#include "ostcore/Export.hpp"

#include <atomic>
#include <cstddef>

namespace ostcore {

// Base of every toolkit object held through boost::intrusive_ptr. The count starts at zero:
// the first intrusive_ptr takes the first reference, and the last one deletes the object.
class OST_API RefCounted {
public:
    RefCounted() = default;
    RefCounted(const RefCounted&) : count_(0) {}  // a copy is a new object with its own count
    RefCounted& operator=(const RefCounted&) { return *this; }
    virtual ~RefCounted();

    std::size_t UseCount() const { return count_.load(std::memory_order_relaxed); }

    friend void intrusive_ptr_add_ref(const RefCounted* object) {
        object->count_.fetch_add(1, std::memory_order_relaxed);
    }
    friend void intrusive_ptr_release(const RefCounted* object) {
        if (object->count_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete object;
        }
    }

private:
    mutable std::atomic<std::size_t> count_{0};
};

}  // namespace ostcore
