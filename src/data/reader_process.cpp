// SPDX-License-Identifier: MIT
/// Runs a program in its own process group, with a pipe for its output and one deadline for everything.
/// POSIX calls wrapped in RAII classes that close, kill and reap on every path.
#include "data/reader_process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <iterator>
#include <optional>

#include "data/reader_environment.h"

namespace mero::data {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// A killed process ends at once, except while it waits for a dead network drive; it is then not waited for.
constexpr milliseconds kReapLimit{250};
// 32767 rows of 8 values of 24 characters: more than any station table has.
constexpr std::size_t kOutputLimit = 8U << 20U;

/// Milliseconds left, rounded up so that a poll does not spin; 0 when the deadline has passed.
int millisecondsUntil(Clock::time_point deadline) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
    return static_cast<int>(std::max(left, milliseconds{0}).count());
}

class Pipe {
  public:
    Pipe() : open_(::pipe2(ends_.data(), O_CLOEXEC) == 0) {}
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        close(ends_[0]);
        close(ends_[1]);
    }

    [[nodiscard]] bool isOpen() const { return open_; }
    [[nodiscard]] int readEnd() const { return ends_[0]; }
    [[nodiscard]] int writeEnd() const { return ends_[1]; }
    void closeWriteEnd() { close(ends_[1]); }

  private:
    static void close(int& end) {
        if (end >= 0) {
            ::close(end);
        }
        end = -1;
    }

    std::array<int, 2> ends_{-1, -1};
    bool open_;
};

/// A started program; if it still runs at the end of the scope, its process group is killed and it is reaped.
class Child {
  public:
    explicit Child(pid_t pid) : pid_(pid) {}
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        if (!ended_) {
            ::kill(-pid_, SIGKILL);
            static_cast<void>(wait(Clock::now() + kReapLimit));
        }
    }

    /// The status from waitpid(); empty when the deadline passed first.
    std::optional<int> wait(Clock::time_point deadline) {
        while (true) {
            int status = 0;
            const pid_t ended = ::waitpid(pid_, &status, WNOHANG);
            if (ended == pid_) {
                ended_ = true;
                return status;
            }
            if (ended < 0 && errno != EINTR) {  // reaped elsewhere
                ended_ = true;
                return std::nullopt;
            }
            if (millisecondsUntil(deadline) == 0) {
                return std::nullopt;
            }
            ::poll(nullptr, 0, 1);
        }
    }

  private:
    pid_t pid_;
    bool ended_ = false;
};

/// Redirections: output to the pipe, no input, no error output.
class FileActions {
  public:
    explicit FileActions(int output) {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions_); }
    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

/// Attributes: a separate process group; default signals, whatever this process ignores or blocks.
class Attributes {
  public:
    Attributes() {
        ::posix_spawnattr_init(&attributes_);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setpgroup(&attributes_, 0);
        ::posix_spawnattr_setflags(&attributes_,
                                   POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    ~Attributes() { ::posix_spawnattr_destroy(&attributes_); }
    [[nodiscard]] const posix_spawnattr_t* get() const { return &attributes_; }

  private:
    posix_spawnattr_t attributes_{};
};

/// The texts as a null-terminated list of pointers, for the system call.
std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> list;
    std::transform(texts.begin(), texts.end(), std::back_inserter(list),
                   [](std::string& text) { return text.data(); });
    list.push_back(nullptr);
    return list;
}

std::optional<pid_t> start(std::vector<std::string> command, int output) {
    std::vector<std::string> environment = readerEnvironment();
    const FileActions actions(output);
    const Attributes attributes;
    pid_t pid = 0;
    const int error = ::posix_spawn(&pid, command.front().c_str(), actions.get(), attributes.get(),
                                    pointers(command).data(), pointers(environment).data());
    return error == 0 ? std::optional(pid) : std::nullopt;
}

enum class Reading { Ended, TimeLimit, OutputLimit };

/// Appends the output read from the pipe until its last writer has closed it.
Reading readAll(int pipe, Clock::time_point deadline, std::string& output) {
    std::array<char, 1U << 16U> block{};
    while (output.size() <= kOutputLimit) {
        pollfd waiting{pipe, POLLIN, 0};
        const int left = millisecondsUntil(deadline);
        const int ready = left > 0 ? ::poll(&waiting, 1, left) : 0;
        if (ready == 0) {
            return Reading::TimeLimit;
        }
        const ssize_t got = ready > 0 ? ::read(pipe, block.data(), block.size()) : -1;
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return Reading::Ended;
        }
        output.append(block.data(), static_cast<std::size_t>(got));
    }
    return Reading::OutputLimit;
}

}  // namespace

ReaderResult runReader(const std::vector<std::string>& command, milliseconds time_limit) {
    const auto deadline = Clock::now() + time_limit;
    ReaderResult result;
    Pipe pipe;
    const auto pid = pipe.isOpen() ? start(command, pipe.writeEnd()) : std::nullopt;
    if (!pid) {
        return result;
    }
    Child child(*pid);
    pipe.closeWriteEnd();

    const Reading reading = readAll(pipe.readEnd(), deadline, result.output);
    if (reading == Reading::OutputLimit) {
        result.ending = ReaderResult::Ending::OutputLimit;
        return result;
    }
    const auto status = reading == Reading::Ended ? child.wait(deadline) : std::nullopt;
    if (!status) {
        result.ending = ReaderResult::Ending::TimeLimit;
    } else if (WIFEXITED(*status)) {
        result.ending = ReaderResult::Ending::Exited;
        result.exit_status = WEXITSTATUS(*status);
    } else {
        result.ending = ReaderResult::Ending::Crashed;
    }
    return result;
}

}  // namespace mero::data
