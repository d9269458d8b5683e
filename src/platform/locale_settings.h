// SPDX-License-Identifier: MIT
/// The platform's interface to the user's number separators, as small as the locale guard needs it.
/// Behind it stands the system's locale, this program's own separators, or a test.
#pragma once

#include <map>
#include <span>
#include <string>

namespace mero::platform {

/// The items of the locale that the program reads and sets, with their platform identifiers.
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

/// Separators of this program only: they start as the user's environment has them, and setting them leaves
/// the user's settings untouched.
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
