#pragma once

#include <cstdint>
#include <runtime/ProgressReporter.hpp>
#include <string>
#include <vector>

namespace zm::test {

// Every progress call that reaches the reporter, as text.
class RecordingReporter : public host::ProgressReporter {
public:
    void Begin(const std::string& text) override { calls.push_back("begin " + text); }
    void Retitle(const std::string& text) override { calls.push_back("retitle " + text); }
    void Update(int32_t current, int32_t maximum) override {
        calls.push_back("update " + std::to_string(current) + "/" + std::to_string(maximum));
    }
    void End() override { calls.push_back("end"); }
    bool IsCancelled() override { return cancelled; }

    std::vector<std::string> calls;
    bool cancelled = false;
};

}  // namespace zm::test
