#pragma once

#include <zelmora/ZMTypes.h>

namespace tolvane {

// An application context for the plug-in, open for the object's lifetime, so it is closed
// on every exit path, exceptions included. Opening can fail: check Error().
class ScopedAppContext {
public:
    ScopedAppContext();
    ~ScopedAppContext();
    ScopedAppContext(const ScopedAppContext&) = delete;
    ScopedAppContext& operator=(const ScopedAppContext&) = delete;

    ZMErr Error() const { return error_; }

private:
    ZMAppContext context_ = nullptr;
    bool open_ = false;
    ZMErr error_ = ZM_ERR_NONE;
};

}  // namespace tolvane
