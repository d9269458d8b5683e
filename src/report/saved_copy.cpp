// SPDX-License-Identifier: MIT
/// Makes the report independent of its folder.
#include "report/saved_copy.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>

#include "platform/files/whole_file.h"
#include "report/code_page.h"
#include "report/harmless_html.h"

namespace mero::report {
namespace {

constexpr std::string_view kDocumentStart = "<html>";
/// Only harmless markup is left in the page. Should a browser read it otherwise, this still keeps the copy
/// from loading anything from elsewhere and from running a script.
constexpr std::string_view kHead =
    "<head><meta charset=\"utf-8\"><meta http-equiv=\"Content-Security-Policy\" "
    "content=\"default-src 'none'; img-src data:; style-src 'unsafe-inline'\"></head>";

std::optional<std::string> readFile(const std::string& path) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure)) {  // opening a pipe would block
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    try {
        return std::string{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

std::string base64(std::string_view bytes) {
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::string_view group = bytes.substr(i, 3);
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            bits = (bits << 8U) | (k < group.size() ? static_cast<unsigned char>(group[k]) : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            text += k <= group.size() ? kAlphabet[(bits >> (18U - 6U * k)) & 63U] : '=';
        }
    }
    return text;
}

/// The page with its logo inside. Only tags of pictures are looked at: the words may stand in a text, too.
std::string withLogo(const std::string& page, const std::string& logo) {
    constexpr std::string_view kPicture = "<img";
    std::string whole;
    std::size_t done = 0;
    for (std::size_t at = 0; (at = page.find(kPicture, done)) != std::string::npos;) {
        const std::size_t end = std::min(page.find('>', at), page.size());
        const std::size_t found = std::min(page.find(kLogoReference, at), end);
        whole += page.substr(done, found - done);
        whole += found < end ? logo : "";
        done = std::min(found + kLogoReference.size(), end);
    }
    return whole + page.substr(done);
}

}  // namespace

bool saveCopy(const std::string& report_path, const std::string& program_folder,
              const std::string& target_path) {
    const auto bytes = readFile(report_path);
    if (!bytes) {
        return false;
    }
    return saveCopyOf(fromWindows1250(*bytes), program_folder, target_path);
}

bool saveCopyOf(const std::string& html, const std::string& program_folder, const std::string& target_path) {
    std::string copy = harmlessHtml(html, PageUse::Copy);
    copy.insert(copy.starts_with(kDocumentStart) ? kDocumentStart.size() : 0, kHead);
    const auto logo =
        readFile((std::filesystem::path(program_folder) / "Webs/Desc_soubory/logo.gif").string());
    return platform::replaceWhole(
        target_path,
        withLogo(copy, logo ? "src=\"data:image/gif;base64," + base64(*logo) + "\"" : "alt=\"\""));
}

bool isPdfPath(std::string_view path) {
    constexpr std::string_view kSuffix = ".pdf";
    constexpr char kToSmall = 'a' - 'A';
    const std::string_view name = path.substr(path.rfind('/') + 1);
    return name.size() > kSuffix.size() &&
           std::equal(kSuffix.begin(), kSuffix.end(), name.end() - kSuffix.size(),
                      [](char small, char c) { return c == small || c + kToSmall == small; });
}

}  // namespace mero::report
