#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zm::host {

// A usage log file that cannot be opened or written; the text is one line naming the file and
// the reason.
class UsageLogError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The host's usage log: named groups of key and value texts (UTF-8), each appended to the log
// file as one JSON line, {"group": NAME, "entries": [[KEY, VALUE], ...]}, once it is complete:
// when the next group begins, or when the log is flushed or closed. Without a file the log
// keeps nothing; groups are still checked and numbered, then dropped.
class UsageLog {
public:
    // Names the group being logged. 0 is never a group.
    using GroupId = uint64_t;

    UsageLog() = default;
    // Writes what is complete and closes the file; a failure there has nobody left to tell but
    // standard error, so whoever can report it closes the log first.
    ~UsageLog();
    UsageLog(UsageLog&& other) noexcept;
    UsageLog& operator=(UsageLog&& other) noexcept;
    UsageLog(const UsageLog&) = delete;
    UsageLog& operator=(const UsageLog&) = delete;

    // Appends to the file from now on, creating it when it is missing and keeping what it
    // holds. A log that was open is closed first. Throws UsageLogError.
    void Open(const std::filesystem::path& file);
    bool IsLogging() const { return descriptor_ >= 0; }
    // The file being appended to; empty without one.
    const std::filesystem::path& File() const { return file_; }

    // The group before this one is complete from now on and goes to the file. Throws
    // HostError(ZM_ERR_BAD_ARGUMENT) for an empty name or one that is not UTF-8. A group that
    // cannot be written does not stop the new one: it waits for the next write, and Flush and
    // Close report it.
    GroupId BeginGroup(std::string_view name);
    // Throws HostError(ZM_ERR_BAD_ARGUMENT) unless group is the one begun last (and the log was
    // not flushed since), for an empty key, and for a key or value that is not UTF-8.
    void AddEntry(GroupId group, std::string_view key, std::string_view value);
    // Ends the current group and writes every complete group still waiting, in the order they
    // were begun. Throws UsageLogError when any is left unwritten; those wait for the next try.
    void Flush();
    // Flushes, then closes the file, which the log no longer keeps. Throws UsageLogError naming
    // how many groups were lost; the file is closed all the same.
    void Close();

    // Complete groups that have not reached the file yet.
    std::size_t WaitingGroups() const { return waiting_.size(); }

private:
    void EndCurrentGroup();
    void WriteWaiting();

    std::filesystem::path file_;
    int descriptor_ = -1;
    GroupId lastGroup_ = 0;
    GroupId currentGroup_ = 0;  // 0 when no group takes entries
    // The current group's line, "name" then its entries, as escaped JSON texts; only kept while
    // there is a file.
    std::optional<std::string> currentName_;
    std::string currentEntries_;
    std::deque<std::string> waiting_;  // whole lines, "\n" included
    std::string lastFailure_;          // why the last write failed
};

}  // namespace zm::host
