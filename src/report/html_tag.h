// SPDX-License-Identifier: MIT
/// One tag of an HTML text, parsed like in browsers.
/// It is a view into the text and owns only its name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mero::report {

class HtmlTag {
  public:
    /// The tag at the beginning of `html`; empty when it begins with text, also with a lone "<".
    [[nodiscard]] static std::optional<HtmlTag> at(std::string_view html);

    /// The whole tag from "<" to ">".
    [[nodiscard]] std::string_view text() const { return text_; }
    /// In lower case, up to the first blank.
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] bool closes() const { return text_.starts_with("</"); }
    /// Value of an attribute, without quotes; empty when there is none.
    [[nodiscard]] std::string_view attribute(std::string_view name) const;

  private:
    explicit HtmlTag(std::string_view text);

    std::string_view text_;
    std::string name_;
};

}  // namespace mero::report
