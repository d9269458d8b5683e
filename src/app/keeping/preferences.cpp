// SPDX-License-Identifier: MIT
/// One JSON object. Members that are not known are kept when it is written.
#include "app/keeping/preferences.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <system_error>

#include "platform/files/whole_file.h"

namespace mero::app {
namespace {

using nlohmann::json;

/// No file of ours is larger.
constexpr std::uintmax_t kLargestFile = 1U << 20U;
/// No screen is larger.
constexpr int kLargestPixels = 100'000;

json readDocument(const std::string& file) {
    std::error_code failure;
    if (file.empty() || !std::filesystem::is_regular_file(file, failure) ||
        std::filesystem::file_size(file, failure) > kLargestFile || failure) {
        return json::object();
    }
    std::ifstream stream(file, std::ios::binary);
    json document = json::parse(stream, nullptr, false);
    return document.is_object() ? document : json::object();
}

std::string textOf(const json& object, const char* name) {
    const auto found = object.find(name);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

std::optional<int> pixelsOf(const json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end() || !found->is_number_integer()) {
        return std::nullopt;
    }
    const auto value = found->get<std::int64_t>();
    return value < -kLargestPixels || value > kLargestPixels ? std::nullopt
                                                             : std::optional(static_cast<int>(value));
}

std::optional<WindowPlace> placeOf(const json& document) {
    const auto found = document.find("window");
    if (found == document.end() || !found->is_object()) {
        return std::nullopt;
    }
    const auto x = pixelsOf(*found, "x");
    const auto y = pixelsOf(*found, "y");
    const auto width = pixelsOf(*found, "width");
    const auto height = pixelsOf(*found, "height");
    if (!x || !y || !width || !height || *width <= 0 || *height <= 0) {
        return std::nullopt;
    }
    const auto maximized = found->find("maximized");
    return WindowPlace{*x, *y, *width, *height,
                       maximized != found->end() && maximized->is_boolean() && maximized->get<bool>()};
}

}  // namespace

void Preferences::used(const std::string& file) {
    forget(file);
    files.insert(files.begin(), file);
    if (files.size() > kMostFiles) {
        files.resize(kMostFiles);
    }
}

void Preferences::forget(const std::string& file) {
    std::erase(files, file);
}

Preferences readPreferences(const std::string& file) {
    const json document = readDocument(file);
    Preferences preferences;
    preferences.place = placeOf(document);
    preferences.folder = textOf(document, "folder");
    preferences.designer = textOf(document, "designer");
    if (const auto files = document.find("files"); files != document.end() && files->is_array()) {
        for (const json& each : *files) {
            if (each.is_string() && preferences.files.size() < Preferences::kMostFiles) {
                preferences.files.push_back(each.get<std::string>());
            }
        }
    }
    return preferences;
}

void writePreferences(const std::string& file, const Preferences& preferences) {
    if (file.empty()) {
        return;
    }
    json document = readDocument(file);
    document["folder"] = preferences.folder;
    document["files"] = preferences.files;
    document["designer"] = preferences.designer;
    if (preferences.place) {
        const WindowPlace& place = *preferences.place;
        document["window"] = {{"x", place.x},
                              {"y", place.y},
                              {"width", place.width},
                              {"height", place.height},
                              {"maximized", place.maximized}};
    }
    std::error_code failure;
    std::filesystem::create_directories(std::filesystem::path(file).parent_path(), failure);
    // A path may hold any bytes; those that are no UTF-8 are replaced, and the file is not found again.
    static_cast<void>(
        platform::replaceWhole(file, document.dump(2, ' ', false, json::error_handler_t::replace) + "\n",
                               platform::OnDisk::NotRequired));
}

}  // namespace mero::app
