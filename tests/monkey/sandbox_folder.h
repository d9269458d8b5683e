// SPDX-License-Identifier: MIT
/// A program's folder inside a temporary folder of its own, removed with all that is in it at the end.
/// Whatever appears beside the program's folder was written where nothing may be written.
#pragma once

#include <filesystem>
#include <string>

namespace mero::monkey {

class SandboxFolder {
  public:
    /// @throws std::runtime_error when the machine gives no temporary folder
    SandboxFolder();
    SandboxFolder(const SandboxFolder&) = delete;
    SandboxFolder& operator=(const SandboxFolder&) = delete;
    ~SandboxFolder();

    /// The program's folder, three levels below the temporary folder.
    [[nodiscard]] std::string programFolder() const { return program_folder_.string(); }
    /// Whether the path, written in full, leads into the program's folder.
    [[nodiscard]] bool contains(const std::string& path) const;
    /// A file or folder beside the program's folder or above it, empty when there is none.
    [[nodiscard]] std::string strayEntry() const;
    /// Removes what is in the program's folder.
    void empty() const;

  private:
    std::filesystem::path root_;
    std::filesystem::path program_folder_;
};

}  // namespace mero::monkey
