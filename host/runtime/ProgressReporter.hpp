#pragma once

#include <cstdint>
#include <string>

namespace zm::host {

// Where the host's progress display goes: a terminal bar, a window, or a test's log. The
// display calls it only for the outermost progress a plug-in begins.
class ProgressReporter {
public:
    virtual ~ProgressReporter() = default;

    // text is UTF-8, as the plug-in gave it.
    virtual void Begin(const std::string& text) = 0;
    virtual void Retitle(const std::string& text) = 0;
    // 0 <= current <= maximum; a maximum of 0 means the amount of work is not known.
    virtual void Update(int32_t current, int32_t maximum) = 0;
    virtual void End() = 0;
    // Whether the user asked to stop the work.
    virtual bool IsCancelled() = 0;
};

}  // namespace zm::host
