#include "support/TestHost.hpp"

#include <stdexcept>

namespace zm::test {

TestHost::TestHost() {
    runtime_.plugins.Scan({ZELMORA_TEST_PLUGIN_DIR});
    tolvane_ = runtime_.plugins.FindByName("Tolvane");
    if (tolvane_ == nullptr) {
        throw std::runtime_error("the Tolvane bundle is not in " ZELMORA_TEST_PLUGIN_DIR);
    }
}

ZMErr TestHost::Start() { return runtime_.plugins.Start(*tolvane_); }

ZMErr TestHost::Stop() { return runtime_.plugins.Stop(*tolvane_); }

::testing::AssertionResult TestHost::NoSuiteHeld() const {
    auto held = runtime_.suites.Outstanding();
    if (held.empty()) {
        return ::testing::AssertionSuccess();
    }
    auto failure = ::testing::AssertionFailure();
    for (const auto* row : held) {
        failure << row->name << " acquired " << row->acquired << ", released " << row->released
                << "; ";
    }
    return failure;
}

std::string TestHost::AlertTexts() const {
    std::string texts;
    for (const auto& alert : runtime_.alerts) {
        texts += alert.text + "\n";
    }
    return texts;
}

}  // namespace zm::test
