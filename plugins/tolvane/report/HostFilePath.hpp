#pragma once

#include <zelmora/ZMArtTypes.h>

namespace tolvane {

// Owns one host file path, empty when made, and disposes of it when it goes. Throws zm::Error
// with the suite's code when the host cannot make one.
class HostFilePath {
public:
    HostFilePath();
    ~HostFilePath();
    HostFilePath(const HostFilePath&) = delete;
    HostFilePath& operator=(const HostFilePath&) = delete;

    ZMFilePath Get() const { return path_; }

private:
    ZMFilePath path_ = nullptr;
};

}  // namespace tolvane
