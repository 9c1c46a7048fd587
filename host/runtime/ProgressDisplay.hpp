#pragma once

#include "runtime/ProgressReporter.hpp"

#include <cstdint>
#include <string>

namespace zm::host {

// The host's one progress display. Plug-ins may nest progress (a survey inside a save); only
// the outermost Begin and its End reach the reporter, and an inner Begin only retitles it.
// Without a reporter (quiet, or no terminal) the display keeps its state and shows nothing.
class ProgressDisplay {
public:
    // The reporter stays the caller's; null shows nothing. Not changed while progress is shown.
    void SetReporter(ProgressReporter* reporter) { reporter_ = reporter; }

    void Begin(std::string text);
    // Retitle, Update and End throw HostError(ZM_ERR_CANT) when no progress is shown.
    void Retitle(std::string text);
    // Throws HostError(ZM_ERR_BAD_ARGUMENT) for a negative value; a current value past the
    // maximum is shown as the maximum.
    void Update(int32_t current, int32_t maximum);
    void End();
    // False when nothing is shown: there is no work to stop.
    bool IsCancelled() const;

    int32_t Depth() const { return depth_; }
    const std::string& Text() const { return text_; }

private:
    void RequireShown() const;

    ProgressReporter* reporter_ = nullptr;
    int32_t depth_ = 0;
    std::string text_;
};

}  // namespace zm::host
