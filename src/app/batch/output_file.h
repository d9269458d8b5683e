// SPDX-License-Identifier: MIT
/// An output of a command: a file, standard output, or a device or pipe that the user names.
/// Errors such as a full disk are reported.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/fresh_file.h"

namespace mero::app {

/// A file is written beside its place and takes it in finish(), so a run that is killed leaves the old file.
class OutputFile {
  public:
    /// @param path "" for standard output
    /// @throws std::runtime_error when the output cannot be opened
    explicit OutputFile(const std::string& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    OutputFile(OutputFile&&) = delete;
    OutputFile& operator=(OutputFile&&) = delete;

    /// Returns false when writing fails; failure() then says why.
    [[nodiscard]] bool write(std::string_view text);
    /// Ends a complete output; false when the data could not be stored.
    [[nodiscard]] bool finish();
    /// Ends an output that stopped half-way: a file is kept under its name with ".part" behind it, and an old
    /// file of the name itself stays.
    [[nodiscard]] bool finishPart();
    /// Where finishPart() kept the data; empty for standard output, a device or a pipe.
    [[nodiscard]] const std::string& partName() const { return part_name_; }
    [[nodiscard]] const std::string& failure() const { return failure_; }

    /// Where finishPart() keeps the data of an output file of this path, behind links.
    [[nodiscard]] static std::string partPath(const std::string& path);

  private:
    [[nodiscard]] std::string cannotBeWritten(const std::string& reason) const;
    bool fail(const std::string& reason);
    bool closeDescriptor();

    std::string name_;
    std::optional<platform::FreshFile> file_;
    int descriptor_ = -1;  ///< of an output that is no file
    std::string part_name_;
    std::string failure_;
};

}  // namespace mero::app
