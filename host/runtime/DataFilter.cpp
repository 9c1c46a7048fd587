#include "runtime/DataFilter.hpp"

#include "runtime/HostError.hpp"

#include <zelmora/ZMDataFilterSuite.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace zm::host {

namespace {

// The permissions the new file ends with: those of the target it replaces, else those any
// new file gets. mkstemp makes its files private to their owner, which a saved file is not.
mode_t PermissionsFor(const std::filesystem::path& target) {
    struct stat existing {};
    if (::stat(target.c_str(), &existing) == 0 && S_ISREG(existing.st_mode)) {
        return existing.st_mode & 0777;
    }
    // Setting the mask is the only way to read it; suite entries run on one thread.
    mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace

DataFilter::DataFilter(std::filesystem::path target, DataFilterMode mode, uint32_t creator,
                       uint32_t type)
    : target_(std::move(target)), mode_(mode), creator_(creator), type_(type) {}

DataFilter::~DataFilter() { Discard(); }

void DataFilter::Link() {
    if (Linked()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "the data filter is linked already");
    }
    if (mode_ == DataFilterMode::Read) {
        int descriptor = ::open(target_.c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0) {
            throw HostError(errno == ENOENT ? ZM_ERR_NOT_FOUND : ZM_ERR_FILE_OPEN,
                            "cannot open " + target_.string());
        }
        struct stat opened {};
        if (::fstat(descriptor, &opened) != 0 || !S_ISREG(opened.st_mode)) {
            ::close(descriptor);
            throw HostError(ZM_ERR_FILE_OPEN, target_.string() + " is not a file to read");
        }
        descriptor_ = descriptor;
        return;
    }
    // Beside the target, so that the rename that replaces it stays on one file system.
    std::string pattern = target_.string() + ".XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) {
        throw HostError(ZM_ERR_FILE_OPEN, "cannot create a file beside " + target_.string());
    }
    descriptor_ = descriptor;
    newFile_ = name.data();
    if (::fchmod(descriptor_, PermissionsFor(target_)) != 0) {
        Discard();
        throw HostError(ZM_ERR_FILE_OPEN, "cannot set the permissions of a new file");
    }
}

std::size_t DataFilter::Read(void* buffer, std::size_t count) {
    if (!Linked() || mode_ != DataFilterMode::Read) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a linked reading data filter");
    }
    auto* bytes = static_cast<char*>(buffer);
    std::size_t done = 0;
    while (done < count) {
        ssize_t got = ::read(descriptor_, bytes + done, count - done);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            throw HostError(ZM_ERR_FILE_READ, "cannot read " + target_.string());
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

void DataFilter::Write(const void* buffer, std::size_t count) {
    if (!Linked() || mode_ != DataFilterMode::Write) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "not a linked writing data filter");
    }
    if (writeFailure_ != ZM_ERR_NONE) {
        throw HostError(writeFailure_, "an earlier write failed");
    }
    const auto* bytes = static_cast<const char*>(buffer);
    std::size_t done = 0;
    while (done < count) {
        ssize_t put = ::write(descriptor_, bytes + done, count - done);
        if (put < 0 && errno == EINTR) {
            continue;
        }
        // A file that takes no bytes without saying why would have this loop spin.
        if (put <= 0) {
            writeFailure_ = ZM_ERR_FILE_WRITE;
            throw HostError(writeFailure_, "cannot write " + newFile_.string());
        }
        done += static_cast<std::size_t>(put);
    }
}

ZMErr DataFilter::Unlink(ZMErr error) {
    if (!Linked()) {
        throw HostError(ZM_ERR_BAD_ARGUMENT, "the data filter is not linked");
    }
    ZMErr result = writeFailure_;
    if (mode_ == DataFilterMode::Write && error == ZM_ERR_NONE && result == ZM_ERR_NONE) {
        result = Commit();
    }
    Discard();
    return result;
}

ZMErr DataFilter::Commit() {
    // The bytes reach the disk before the new file takes the target's name, so a crash
    // leaves the old file or the new one, never a torn one.
    bool written = ::fsync(descriptor_) == 0;
    written = ::close(descriptor_) == 0 && written;
    descriptor_ = -1;
    if (!written) {
        return ZM_ERR_FILE_WRITE;
    }
    std::error_code failed;
    std::filesystem::rename(newFile_, target_, failed);
    if (failed) {
        return ZM_ERR_FILE_WRITE;
    }
    newFile_.clear();
    return ZM_ERR_NONE;
}

void DataFilter::Discard() noexcept {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
        descriptor_ = -1;
    }
    if (!newFile_.empty()) {
        std::error_code ignored;
        std::filesystem::remove(newFile_, ignored);
        newFile_.clear();
    }
}

}  // namespace zm::host
