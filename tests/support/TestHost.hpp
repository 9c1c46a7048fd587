#pragma once

#include <loader/LoadedPlugin.hpp>
#include <runtime/Runtime.hpp>

#include <gtest/gtest.h>

#include <string>

namespace zm::test {

// The real host with the real Tolvane bundle from the build tree, not yet started, so a
// test can plan failures first.
class TestHost {
public:
    TestHost();

    host::Runtime& Runtime() { return runtime_; }
    host::LoadedPlugin& Tolvane() { return *tolvane_; }
    // Reload and start-up messages; the code start-up answered.
    ZMErr Start();
    // Shut-down and unload messages.
    ZMErr Stop();
    // The whole text of every alert so far, for messages.
    std::string AlertTexts() const;
    // Success when every suite acquired so far was given back; else names those held.
    ::testing::AssertionResult NoSuiteHeld() const;

private:
    host::Runtime runtime_;
    host::LoadedPlugin* tolvane_ = nullptr;
};

}  // namespace zm::test
