// SPDX-License-Identifier: MIT
/// Both forms go through one temporary file.
#include "platform/files/whole_file.h"

namespace mero::platform {

bool replaceWhole(const std::string& path, const std::function<bool(const std::string& fresh_path)>& write,
                  OnDisk on_disk, Links links) {
    FreshFile fresh(path, links);
    return fresh.isOpen() && write(fresh.path()) && fresh.putInPlace(on_disk);
}

bool replaceWhole(const std::string& path, std::string_view content, OnDisk on_disk, Links links) {
    FreshFile fresh(path, links);
    return fresh.isOpen() && fresh.write(content) && fresh.putInPlace(on_disk);
}

}  // namespace mero::platform
