#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zm::test {

struct SuiteRow {
    std::string name;
    int32_t version;
};

// The suites Tolvane declares, as the SDK's constants name them: the 138 required ones in
// declaration order (the 52 host suites, then the text engine's), and the optional ones.
const std::vector<SuiteRow>& RequiredSuiteRows();
const std::vector<SuiteRow>& OptionalSuiteRows();

}  // namespace zm::test
