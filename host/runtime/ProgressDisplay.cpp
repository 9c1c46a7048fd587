#include "runtime/ProgressDisplay.hpp"

#include "runtime/HostError.hpp"

#include <algorithm>
#include <utility>

namespace zm::host {

void ProgressDisplay::Begin(std::string text) {
    text_ = std::move(text);
    if (++depth_ == 1) {
        if (reporter_ != nullptr) {
            reporter_->Begin(text_);
        }
    } else if (reporter_ != nullptr) {
        reporter_->Retitle(text_);
    }
}

void ProgressDisplay::Retitle(std::string text) {
    RequireShown();
    text_ = std::move(text);
    if (reporter_ != nullptr) {
        reporter_->Retitle(text_);
    }
}

void ProgressDisplay::Update(int32_t current, int32_t maximum) {
    RequireShown();
    if (current < 0 || maximum < 0) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "progress cannot be negative");
    }
    if (reporter_ != nullptr) {
        reporter_->Update(std::min(current, maximum), maximum);
    }
}

void ProgressDisplay::End() {
    RequireShown();
    if (--depth_ == 0) {
        text_.clear();
        if (reporter_ != nullptr) {
            reporter_->End();
        }
    }
}

bool ProgressDisplay::IsCancelled() const {
    return depth_ > 0 && reporter_ != nullptr && reporter_->IsCancelled();
}

void ProgressDisplay::RequireShown() const {
    if (depth_ == 0) {
        throw HostError(ZM_ERR_CANT, "no progress is shown");
    }
}

}  // namespace zm::host
