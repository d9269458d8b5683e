// SPDX-License-Identifier: MIT
/// The three routines of the locale guard.
/// The module name in their error texts is part of a fixed interface: tests and the manual name the texts.
#include "platform/mod_reg_settings.h"

#include <vector>

#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::platform {

template <typename Routine>
void modRegSettings::trapped(const char* procedure, Routine routine) {
    try {
        routine();
    } catch (const RuntimeError& error) {
        desk_->showMessage({"Error " + numbers::general(error.number()) + " (" + error.description() +
                            ") in procedure " + procedure + " of Module Module1"});
    }
}

std::string modRegSettings::read(LocaleItem item) const {
    const std::size_t size = locale_->read(identifier_, item, {});
    std::vector<char> buffer(size, '\0');
    locale_->read(identifier_, item, buffer);
    const std::string text(buffer.begin(), buffer.end());
    return text.substr(0, text.find('\0'));
}

void modRegSettings::Get_locale() {
    trapped("Get_locale", [this] {
        identifier_ = numbers::toInteger(static_cast<double>(locale_->userDefaultLocale()));
        saved_decimal_ = read(LocaleItem::DecimalSeparator);
        saved_thousands_ = read(LocaleItem::ThousandsSeparator);
        saved_list_ = read(LocaleItem::ListSeparator);
    });
}

void modRegSettings::Set_locale() {
    trapped("Set_locale", [this] {
        locale_->write(identifier_, LocaleItem::DecimalSeparator, ".");
        locale_->write(identifier_, LocaleItem::ThousandsSeparator, " ");
        locale_->write(identifier_, LocaleItem::ListSeparator, ",");
    });
}

void modRegSettings::Restore_Locale() {
    trapped("Restore_Locale", [this] {
        locale_->write(identifier_, LocaleItem::DecimalSeparator, saved_decimal_);
        locale_->write(identifier_, LocaleItem::ThousandsSeparator, saved_thousands_);
        locale_->write(identifier_, LocaleItem::ListSeparator, saved_list_);
    });
}

}  // namespace mero::platform
