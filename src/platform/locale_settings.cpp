// SPDX-License-Identifier: MIT
/// Separators of this program.
/// The environment's are read through a separate locale object; the process's locale is not changed.
#include "platform/locale_settings.h"

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <utility>

#include "platform/numbers/runtime_error.h"

namespace mero::platform {
namespace {

/// The identifier that stands for "the user's default" on platforms whose locales have names.
constexpr long kUserDefaultLocale = 0x0400;

}  // namespace

ProgramLocale::ProgramLocale() : ProgramLocale(".", "", ",") {
    const locale_t environment = newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (environment == nullptr) {
        return;
    }
    const std::string decimal = nl_langinfo_l(RADIXCHAR, environment);
    texts_[LocaleItem::DecimalSeparator] = decimal;
    texts_[LocaleItem::ThousandsSeparator] = nl_langinfo_l(THOUSEP, environment);
    // Where the comma is the decimal separator, lists are separated by a semicolon.
    texts_[LocaleItem::ListSeparator] = decimal == "," ? ";" : ",";
    freelocale(environment);
}

ProgramLocale::ProgramLocale(std::string decimal, std::string thousands, std::string list)
    : texts_{{LocaleItem::DecimalSeparator, std::move(decimal)},
             {LocaleItem::ThousandsSeparator, std::move(thousands)},
             {LocaleItem::ListSeparator, std::move(list)}} {}

long ProgramLocale::userDefaultLocale() {
    return kUserDefaultLocale;
}

std::size_t ProgramLocale::read(long /*locale*/, LocaleItem item, std::span<char> buffer) {
    const std::string& wanted = text(item);
    const std::size_t needed = wanted.size() + 1;
    if (!buffer.empty()) {
        if (buffer.size() < needed) {
            throw RuntimeError(ErrorNumber::InvalidCall);
        }
        std::copy_n(wanted.c_str(), needed, buffer.begin());
    }
    return needed;
}

void ProgramLocale::write(long /*locale*/, LocaleItem item, const std::string& text) {
    texts_[item] = text;
}

const std::string& ProgramLocale::text(LocaleItem item) const {
    return texts_.at(item);
}

}  // namespace mero::platform
