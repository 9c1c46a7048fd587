#pragma once

#include <runtime/ProgressReporter.hpp>

#include <cstdint>
#include <iosfwd>
#include <string>

namespace zelmora {

// The host's progress as one line redrawn in place on a terminal: the text, a bar and the
// percentage; the line is wiped when the work ends, so nothing of it stays in the output.
// The command cannot be interrupted from the bar, so it never reports a cancel.
class TerminalProgressBar : public zm::host::ProgressReporter {
public:
    explicit TerminalProgressBar(std::ostream& terminal) : terminal_(terminal) {}

    void Begin(const std::string& text) override;
    void Retitle(const std::string& text) override;
    void Update(int32_t current, int32_t maximum) override;
    void End() override;
    bool IsCancelled() override { return false; }

private:
    void Draw();

    std::ostream& terminal_;
    std::string text_;
    int32_t current_ = 0;
    int32_t maximum_ = 0;
    std::size_t drawnWidth_ = 0;  // characters on the line now, to wipe them
};

}  // namespace zelmora
