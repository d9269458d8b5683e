// SPDX-License-Identifier: MIT
/// modRegSettings, the locale guard: makes the point the decimal separator while the program runs and
/// restores the user's separators at its end.
#pragma once

#include <cstdint>
#include <string>

#include "platform/desk.h"
#include "platform/locale_settings.h"

namespace mero::platform {

class modRegSettings {
  public:
    modRegSettings(LocaleSettings& locale, Desk& desk) : locale_(&locale), desk_(&desk) {}

    /// Saves the user's locale identifier and the decimal, thousands and list separators, in this order.
    void Get_locale();
    /// Sets "." / " " / "," while the program runs.
    void Set_locale();
    /// Sets the saved separators again.
    void Restore_Locale();

    [[nodiscard]] std::int16_t localeIdentifier() const { return identifier_; }
    [[nodiscard]] const std::string& savedDecimal() const { return saved_decimal_; }
    [[nodiscard]] const std::string& savedThousands() const { return saved_thousands_; }
    [[nodiscard]] const std::string& savedList() const { return saved_list_; }

  private:
    /// Runs one routine. An error ends the routine and is shown with its name.
    template <typename Routine>
    void trapped(const char* procedure, Routine routine);
    [[nodiscard]] std::string read(LocaleItem item) const;

    LocaleSettings* locale_;
    Desk* desk_;
    std::int16_t identifier_ = 0;  ///< 16 bits hold every identifier in use
    std::string saved_decimal_;
    std::string saved_thousands_;
    std::string saved_list_;
};

}  // namespace mero::platform
