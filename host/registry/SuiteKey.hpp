#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace zm::host {

// Orders (suite name, version) keys and lets a map keyed by owned names be searched with a
// borrowed name, so that a lookup on the message path allocates nothing.
struct SuiteKeyLess {
    using is_transparent = void;

    template <typename First, typename Second>
    bool operator()(const First& first, const Second& second) const {
        std::string_view firstName = first.first;
        std::string_view secondName = second.first;
        return firstName < secondName || (firstName == secondName && first.second < second.second);
    }
};

template <typename Value>
using SuiteKeyMap = std::map<std::pair<std::string, int32_t>, Value, SuiteKeyLess>;

inline std::pair<std::string_view, int32_t> SuiteKey(std::string_view name, int32_t version) {
    return {name, version};
}

}  // namespace zm::host
