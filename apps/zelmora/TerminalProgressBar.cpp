#include "TerminalProgressBar.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <ostream>
#include <string>

namespace zelmora {

namespace {

constexpr int32_t kBarWidth = 30;

}  // namespace

void TerminalProgressBar::Begin(const std::string& text) {
    text_ = text;
    current_ = 0;
    maximum_ = 0;
    Draw();
}

void TerminalProgressBar::Retitle(const std::string& text) {
    text_ = text;
    Draw();
}

void TerminalProgressBar::Update(int32_t current, int32_t maximum) {
    current_ = current;
    maximum_ = maximum;
    Draw();
}

void TerminalProgressBar::End() {
    terminal_ << '\r' << std::string(drawnWidth_, ' ') << '\r' << std::flush;
    drawnWidth_ = 0;
}

void TerminalProgressBar::Draw() {
    std::string line;
    if (maximum_ > 0) {
        int64_t filled = int64_t{current_} * kBarWidth / maximum_;
        int64_t percent = int64_t{current_} * 100 / maximum_;
        line = fmt::format("{} [{}{}] {:3}%", text_, std::string(filled, '#'),
                           std::string(kBarWidth - filled, ' '), percent);
    } else {
        line = text_ + " ...";  // work of unknown size
    }
    // Pad over a longer line drawn before.
    std::size_t width = line.size();
    line.append(drawnWidth_ > width ? drawnWidth_ - width : 0, ' ');
    terminal_ << '\r' << line << std::flush;
    drawnWidth_ = std::max(width, drawnWidth_);
}

}  // namespace zelmora
