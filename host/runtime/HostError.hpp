#pragma once

#include <zelmora/ZMTypes.h>

#include <stdexcept>
#include <string>

namespace zm::host {

// Thrown inside the host; a suite entry's guard turns it into the code it carries.
class HostError : public std::runtime_error {
public:
    HostError(ZMErr code, const std::string& what) : std::runtime_error(what), code_(code) {}
    explicit HostError(ZMErr code) : HostError(code, "host error") {}
    ZMErr Code() const noexcept { return code_; }

private:
    ZMErr code_;
};

}  // namespace zm::host
