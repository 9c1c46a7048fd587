#include "support/ScratchFolder.hpp"

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>
#include <system_error>

namespace zm::test {

namespace {

// Outside a running test (a global fixture, say) there is no test name to borrow.
std::string RunningTestName() {
    const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
    if (info == nullptr) {
        return "no-test";
    }
    return std::string(info->test_suite_name()) + "-" + info->name();
}

}  // namespace

ScratchFolder::ScratchFolder() {
    path_ = std::filesystem::temp_directory_path() /
            ("zelmora-" + RunningTestName() + "-" + std::to_string(::getpid()));
    // A folder left by a crashed run with a recycled process id must not leak into this one.
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace zm::test
