// SPDX-License-Identifier: MIT
/// Replaces the fuzzer in ordinary builds: runs every file of the given files and folders once, so that seeds
/// and former findings are tested with any compiler.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesOf(const fs::path& path) {
    std::vector<fs::path> files;
    if (fs::is_regular_file(path)) {
        files.push_back(path);
    } else if (fs::is_directory(path)) {
        for (const auto& entry : fs::recursive_directory_iterator(path)) {
            if (entry.is_regular_file()) {
                files.push_back(entry.path());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    std::size_t count = 0;
    for (int argument = 1; argument < argc; ++argument) {
        for (const fs::path& path : filesOf(argv[argument])) {
            std::cout << path.filename().string() << std::endl;
            std::ifstream file(path, std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file),
                                          std::istreambuf_iterator<char>()};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++count;
        }
    }
    std::cout << count << " inputs" << std::endl;
    return count > 0 ? 0 : 1;
}
