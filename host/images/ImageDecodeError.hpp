#pragma once

#include <stdexcept>
#include <string>

namespace zm::host::images {

enum class ImageFault {
    Unrecognized,  // not a format the host reads headers of
    Damaged,       // a known format, but corrupt, truncated or unreadable
    Oversized,     // dimensions the host will not describe (see CheckDescribable)
};

// Why an image could not be described.
class ImageDecodeError : public std::runtime_error {
public:
    ImageDecodeError(ImageFault fault, const std::string& what)
        : std::runtime_error(what), fault_(fault) {}

    ImageFault Fault() const { return fault_; }

private:
    ImageFault fault_;
};

}  // namespace zm::host::images
