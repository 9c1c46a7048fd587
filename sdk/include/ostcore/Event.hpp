#pragma once

#include <boost/function.hpp>

#include <cstddef>
#include <utility>
#include <vector>

namespace ostcore {

// A list of callbacks fired in the order they were connected. Disconnect takes the number
// Connect returned; a callback may disconnect others (or itself) while the event fires.
template <typename... Args>
class Event {
public:
    using Callback = boost::function<void(Args...)>;

    // Takes any callable a Callback can hold. It is assigned straight into its slot: a
    // stateless lambda moved through a temporary boost::function trips GCC's
    // uninitialized-memory warning.
    template <typename Function>
    std::size_t Connect(Function&& callback) {
        Slot& slot = slots_.emplace_back();
        slot.id = ++lastId_;
        slot.callback = std::forward<Function>(callback);
        return lastId_;
    }
    void Disconnect(std::size_t id) {
        for (auto& slot : slots_) {
            if (slot.id == id) {
                slot.callback.clear();
            }
        }
    }
    void DisconnectAll() {
        for (auto& slot : slots_) {
            slot.callback.clear();
        }
    }
    bool Empty() const {
        for (const auto& slot : slots_) {
            if (slot.callback) {
                return false;
            }
        }
        return true;
    }
    void Fire(Args... args) {
        // Indexes, not iterators: a callback may connect more while we walk.
        for (std::size_t i = 0; i < slots_.size(); ++i) {
            Callback callback = slots_[i].callback;
            if (callback) {
                callback(args...);
            }
        }
        std::erase_if(slots_, [](const Slot& slot) { return !slot.callback; });
    }

private:
    struct Slot {
        std::size_t id = 0;
        Callback callback;
    };
    std::vector<Slot> slots_;
    std::size_t lastId_ = 0;
};

}  // namespace ostcore
