// SPDX-License-Identifier: MIT
/// One tag of an HTML text, in a grammar so strict that every browser and text engine reads it alike.
/// It is a view into the text and owns only its name.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::report {

class StrictTag {
  public:
    struct Attribute {
        /// In lower case.
        std::string name;
        /// Without quotes; empty when there is none.
        std::string_view value;
        /// The attribute as it is written, without blanks around it.
        std::string_view text;
    };

    /// The tag at the beginning of `html`. Empty for text and for everything that is written in another way:
    /// longer than 512 bytes, with marks in an attribute's value or name that could be read in two ways.
    [[nodiscard]] static std::optional<StrictTag> at(std::string_view html);

    /// The whole tag from "<" to ">".
    [[nodiscard]] std::string_view text() const { return text_; }
    /// In lower case.
    [[nodiscard]] const std::string& name() const { return name_; }
    /// As it is written, in upper or lower case.
    [[nodiscard]] std::string_view writtenName() const { return written_name_; }
    [[nodiscard]] bool closes() const { return closes_; }
    [[nodiscard]] const std::vector<Attribute>& attributes() const { return attributes_; }

  private:
    StrictTag() = default;
    bool read(std::string_view html);

    std::string_view text_;
    std::string_view written_name_;
    std::string name_;
    std::vector<Attribute> attributes_;
    bool closes_ = false;
};

}  // namespace mero::report
