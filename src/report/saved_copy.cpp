/// Making the report independent of its folder.
/// The copy is written beside its target and renamed, so that a failure leaves an old file whole.
#include "report/saved_copy.h"

#include <array>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>

#include "report/code_page.h"

namespace mero::report {
namespace {

constexpr std::string_view kLogoReference = "src=Webs\\Desc_soubory\\logo.gif";
constexpr std::string_view kDocumentStart = "<html>";
constexpr std::string_view kHead = "<head><meta charset=\"utf-8\"></head>";

std::optional<std::string> readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    try {
        return std::string{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    } catch (const std::exception&) {  // a folder opens, but reading it throws
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

bool replaceFile(const std::string& path, const std::string& content) {
    const std::string fresh = path + ".new";
    std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
    file << content;
    file.close();
    std::error_code failure;
    if (!file.fail()) {
        std::filesystem::rename(fresh, path, failure);
        if (!failure) {
            return true;
        }
    }
    std::filesystem::remove(fresh, failure);
    return false;
}

}  // namespace

bool saveCopy(const std::string& report_path, const std::string& program_folder,
              const std::string& target_path) {
    const auto bytes = readFile(report_path);
    if (!bytes) {
        return false;
    }
    std::string html = fromWindows1250(*bytes);
    if (html.starts_with(kDocumentStart)) {
        html.insert(kDocumentStart.size(), kHead);
    }
    const std::size_t logo_at = html.find(kLogoReference);
    const auto logo = readFile(program_folder + "/Webs/Desc_soubory/logo.gif");
    if (logo_at != std::string::npos && logo) {
        html.replace(logo_at, kLogoReference.size(), "src=\"data:image/gif;base64," + base64(*logo) + "\"");
    }
    return replaceFile(target_path, html);
}

}  // namespace mero::report
