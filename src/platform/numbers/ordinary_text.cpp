// SPDX-License-Identifier: MIT
/// Replaces typographic characters by their UTF-8 bytes, so that no other character has to be decoded.
#include "platform/numbers/ordinary_text.h"

#include <algorithm>
#include <array>

namespace mero::numbers {
namespace {

struct Replacement {
    std::string_view character;
    std::string_view ordinary;
};

constexpr std::array<Replacement, 41> kReplacements{{
    {"\r\n", "\n"},   {"\r", "\n"},     {"\v", "\n"},    {"\f", "\n"},    {"\u0085", "\n"},
    {"\u2028", "\n"}, {"\u2029", "\n"}, {"\u00A0", " "}, {"\u2000", " "}, {"\u2001", " "},
    {"\u2002", " "},  {"\u2003", " "},  {"\u2004", " "}, {"\u2005", " "}, {"\u2006", " "},
    {"\u2007", " "},  {"\u2008", " "},  {"\u2009", " "},  // thin
    {"\u200A", " "},  {"\u202F", " "},                    // narrow, no break
    {"\u205F", " "},  {"\u3000", " "},  {"\u200B", ""},  {"\u200E", ""},  {"\u200F", ""},
    {"\u2060", ""},   {"\uFEFF", ""},   {"\u00AD", ""},  {"\u2010", "-"}, {"\u2011", "-"},
    {"\u2012", "-"},  {"\u2013", "-"},  {"\u2212", "-"}, {"\uFE63", "-"}, {"\uFF0D", "-"},
    {"\u00D7", "*"},  {"\u00B7", "*"},  {"\u2219", "*"}, {"\u22C5", "*"}, {"\u2022", "*"},
    {"\u2715", "*"},
}};

constexpr std::array<Replacement, 12> kSuperscripts{{
    {"\u2070", "0"},
    {"\u00B9", "1"},
    {"\u00B2", "2"},
    {"\u00B3", "3"},
    {"\u2074", "4"},
    {"\u2075", "5"},
    {"\u2076", "6"},
    {"\u2077", "7"},
    {"\u2078", "8"},
    {"\u2079", "9"},
    {"\u207A", "+"},
    {"\u207B", "-"},
}};

template <typename List>
const Replacement* find(const List& list, std::string_view text) {
    const auto* const found = std::find_if(list.begin(), list.end(), [text](const Replacement& each) {
        return text.starts_with(each.character);
    });
    return found == list.end() ? nullptr : &*found;
}

}  // namespace

std::string ordinaryText(std::string_view text) {
    std::string ordinary;
    bool raised = false;
    while (!text.empty()) {
        const Replacement* superscript = find(kSuperscripts, text);
        if (superscript != nullptr && !raised) {
            ordinary += '^';
        }
        raised = superscript != nullptr;
        const Replacement* replacement = raised ? superscript : find(kReplacements, text);
        if (replacement == nullptr) {
            ordinary += text.front();
            text.remove_prefix(1);
        } else {
            ordinary += replacement->ordinary;
            text.remove_prefix(replacement->character.size());
        }
    }
    return ordinary;
}

}  // namespace mero::numbers
