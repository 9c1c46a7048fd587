#include "runtime/UsageLog.hpp"

#include "runtime/HostError.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cerrno>
#include <iostream>
#include <string>
#include <system_error>
#include <utility>

namespace zm::host {

namespace {

std::string ErrnoText(int error) { return std::error_code(error, std::generic_category()).message(); }

// The text as a JSON string, characters beyond ASCII kept as they are; text that is not UTF-8
// is refused here, before it can hold up a line.
std::string JsonText(std::string_view text, const char* what) {
    try {
        return nlohmann::json(std::string(text))
            .dump(-1, ' ', false, nlohmann::json::error_handler_t::strict);
    } catch (const nlohmann::json::exception&) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, fmt::format("the usage {} is not UTF-8", what));
    }
}

// One write per line where the system allows, so a line is not interleaved with another
// writer's. A line that fails half way is cut off again, so the file only ever holds whole
// lines and the line can be written again later.
void WriteLine(int descriptor, const std::string& line) {
    struct stat before {};
    const bool truncatable = fstat(descriptor, &before) == 0 && S_ISREG(before.st_mode);
    std::size_t written = 0;
    while (written < line.size()) {
        ssize_t count = ::write(descriptor, line.data() + written, line.size() - written);
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            const int error = errno;
            if (written > 0 && truncatable) {
                (void)ftruncate(descriptor, before.st_size);
            }
            throw std::system_error(error, std::generic_category());
        }
        written += static_cast<std::size_t>(count);
    }
}

}  // namespace

UsageLog::~UsageLog() {
    if (!IsLogging()) {
        return;
    }
    try {
        Close();
    } catch (const std::exception& error) {
        std::cerr << "zelmora: " << error.what() << "\n";
    }
}

UsageLog::UsageLog(UsageLog&& other) noexcept
    : file_(std::move(other.file_)),
      descriptor_(std::exchange(other.descriptor_, -1)),
      lastGroup_(other.lastGroup_),
      currentGroup_(std::exchange(other.currentGroup_, 0)),
      currentName_(std::exchange(other.currentName_, std::nullopt)),
      currentEntries_(std::move(other.currentEntries_)),
      waiting_(std::move(other.waiting_)),
      lastFailure_(std::move(other.lastFailure_)) {
    other.file_.clear();
    other.waiting_.clear();
}

UsageLog& UsageLog::operator=(UsageLog&& other) noexcept {
    if (this != &other) {
        UsageLog old(std::move(*this));  // closed by its destructor
        file_ = std::move(other.file_);
        other.file_.clear();
        descriptor_ = std::exchange(other.descriptor_, -1);
        // Numbers keep rising, so a group handed out by either log is never current again.
        lastGroup_ = std::max(old.lastGroup_, other.lastGroup_);
        currentGroup_ = std::exchange(other.currentGroup_, 0);
        currentName_ = std::exchange(other.currentName_, std::nullopt);
        currentEntries_ = std::move(other.currentEntries_);
        waiting_ = std::move(other.waiting_);
        other.waiting_.clear();
        lastFailure_ = std::move(other.lastFailure_);
    }
    return *this;
}

void UsageLog::Open(const std::filesystem::path& file) {
    if (IsLogging()) {
        Close();
    }
    int descriptor = ::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        const int error = errno;
        throw UsageLogError(
            fmt::format("cannot open the usage log {}: {}", file.string(), ErrnoText(error)));
    }
    descriptor_ = descriptor;
    file_ = file;
    currentGroup_ = 0;  // a group begun before the file was there has nowhere to go
    currentName_.reset();
    currentEntries_.clear();
}

UsageLog::GroupId UsageLog::BeginGroup(std::string_view name) {
    if (name.empty()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "a usage group needs a name");
    }
    std::string nameText = JsonText(name, "group name");
    EndCurrentGroup();
    currentGroup_ = ++lastGroup_;
    if (IsLogging()) {
        currentName_ = std::move(nameText);
        currentEntries_.clear();
        try {
            WriteWaiting();
        } catch (const UsageLogError&) {
            // The groups stay waiting; Flush or Close says so.
        }
    }
    return currentGroup_;
}

void UsageLog::AddEntry(GroupId group, std::string_view key, std::string_view value) {
    if (group == 0 || group != currentGroup_) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not the current usage group");
    }
    if (key.empty()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "a usage entry needs a key");
    }
    std::string keyText = JsonText(key, "key");
    std::string valueText = JsonText(value, "value");
    if (!currentName_) {
        return;  // no file: nothing is kept
    }
    if (!currentEntries_.empty()) {
        currentEntries_ += ", ";
    }
    currentEntries_ += fmt::format("[{}, {}]", keyText, valueText);
}

void UsageLog::Flush() {
    EndCurrentGroup();
    if (IsLogging()) {
        WriteWaiting();
    }
}

void UsageLog::Close() {
    if (!IsLogging()) {
        EndCurrentGroup();
        return;
    }
    bool failed = false;
    try {
        Flush();
    } catch (const UsageLogError&) {
        failed = true;
    }
    const std::size_t lost = waiting_.size();
    waiting_.clear();
    int closed = ::close(descriptor_);
    const int closeError = errno;
    descriptor_ = -1;
    const std::string file = file_.string();
    file_.clear();
    if (failed) {
        throw UsageLogError(fmt::format("{} usage group(s) could not be written to {}: {}", lost,
                                        file, lastFailure_));
    }
    if (closed != 0) {
        throw UsageLogError(
            fmt::format("the usage log {} could not be closed: {}", file, ErrnoText(closeError)));
    }
}

void UsageLog::EndCurrentGroup() {
    currentGroup_ = 0;
    if (currentName_) {
        waiting_.push_back(fmt::format("{{\"group\": {}, \"entries\": [{}]}}\n", *currentName_,
                                       currentEntries_));
        currentName_.reset();
        currentEntries_.clear();
    }
}

void UsageLog::WriteWaiting() {
    while (!waiting_.empty()) {
        try {
            WriteLine(descriptor_, waiting_.front());
        } catch (const std::system_error& error) {
            lastFailure_ = error.code().message();
            throw UsageLogError(fmt::format("the usage log {} could not be written: {}",
                                            file_.string(), lastFailure_));
        }
        waiting_.pop_front();
    }
}

}  // namespace zm::host
