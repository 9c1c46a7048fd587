#pragma once

#include <zelmora/ZMTypes.h>

namespace tolvane {

// Holds one reference the text engine handed out and gives it back, through the Release
// entry of the object's own suite, when it goes: every way out of a visit releases what the
// visit was given. Items lent by an array are not references of the caller's and are not
// held in one.
template <typename Reference>
class TextEngineReference {
public:
    using ReleaseEntry = ZMErr(ZM_API*)(Reference);

    explicit TextEngineReference(ReleaseEntry release) noexcept : release_(release) {}
    ~TextEngineReference() {
        if (reference_ != nullptr) {
            release_(reference_);
        }
    }
    TextEngineReference(const TextEngineReference&) = delete;
    TextEngineReference& operator=(const TextEngineReference&) = delete;

    // Where an entry that hands out a new reference writes it.
    Reference* Out() noexcept { return &reference_; }
    Reference Get() const noexcept { return reference_; }

private:
    ReleaseEntry release_;
    Reference reference_ = nullptr;
};

}  // namespace tolvane
