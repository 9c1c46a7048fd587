#pragma once

#include "ostcore/Export.hpp"

#include <stdexcept>

namespace ostui {

// A layout or menu resource that cannot be read or is not well formed; the message names the
// resource and what is wrong.
class OST_API ResourceError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    ~ResourceError() override;
};

}  // namespace ostui
