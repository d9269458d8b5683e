// SPDX-License-Identifier: MIT
/// Where the rows of a sweep go: a file or standard output.
/// Written in large pieces; a full disk is noticed and told.
#pragma once

#include <string>
#include <string_view>

namespace mero::app {

class RowFile {
  public:
    /// @param path "" for standard output; an existing file is emptied
    /// @throws std::runtime_error when the file cannot be opened
    explicit RowFile(const std::string& path);
    ~RowFile();
    RowFile(const RowFile&) = delete;
    RowFile& operator=(const RowFile&) = delete;

    /// False when it cannot be written; failure() then says why.
    [[nodiscard]] bool write(std::string_view text);
    /// Closes the file; false when what was written does not get there.
    [[nodiscard]] bool close();
    [[nodiscard]] const std::string& failure() const { return failure_; }

  private:
    bool fail();

    std::string name_;
    int descriptor_;
    bool owned_;
    std::string failure_;
};

}  // namespace mero::app
