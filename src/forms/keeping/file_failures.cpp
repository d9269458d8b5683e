// SPDX-License-Identifier: MIT
/// The reason of a failed write is looked for after the fact: what stood in the way mostly still does.
#include "forms/keeping/file_failures.h"

#include <filesystem>

#include "platform/files/whole_file.h"

namespace mero::forms {
namespace {

namespace fs = std::filesystem;

/// Can a small file be written into the folder?
bool takesFiles(const fs::path& folder) {
    const fs::path probe = folder / ".mero-zkouska";
    const bool written = platform::replaceWhole(probe.string(), "", platform::OnDisk::NotRequired);
    std::error_code ignored;
    if (written) {
        fs::remove(probe, ignored);
    }
    return written;
}

std::string reasonOf(const fs::path& path, std::size_t size) {
    std::error_code failure;
    if (fs::is_directory(path, failure)) {
        return "je to složka";
    }
    const bool exists = fs::exists(path, failure);
    if (exists && !fs::is_regular_file(path, failure)) {
        return "není to soubor";
    }
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, failure)) {
        return "složka neexistuje";
    }
    const fs::space_info space = fs::space(folder, failure);
    if (!failure && space.available < size) {
        return "na disku není místo";
    }
    if (!takesFiles(folder)) {
        return "do složky nelze zapisovat";
    }
    return exists ? "soubor je jen pro čtení" : "zápis se nezdařil";
}

}  // namespace

std::string readFailureText(const std::string& path, platform::ReadFailure failure) {
    const std::string file = "Soubor " + path;
    switch (failure) {
        case platform::ReadFailure::NotFound:
            return file + " neexistuje.";
        case platform::ReadFailure::NotPermitted:
            return file + " nelze otevřít: chybí právo ke čtení.";
        case platform::ReadFailure::NotAFile:
            return file + " nelze otevřít: není to soubor.";
        case platform::ReadFailure::TooLarge:
            return file + " není projekt: je větší než 64 MB.";
        case platform::ReadFailure::Failed:
            break;
    }
    return file + " nelze přečíst.";
}

std::string writeFailureText(const std::string& path, std::size_t size) {
    return "Projekt se nepodařilo uložit do souboru " + path + ": " + reasonOf(path, size) + ".";
}

}  // namespace mero::forms
