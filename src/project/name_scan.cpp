// SPDX-License-Identifier: MIT
/// Listens to the parser's events. The parser's own way to watch names while it stores the values searches
/// each list again after each of its objects, which takes quadratic time.
#include "project/name_scan.h"

#include <cstddef>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>
#include <vector>

namespace mero::project {
namespace {

using nlohmann::json;

constexpr std::size_t kDeepest = 100;

class Events : public nlohmann::json_sax<json> {
  public:
    bool null() override { return true; }
    bool boolean(bool /*value*/) override { return true; }
    bool number_integer(number_integer_t /*value*/) override { return true; }
    bool number_unsigned(number_unsigned_t /*value*/) override { return true; }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override { return true; }
    bool string(string_t& /*value*/) override { return true; }
    bool binary(binary_t& /*value*/) override { return true; }

    bool start_object(std::size_t /*elements*/) override {
        open_.emplace_back();
        return goDown();
    }
    bool end_object() override {
        open_.pop_back();
        --depth_;
        return true;
    }
    bool start_array(std::size_t /*elements*/) override { return goDown(); }
    bool end_array() override {
        --depth_;
        return true;
    }
    bool key(string_t& name) override {
        Names& names = open_.back();
        names.last = name;
        if (!names.seen.insert(name).second && doubled.empty()) {
            doubled = path();
        }
        return true;
    }
    bool parse_error(std::size_t /*position*/, const std::string& /*last_token*/,
                     const nlohmann::detail::exception& /*error*/) override {
        return false;
    }

    std::string doubled;
    bool too_deep = false;

  private:
    struct Names {
        std::set<std::string> seen;
        std::string last;
    };

    bool goDown() {
        too_deep = ++depth_ > kDeepest;
        return !too_deep;
    }

    [[nodiscard]] std::string path() const {
        std::string text;
        for (const Names& names : open_) {
            text += (text.empty() ? "" : ".") + names.last;
        }
        return text;
    }

    std::vector<Names> open_;
    std::size_t depth_ = 0;
};

}  // namespace

NameScan::NameScan(std::string_view document) {
    Events events;
    static_cast<void>(json::sax_parse(document, &events));
    doubled_ = std::move(events.doubled);
    too_deep_ = events.too_deep;
}

}  // namespace mero::project
