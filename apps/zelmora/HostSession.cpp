#include "HostSession.hpp"

#include <loader/PluginManager.hpp>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <system_error>
#include <utility>

namespace zelmora {

std::vector<std::filesystem::path> PluginFolders(const std::vector<std::filesystem::path>& extra) {
    std::vector<std::filesystem::path> folders = extra;
    std::error_code error;
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        folders.push_back(self.parent_path().parent_path() / "plugins");
    }
    for (auto& folder : zm::host::DefaultPluginFolders()) {
        folders.push_back(folder);
    }
    // The same folder reached twice would list its bundles twice.
    std::vector<std::filesystem::path> unique;
    for (auto& folder : folders) {
        auto canonical = std::filesystem::weakly_canonical(folder, error);
        auto key = error ? folder : canonical;
        if (std::find(unique.begin(), unique.end(), key) == unique.end()) {
            unique.push_back(key);
        }
    }
    return unique;
}

HostSession::HostSession(const SessionOptions& options, std::ostream& errors) : errors_(errors) {
    if (options.failAllocation > 0) {
        runtime_.faults.FailAllocation(options.failAllocation);
    }
    for (const auto& [key, text] : options.preferences) {
        runtime_.preferences.Set(key, text);
    }
    runtime_.localizer.SetLocale(options.locale);
    runtime_.dialogs.saveAnswer = options.saveAnswer;
    runtime_.progress.SetReporter(options.progress);
    if (options.usageLog != nullptr) {
        runtime_.usage = std::move(*options.usageLog);
    }
    runtime_.plugins.Scan(PluginFolders(options.pluginFolders));
    runtime_.plugins.StartAll();
    // An alert comes before the skip it caused, as it happened.
    ReportAlerts();
    ReportProblems();
}

HostSession::~HostSession() { Finish(); }

void HostSession::Finish() {
    if (finished_) {
        return;
    }
    finished_ = true;
    runtime_.plugins.StopAll();
    ReportAlerts();
    ReportProblems();
}

void HostSession::ReportProblems() {
    const auto& problems = runtime_.plugins.Problems();
    for (; problemsReported_ < problems.size(); ++problemsReported_) {
        const auto& problem = problems[problemsReported_];
        fmt::print(errors_, "zelmora: skipped plug-in bundle {}: {}\n", problem.bundle.string(),
                   problem.reason);
    }
}

void HostSession::ReportAlerts() {
    const auto& alerts = runtime_.alerts;
    for (; alertsReported_ < alerts.size(); ++alertsReported_) {
        const auto& alert = alerts[alertsReported_];
        fmt::print(errors_, "zelmora: {} alert:\n{}\n", zm::host::AlertKindName(alert.kind),
                   alert.text);
    }
}

}  // namespace zelmora
