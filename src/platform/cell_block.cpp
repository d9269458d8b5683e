// SPDX-License-Identifier: MIT
/// Reads and writes blocks of cells.
#include "platform/cell_block.h"

#include <algorithm>

namespace mero::platform {
namespace {

constexpr std::string_view kEnds = "\t\r\n";

std::string trimmed(std::string_view cell) {
    const std::size_t first = cell.find_first_not_of(' ');
    return first == std::string_view::npos
               ? std::string()
               : std::string(cell.substr(first, cell.find_last_not_of(' ') - first + 1));
}

/// A quoted cell, whose closing quotation mark stands before a tab, a line end or the end; otherwise the
/// quotation mark belongs to the text.
bool takeQuoted(std::string_view& text, std::string& cell) {
    if (!text.starts_with('"')) {
        return false;
    }
    std::string content;
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] != '"') {
            content += text[at];
        } else if (at + 1 < text.size() && text[at + 1] == '"') {
            content += text[at++];
        } else if (at + 1 == text.size() || kEnds.find(text[at + 1]) != std::string_view::npos) {
            cell = std::move(content);
            text.remove_prefix(at + 1);
            return true;
        } else {
            return false;
        }
    }
    return false;
}

std::string takeCell(std::string_view& text) {
    std::string cell;
    if (!takeQuoted(text, cell)) {
        const std::size_t length = std::min(text.find_first_of(kEnds), text.size());
        cell = text.substr(0, length);
        text.remove_prefix(length);
    }
    return trimmed(cell);
}

}  // namespace

CellBlock readCellBlock(std::string_view text) {
    const std::size_t last = text.find_last_not_of("\r\n");
    text = text.substr(0, last == std::string_view::npos ? 0 : last + 1);
    CellBlock rows;
    if (text.empty()) {
        return rows;
    }
    rows.emplace_back();
    while (true) {
        rows.back().push_back(takeCell(text));
        if (text.empty()) {
            return rows;
        }
        const bool windows_end = text.starts_with("\r\n");
        if (text.front() != '\t') {
            rows.emplace_back();
        }
        text.remove_prefix(windows_end ? 2 : 1);
    }
}

std::string writeCellBlock(const CellBlock& cells) {
    std::string text;
    for (const auto& row : cells) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::string& cell = row[column];
            text += column > 0 ? "\t" : "";
            if (cell.find_first_of("\t\r\n\"") == std::string::npos) {
                text += cell;
                continue;
            }
            text += '"';
            for (const char c : cell) {
                text += c == '"' ? "\"\"" : std::string(1, c);
            }
            text += '"';
        }
        text += '\n';
    }
    return text;
}

}  // namespace mero::platform
