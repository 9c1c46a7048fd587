#include "support/CommandRun.hpp"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <thread>

extern char** environ;

namespace zm::test {

namespace {

[[noreturn]] void Fail(const std::string& what, int error) {
    throw std::runtime_error(what + ": " + std::strerror(error));
}

// An unnamed temporary file that one of the command's streams is written into. Files rather
// than pipes: the command can fill both streams without anyone reading them meanwhile, so it
// can never block on a full pipe. The name is removed at once, so nothing is left behind.
class CaptureFile {
public:
    CaptureFile() {
        std::string name =
            (std::filesystem::temp_directory_path() / "zelmora-capture-XXXXXX").string();
        fd_ = ::mkostemp(name.data(), O_CLOEXEC);
        if (fd_ < 0) {
            Fail("cannot create a capture file in " + name, errno);
        }
        ::unlink(name.c_str());
    }
    ~CaptureFile() { ::close(fd_); }
    CaptureFile(const CaptureFile&) = delete;
    CaptureFile& operator=(const CaptureFile&) = delete;

    int Descriptor() const { return fd_; }

    std::string Contents() const {
        std::string contents;
        char buffer[4096];
        for (off_t offset = 0;;) {
            ssize_t count = ::pread(fd_, buffer, sizeof buffer, offset);
            if (count < 0 && errno == EINTR) {
                continue;
            }
            if (count < 0) {
                Fail("cannot read a capture file", errno);
            }
            if (count == 0) {
                return contents;
            }
            contents.append(buffer, static_cast<std::size_t>(count));
            offset += count;
        }
    }

private:
    int fd_ = -1;
};

// The child's standard streams: input from /dev/null, output and errors into the files.
class SpawnStreams {
public:
    SpawnStreams(const CaptureFile& output, const CaptureFile& errors) {
        posix_spawn_file_actions_init(&actions_);
        int error =
            posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        if (error == 0) {
            error = posix_spawn_file_actions_adddup2(&actions_, output.Descriptor(), STDOUT_FILENO);
        }
        if (error == 0) {
            error = posix_spawn_file_actions_adddup2(&actions_, errors.Descriptor(), STDERR_FILENO);
        }
        if (error != 0) {
            posix_spawn_file_actions_destroy(&actions_);
            Fail("cannot redirect the command's streams", error);
        }
    }
    ~SpawnStreams() { posix_spawn_file_actions_destroy(&actions_); }
    SpawnStreams(const SpawnStreams&) = delete;
    SpawnStreams& operator=(const SpawnStreams&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_;
};

// Polls rather than blocking in waitpid so that the time limit can be enforced.
int WaitFor(pid_t child, std::chrono::seconds timeLimit) {
    auto deadline = std::chrono::steady_clock::now() + timeLimit;
    int status = 0;
    for (;;) {
        pid_t done = ::waitpid(child, &status, WNOHANG);
        if (done == child) {
            return status;
        }
        if (done < 0 && errno != EINTR) {
            Fail("cannot wait for the command", errno);
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            ::kill(child, SIGKILL);
            while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
            }
            return status;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

}  // namespace

CommandResult RunCommand(const std::filesystem::path& program,
                         const std::vector<std::string>& arguments,
                         std::chrono::seconds timeLimit) {
    CaptureFile output;
    CaptureFile errors;
    SpawnStreams streams(output, errors);

    std::string programName = program.string();
    std::vector<char*> argv;
    argv.push_back(programName.data());
    std::vector<std::string> argumentCopies = arguments;  // argv is not const in the C interface
    for (std::string& argument : argumentCopies) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);

    pid_t child = 0;
    int error = ::posix_spawn(&child, programName.c_str(), streams.Actions(), nullptr, argv.data(),
                              environ);
    if (error != 0) {
        Fail("cannot start " + programName, error);
    }
    int status = WaitFor(child, timeLimit);

    CommandResult result;
    if (WIFEXITED(status)) {
        result.exitStatus = WEXITSTATUS(status);
    } else if (WIFSIGNALED(status)) {
        result.signal = WTERMSIG(status);
    }
    result.output = output.Contents();
    result.errors = errors.Contents();
    return result;
}

}  // namespace zm::test
