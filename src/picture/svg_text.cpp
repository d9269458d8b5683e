// SPDX-License-Identifier: MIT
/// Estimates text widths, escapes texts, formats numbers and colours.
/// The widths hold for ASCII; other characters get the width of a wide letter.
#include "picture/svg_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

/// Advance widths of the characters from the blank to "~" in DejaVu Sans [1/1000 of the font size].
constexpr std::array<int, 95> kWidths{
    318, 401, 460, 838, 636, 950, 780, 275, 390, 390, 500, 838, 318, 361,  318, 337, 636, 636, 636,
    636, 636, 636, 636, 636, 636, 636, 337, 337, 838, 838, 838, 531, 1000, 684, 686, 698, 770, 632,
    575, 775, 752, 295, 295, 656, 557, 863, 748, 787, 603, 787, 695, 635,  611, 732, 684, 989, 685,
    611, 685, 390, 337, 390, 838, 500, 500, 613, 635, 550, 635, 615, 352,  635, 634, 278, 278, 579,
    278, 974, 634, 612, 635, 635, 411, 521, 392, 634, 592, 818, 592, 592,  525, 636, 337, 636, 838};
/// Most accented letters are narrower, most signs are not.
constexpr int kAccentedWidth = 700;
constexpr int kSignWidth = 1000;
/// How much wider a bold text is.
constexpr double kBoldFactor = 1.16;
/// Ascent plus descent of DejaVu Sans [font sizes].
constexpr double kLineFactor = 1.164;
/// Half the difference of ascent and descent [font sizes].
constexpr double kBaselineFactor = 0.346;

int widthOf(unsigned char byte) {
    constexpr unsigned char kFirst = 0x20;
    constexpr unsigned char kContinuation = 0x80;
    constexpr unsigned char kTwoBytes = 0xC0;
    constexpr unsigned char kThreeBytes = 0xE0;
    if (byte >= kThreeBytes) {
        return kSignWidth;
    }
    if (byte >= kTwoBytes) {
        return kAccentedWidth;
    }
    if (byte >= kContinuation || byte < kFirst) {
        return 0;
    }
    const auto position = static_cast<std::size_t>(byte - kFirst);
    return position < kWidths.size() ? kWidths[position] : 0;
}

}  // namespace

TextSizes svgTextSizes(double font_size_px) {
    return {.line_height = std::ceil(kLineFactor * font_size_px),
            .measure = [font_size_px](std::string_view text, Emphasis emphasis) {
                int thousandths = 0;
                for (const char byte : text) {
                    thousandths += widthOf(static_cast<unsigned char>(byte));
                }
                const double width = thousandths / 1000.0 * font_size_px;
                return emphasis == Emphasis::Strong ? kBoldFactor * width : width;
            }};
}

double svgBaseline(double font_size_px) {
    return kBaselineFactor * font_size_px;
}

std::string xmlText(std::string_view text) {
    constexpr unsigned char kFirstPrintable = 0x20;
    std::string safe;
    for (const char c : text) {
        switch (c) {
            case '&':
                safe += "&amp;";
                break;
            case '<':
                safe += "&lt;";
                break;
            case '>':
                safe += "&gt;";
                break;
            case '"':
                safe += "&quot;";
                break;
            default:
                if (static_cast<unsigned char>(c) >= kFirstPrintable) {
                    safe += c;
                }
        }
    }
    return safe;
}

std::string svgNumber(double value) {
    std::string text = numbers::fixed(value, 2);
    std::erase(text, ' ');
    return text;
}

std::string svgColour(unsigned colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += kDigits[(colour >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

}  // namespace mero::picture
