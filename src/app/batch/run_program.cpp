// SPDX-License-Identifier: MIT
/// Runs a program in a process group of its own, with one deadline.
/// POSIX calls wrapped in RAII classes that kill and reap on every path.
#include "app/batch/run_program.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <optional>

namespace mero::app {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// A killed process ends at once, except while it waits for a dead network drive; it is then not waited for.
constexpr milliseconds kReapLimit{250};
constexpr int kPauseMilliseconds = 2;

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
            if (Clock::now() >= deadline) {
                return std::nullopt;
            }
            ::poll(nullptr, 0, kPauseMilliseconds);
        }
    }

  private:
    pid_t pid_;
    bool ended_ = false;
};

/// Redirections: no input, no output.
class FileActions {
  public:
    FileActions() {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
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

std::optional<pid_t> start(std::vector<std::string>& command) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (std::string& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    const FileActions actions;
    const Attributes attributes;
    pid_t pid = 0;
    const int error =
        ::posix_spawn(&pid, arguments.front(), actions.get(), attributes.get(), arguments.data(), ::environ);
    return error == 0 ? std::optional(pid) : std::nullopt;
}

}  // namespace

ProgramEnd runProgram(std::vector<std::string> command, milliseconds time_limit) {
    using Kind = ProgramEnd::Kind;
    const auto deadline = Clock::now() + time_limit;
    const auto pid = start(command);
    if (!pid) {
        return {Kind::NotStarted};
    }
    const auto status = Child(*pid).wait(deadline);
    if (!status) {
        return {Kind::TimeLimit};
    }
    return WIFEXITED(*status) ? ProgramEnd{Kind::Exited, WEXITSTATUS(*status)} : ProgramEnd{Kind::Crashed};
}

}  // namespace mero::app
