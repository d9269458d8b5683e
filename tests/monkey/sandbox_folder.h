// SPDX-License-Identifier: MIT
/// A program's folder inside a temporary folder, removed with its content at the end.
/// The program must not write anything beside its folder.
#pragma once

#include <filesystem>
#include <string>

namespace mero::monkey {

class SandboxFolder {
  public:
    /// @throws std::runtime_error when no temporary folder can be created
    SandboxFolder();
    SandboxFolder(const SandboxFolder&) = delete;
    SandboxFolder& operator=(const SandboxFolder&) = delete;
    ~SandboxFolder();

    /// The program's folder, three levels below the temporary folder.
    [[nodiscard]] std::string programFolder() const { return program_folder_.string(); }
    /// True when the absolute path is inside the program's folder.
    [[nodiscard]] bool contains(const std::string& path) const;
    /// A file or folder beside or above the program's folder; empty when there is none.
    [[nodiscard]] std::string strayEntry() const;
    /// Removes the content of the program's folder.
    void empty() const;

  private:
    std::filesystem::path root_;
    std::filesystem::path program_folder_;
};

}  // namespace mero::monkey
