// SPDX-License-Identifier: MIT
/// Parses, and finds what a parser of JSON lets pass: doubled names, nesting without end.
#include "project/document.h"

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <set>
#include <vector>

#include "platform/numbers/number_text.h"
#include "project/shown_text.h"

namespace mero::project {
namespace {

using nlohmann::json;

// Most bytes of a file's own words in an error.
constexpr std::size_t kLongestPath = 200;

/// Deeper ones are no projects, and would exhaust the stack of what walks through them.
constexpr int kDeepest = 64;

struct Place {
    int line;
    int column;
    [[nodiscard]] std::string text() const { return numbers::general(line) + ":" + numbers::general(column); }
};

/// Line and column of a byte of the document, both from 1.
Place place(std::string_view document, std::size_t byte) {
    const std::string_view before = document.substr(0, std::min(byte, document.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t last_break = before.rfind('\n');
    const std::size_t column =
        last_break == std::string_view::npos ? before.size() : before.size() - last_break - 1;
    return {static_cast<int>(line), static_cast<int>(std::max<std::size_t>(column, 1))};
}

/// The reason of a syntax error without the library's prefix.
std::string syntaxReason(const std::string& what) {
    const std::size_t colon = what.find(": ");
    return shownText(colon == std::string::npos ? what : what.substr(colon + 2), kLongestPath);
}

/// Finds a name that stands twice in one object.
class NameWatch {
  public:
    void see(json::parse_event_t event, const json& parsed) {
        if (event == json::parse_event_t::object_start) {
            open_.emplace_back();
        } else if (event == json::parse_event_t::object_end) {
            open_.pop_back();
        } else if (event == json::parse_event_t::key) {
            Names& names = open_.back();
            names.last = parsed.get<std::string>();
            if (!names.seen.insert(names.last).second && doubled_.empty()) {
                doubled_ = path();
            }
        }
    }
    /// Path of the first doubled name, empty without one.
    [[nodiscard]] const std::string& doubled() const { return doubled_; }

  private:
    struct Names {
        std::set<std::string> seen;
        std::string last;
    };

    [[nodiscard]] std::string path() const {
        std::string text;
        for (const Names& names : open_) {
            text += (text.empty() ? "" : ".") + names.last;
        }
        return text;
    }

    std::vector<Names> open_;
    std::string doubled_;
};

/// A syntax error at that byte.
DocumentError syntaxError(std::string_view document, std::size_t byte, const std::string& file,
                          const std::string& reason) {
    const Place at = place(document, byte);
    return {file + ":" + at.text() + ": " + reason, at.line, at.column, ""};
}

struct TooDeep {};

json parse(std::string_view document, const std::string& file) {
    NameWatch watch;
    const auto see = [&](int depth, json::parse_event_t event, const json& parsed) {
        if (depth > kDeepest) {
            throw TooDeep();
        }
        watch.see(event, parsed);
        return true;
    };
    try {
        json parsed = json::parse(document, see);
        if (!watch.doubled().empty()) {
            const std::string doubled = shownText(watch.doubled(), kLongestPath);
            throw DocumentError(file + ": " + doubled + ": stands twice; expected each name once", 1, 1,
                                doubled);
        }
        return parsed;
    } catch (const json::parse_error& error) {
        throw syntaxError(document, error.byte, file, "no valid JSON: " + syntaxReason(error.what()));
    } catch (const TooDeep&) {
        throw syntaxError(document, 0, file, "lists and objects are nested too deep");
    } catch (const json::out_of_range& error) {
        // The library names the number, but not its place.
        const std::string what = error.what();
        const std::size_t quote = what.find('\'');
        const std::string number = quote == std::string::npos ? std::string() : what.substr(quote + 1);
        const std::size_t at = document.find(number.substr(0, number.find('\'')));
        throw syntaxError(document, at == std::string_view::npos ? 0 : at + 1, file,
                          "expected a number from -1e12 to 1e12");
    }
}

}  // namespace

int versionOf(const json& document) {
    const auto found = document.is_object() ? document.find("version") : document.end();
    if (found == document.end() || !found->is_number_integer()) {
        return 1;
    }
    constexpr double kLargest = 1e6;
    return static_cast<int>(std::clamp(found->get<double>(), 1.0, kLargest));
}

json parseDocument(std::string_view document, const std::string& file) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (document.starts_with(kByteOrderMark)) {
        document.remove_prefix(kByteOrderMark.size());
    }
    return parse(document, file);
}

}  // namespace mero::project
