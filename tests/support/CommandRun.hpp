#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace zm::test {

// How a command ended and what it wrote.
struct CommandResult {
    int exitStatus = -1;  // -1 when a signal ended the command instead
    int signal = 0;       // the signal that ended it; 0 when it exited
    std::string output;   // standard output, byte for byte
    std::string errors;   // standard error, byte for byte
};

// Runs the program with the arguments exactly as given (no shell sees them), standard input
// empty, and waits for it. A command still running after the time limit is killed, so a hang
// fails one test instead of stalling the whole run. Throws std::runtime_error when the program
// cannot be started.
CommandResult RunCommand(const std::filesystem::path& program,
                         const std::vector<std::string>& arguments,
                         std::chrono::seconds timeLimit = std::chrono::seconds(60));

}  // namespace zm::test
