// SPDX-License-Identifier: MIT
/// Writes the rows of a sweep to a file or to standard output.
/// Errors such as a full disk are reported.
#pragma once

#include <string>
#include <string_view>

namespace mero::app {

class RowFile {
  public:
    /// @param path "" for standard output; an existing file is truncated
    /// @throws std::runtime_error when the file cannot be opened
    explicit RowFile(const std::string& path);
    ~RowFile();
    RowFile(const RowFile&) = delete;
    RowFile& operator=(const RowFile&) = delete;

    /// Returns false when writing fails; failure() then says why.
    [[nodiscard]] bool write(std::string_view text);
    /// Closes the file; false when the data could not be stored.
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
