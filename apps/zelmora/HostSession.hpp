#pragma once

#include <runtime/Runtime.hpp>

#include <filesystem>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zelmora {

struct SessionOptions {
    std::vector<std::filesystem::path> pluginFolders;  // searched before the defaults
    // For tests of the error paths: the n-th block the host hands out (1 = the first) fails.
    int64_t failAllocation = 0;
    // Host settings, in place before any plug-in starts.
    std::vector<std::pair<std::string, std::string>> preferences;  // key, text
    std::string locale = "en-US";                                  // a well-formed tag
    std::optional<std::filesystem::path> saveAnswer;  // none: the save dialog is cancelled
    zm::host::ProgressReporter* progress = nullptr;   // the caller's; null shows none
    // The caller's opened usage log, taken over by the runtime before any plug-in starts.
    zm::host::UsageLog* usageLog = nullptr;
};

// One headless host session: the runtime, its plug-ins started from the plug-in folders,
// and what the user must hear about on standard error (skipped bundles, alerts).
class HostSession {
public:
    HostSession(const SessionOptions& options, std::ostream& errors);
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    zm::host::Runtime& Runtime() { return runtime_; }
    // Stops the plug-ins (their shut-down may still raise alerts) and reports what is left.
    void Finish();

private:
    void ReportProblems();
    void ReportAlerts();

    zm::host::Runtime runtime_;
    std::ostream& errors_;
    std::size_t problemsReported_ = 0;
    std::size_t alertsReported_ = 0;
    bool finished_ = false;
};

// Folders searched for bundles: the ones given first, then the one beside the command
// ("../plugins" from its own folder), then the host's defaults.
std::vector<std::filesystem::path> PluginFolders(const std::vector<std::filesystem::path>& extra);

}  // namespace zelmora
