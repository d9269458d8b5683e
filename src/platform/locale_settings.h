// SPDX-License-Identifier: MIT
/// Interface to the user's number separators, with only what the locale guard needs.
/// Implemented by this program's own separators and by a double in tests.
#pragma once

#include <map>
#include <span>
#include <string>

namespace mero::platform {

/// Locale items that the program reads and sets, with their platform identifiers.
enum class LocaleItem { ListSeparator = 12, DecimalSeparator = 14, ThousandsSeparator = 15 };

class LocaleSettings {
  public:
    LocaleSettings() = default;
    virtual ~LocaleSettings() = default;
    LocaleSettings(const LocaleSettings&) = delete;
    LocaleSettings& operator=(const LocaleSettings&) = delete;
    LocaleSettings(LocaleSettings&&) = delete;
    LocaleSettings& operator=(LocaleSettings&&) = delete;

    /// The user's default locale identifier.
    [[nodiscard]] virtual long userDefaultLocale() = 0;
    /// Writes the item's text, ended by a zero character, into `buffer` and returns its size with that zero.
    /// An empty buffer only asks for the size. @throws RuntimeError when the item cannot be read
    virtual std::size_t read(long locale, LocaleItem item, std::span<char> buffer) = 0;
    /// Sets the item's text. @throws RuntimeError when it cannot be set
    virtual void write(long locale, LocaleItem item, const std::string& text) = 0;
};

/// Separators of this program only: they start with the values of the user's environment, and setting them
/// does not change the user's settings.
class ProgramLocale : public LocaleSettings {
  public:
    /// Reads the separators of the user's environment.
    ProgramLocale();
    ProgramLocale(std::string decimal, std::string thousands, std::string list);

    [[nodiscard]] long userDefaultLocale() override;
    std::size_t read(long locale, LocaleItem item, std::span<char> buffer) override;
    void write(long locale, LocaleItem item, const std::string& text) override;

    [[nodiscard]] const std::string& text(LocaleItem item) const;

  private:
    std::map<LocaleItem, std::string> texts_;
};

}  // namespace mero::platform
