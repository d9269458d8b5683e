// SPDX-License-Identifier: MIT
/// Separators set by a test, with a log of all calls and a failure at a chosen one.
#pragma once

#include <algorithm>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "platform/locale_settings.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::test {

class FakeLocale : public platform::LocaleSettings {
  public:
    using Item = platform::LocaleItem;

    [[nodiscard]] long userDefaultLocale() override {
        call("locale");
        return identifier;
    }
    std::size_t read(long locale, Item item, std::span<char> buffer) override {
        call((buffer.empty() ? "size " : "read ") + where(locale, item));
        const std::string& text = texts.at(item);
        const std::size_t needed = text.size() + 1;
        std::copy_n(text.c_str(), std::min(needed, buffer.size()), buffer.begin());
        return needed;
    }
    void write(long locale, Item item, const std::string& text) override {
        call("write " + where(locale, item) + " '" + text + "'");
        texts[item] = text;
    }

    /// The call (counted from 1 since construction) that fails, 0 for none.
    int fails_at = 0;
    RuntimeError failure{5, "nejde to"};
    long identifier = 1029;
    std::map<Item, std::string> texts{
        {Item::DecimalSeparator, ","}, {Item::ThousandsSeparator, "\xC2\xA0"}, {Item::ListSeparator, ";"}};
    std::vector<std::string> calls;

  private:
    static std::string where(long locale, Item item) {
        return numbers::general(static_cast<int>(locale)) + " " + numbers::general(static_cast<int>(item));
    }
    void call(const std::string& what) {
        calls.push_back(what);
        if (static_cast<int>(calls.size()) == fails_at) {
            throw RuntimeError(failure);
        }
    }
};

}  // namespace mero::test
