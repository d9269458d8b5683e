// SPDX-License-Identifier: MIT
/// A new file that is written beside its target and takes its place when it is complete.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

namespace mero::platform {

/// Whether the new file must be flushed to the disk before it replaces the old one, so that even a loss of
/// power leaves one of them complete; flushing can take long.
enum class OnDisk { Required, NotRequired };

/// What happens if the target is a link.
enum class Links {
    Followed,  ///< the file that it leads to is replaced; a link that leads nowhere is replaced itself
    Refused,   ///< nothing is written
};

/// The new file. The destructor removes it unless it took its place. While it is written, it carries a mark
/// by which other runs see that it is in use; files of killed runs in the same folder are removed first.
class FreshFile {
  public:
    /// A folder, a device or a pipe is no target: isOpen() is false then, as after any other failure.
    explicit FreshFile(const std::string& target, Links links = Links::Followed);
    ~FreshFile();
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;
    FreshFile(FreshFile&&) = delete;
    FreshFile& operator=(FreshFile&&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    /// Of the temporary file. Others may write into it, but not replace it.
    [[nodiscard]] const std::string& path() const { return path_; }
    /// The path of the target, behind links.
    [[nodiscard]] const std::string& target() const { return target_; }

    [[nodiscard]] bool write(std::string_view bytes);
    /// Replaces the target. On failure the target is unchanged.
    [[nodiscard]] bool putInPlace(OnDisk on_disk = OnDisk::Required);
    /// Takes another name than the target's, with `suffix` behind it, and replaces an ordinary file there.
    [[nodiscard]] bool keepBeside(std::string_view suffix);

    /// The system's reason for the last failure.
    [[nodiscard]] std::string reason() const;

  private:
    bool findTarget(const std::string& path, Links links);
    bool fail(int error);
    bool rename(const std::string& name, OnDisk on_disk);

    std::string target_;
    std::string path_;
    mode_t mode_ = 0;
    int descriptor_ = -1;
    int error_ = 0;
    bool in_place_ = false;
};

}  // namespace mero::platform
