#pragma once

#include "ostcore/Export.hpp"

#include <stdexcept>

namespace ostui {

// A font that cannot be found or read; the message names the font and the reason.
class OST_API FontError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    ~FontError() override;
};

}  // namespace ostui
