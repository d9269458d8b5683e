// SPDX-License-Identifier: MIT
/// Files with unsaved work, and who they belong to. Each running program locks a file for as long as it
/// lives, so copies without a living owner are those of a program that ended with unsaved work or was ended.
#pragma once

#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mero::app {

/// A copy whose program does not run any more.
struct LostCopy {
    std::string path;
    std::string origin;  ///< the project's own file, empty where it had none
    std::time_t written = 0;
};

class RecoveryCopies {
  public:
    /// @param folder is made when it is needed; "" keeps no copies
    explicit RecoveryCopies(std::string folder) : folder_(std::move(folder)) {}
    /// What was not removed stays, and is lost from now on.
    ~RecoveryCopies();
    RecoveryCopies(const RecoveryCopies&) = delete;
    RecoveryCopies& operator=(const RecoveryCopies&) = delete;
    RecoveryCopies(RecoveryCopies&&) = delete;
    RecoveryCopies& operator=(RecoveryCopies&&) = delete;

    /// Makes an empty file for a copy. @param origin the project's own file, or "" @return its path, "" when
    /// it cannot be made
    [[nodiscard]] std::string make(const std::string& origin);
    /// Replaces what the copy has, at once, and then flushes it to the disk, which can take seconds on a busy
    /// one: the program may be ended meanwhile. A failure, as on a full disk, leaves the copy as it was.
    static void write(const std::string& copy, std::string_view content);
    /// Removes a copy, own or lost; a missing one is no error.
    static void remove(const std::string& copy);

    /// Takes over the copies of programs that have ended, the latest first; no other program finds them while
    /// this one runs. Empty ones and files of interrupted writes are removed.
    [[nodiscard]] std::vector<LostCopy> takeLost();

  private:
    struct Lock {
        std::string path;
        int descriptor = -1;
    };

    [[nodiscard]] bool lockOwn();
    void takeFrom(const std::string& lock_path, std::vector<LostCopy>& lost);
    void release(Lock& lock) const;
    [[nodiscard]] std::vector<std::string> copiesOf(const std::string& lock_path) const;

    std::string folder_;
    Lock own_;
    std::vector<Lock> taken_;
    int made_ = 0;
};

}  // namespace mero::app
