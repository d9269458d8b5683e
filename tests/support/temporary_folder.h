// SPDX-License-Identifier: MIT
/// A new folder for one test, removed with everything in it at the end.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace mero::test {

class TemporaryFolder {
  public:
    /// @param name additional part of the folder's name, e.g. with blanks and diacritics
    explicit TemporaryFolder(const std::string& name = "") {
        std::string pattern =
            (std::filesystem::temp_directory_path() / ("mero-test" + name + "-XXXXXX")).string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string file(const std::string& name) const { return path_ + "/" + name; }
    [[nodiscard]] bool has(const std::string& name) const { return std::filesystem::exists(file(name)); }
    void write(const std::string& name, const std::string& content) const {
        std::ofstream(file(name), std::ios::binary) << content;
    }
    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream stream(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

  private:
    std::string path_;
};

}  // namespace mero::test
