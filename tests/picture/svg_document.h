// SPDX-License-Identifier: MIT
/// Reads SVG documents in tests: well-formed, with elements, attributes and texts.
/// Knows as much of XML as a drawing uses; anything else is a failure.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace mero::picture {

struct SvgElement {
    std::string name;
    std::map<std::string, std::string> attributes;
    std::string text;  ///< with the entities replaced
    bool in_definitions = false;
};

/// Collects the elements of a document and reports what is malformed.
class SvgDocument {
  public:
    explicit SvgDocument(std::string_view document) : rest_(document) {
        const std::string_view declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        EXPECT_TRUE(rest_.starts_with(declaration));
        rest_.remove_prefix(declaration.size());
        while (!rest_.empty() && !testing::Test::HasFailure()) {
            rest_.front() == '<' ? readTag() : readText();
        }
        EXPECT_TRUE(open_.empty()) << "not closed";
    }

    [[nodiscard]] const std::vector<SvgElement>& elements() const { return elements_; }

    [[nodiscard]] std::vector<SvgElement> named(std::string_view name) const {
        std::vector<SvgElement> found;
        for (const SvgElement& element : elements_) {
            if (element.name == name) {
                found.push_back(element);
            }
        }
        return found;
    }

    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> found;
        for (const SvgElement& element : named("text")) {
            found.push_back(element.text);
        }
        return found;
    }

  private:
    std::string_view take(std::string_view end) {
        const std::size_t at = rest_.find(end);
        if (at == std::string_view::npos) {
            ADD_FAILURE() << "no " << end;
            return std::exchange(rest_, {});
        }
        const std::string_view taken = rest_.substr(0, at);
        rest_.remove_prefix(at + end.size());
        return taken;
    }

    void readTag() {
        rest_.remove_prefix(1);
        std::string_view tag = take(">");
        if (tag.starts_with("/")) {
            ASSERT_FALSE(open_.empty());
            EXPECT_EQ(tag.substr(1), elements_[open_.back()].name);
            open_.pop_back();
            return;
        }
        const bool closed = tag.ends_with("/");
        tag.remove_suffix(closed ? 1 : 0);
        SvgElement element;
        for (const std::size_t each : open_) {
            element.in_definitions |= elements_[each].name == "defs";
        }
        element.name = tag.substr(0, tag.find(' '));
        tag.remove_prefix(element.name.size());
        while (!tag.empty()) {
            const std::size_t equals = tag.find("=\"");
            const std::size_t end = tag.find('"', equals + 2);
            ASSERT_TRUE(tag.front() == ' ' && equals < tag.size() && end < tag.size()) << tag;
            const bool added =
                element.attributes
                    .emplace(tag.substr(1, equals - 1), tag.substr(equals + 2, end - equals - 2))
                    .second;
            EXPECT_TRUE(added) << tag;
            tag.remove_prefix(end + 1);
        }
        elements_.push_back(element);
        if (!closed) {
            open_.push_back(elements_.size() - 1);
        }
    }

    void readText() {
        const std::size_t end = std::min(rest_.find('<'), rest_.size());
        std::string_view text = rest_.substr(0, end);
        rest_.remove_prefix(end);
        while (!text.empty() && !open_.empty()) {
            std::size_t length = 1;
            char character = text.front();
            if (character == '&') {
                const std::map<std::string_view, char> entities{
                    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
                const std::string_view entity = text.substr(0, text.find(';') + 1);
                ASSERT_TRUE(entities.contains(entity)) << text;
                character = entities.at(entity);
                length = entity.size();
            }
            EXPECT_NE(character, '\0');
            elements_[open_.back()].text += character;
            text.remove_prefix(length);
        }
    }

    std::string_view rest_;
    std::vector<SvgElement> elements_;
    std::vector<std::size_t> open_;
};

}  // namespace mero::picture
