// SPDX-License-Identifier: MIT
/// Conveniences that are remembered between runs. Never a value of a calculation.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace mero::app {

/// Place of the window's content on the screen [device-independent pixels].
struct WindowPlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool maximized = false;
    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

struct Preferences {
    /// Of the list of files used last.
    static constexpr std::size_t kMostFiles = 10;

    std::optional<WindowPlace> place;
    std::string folder;              ///< used last for a project
    std::vector<std::string> files;  ///< used last, the latest first
    std::string designer;            ///< of the project saved last

    /// The file was opened or saved: it becomes the first of the list.
    void used(const std::string& file);
    void forget(const std::string& file);

    friend bool operator==(const Preferences&, const Preferences&) = default;
};

/// Reads the file. What is missing or makes no sense is left at its default; so is everything for a file
/// that cannot be read, and for the path "".
[[nodiscard]] Preferences readPreferences(const std::string& file);
/// Writes the file, and makes its folder. What a newer program wrote there is kept. A failure is not
/// reported: these are conveniences. The path "" writes nothing.
void writePreferences(const std::string& file, const Preferences& preferences);

}  // namespace mero::app
