// SPDX-License-Identifier: MIT
/// Pools of texts, and texts combined from pieces.
#include "monkey/odd_texts.h"

#include <array>
#include <string_view>

namespace mero::monkey {
namespace {

constexpr std::array kPlausible{"0.1",  "0.2",  "0.35", "0.5",  "0.75",   "1",    "1.2",    "1.5",   "2",
                                "2.5",  "3",    "4",    "5",    "7.5",    "10",   "15",     "20",    "25",
                                "50",   "100",  "150",  "250",  "800",    "1000", "1234.5", "5000",  "20000",
                                "1e-3", "1e-4", "5e-5", "1e-5", "2.5e-6", "1e-7", "1 000",  "131.2", "300"};

constexpr std::array kNasty{"0",
                            "-0",
                            "-1",
                            "-0.5",
                            "-1e-5",
                            "0.0000000001",
                            "1e-30",
                            "1e-45",
                            "1e-46",
                            "1e-400",
                            "1e10",
                            "1e19",
                            "9.99e37",
                            "1e38",
                            "3.4028235e38",
                            "3.4028236e38",
                            "1e39",
                            "1e308",
                            "1e309",
                            "-1e38",
                            "-3e38",
                            "32767",
                            "32767.5",
                            "32768",
                            "-32768.5",
                            "2.5",
                            "3.5",
                            "0.5",
                            "99999999999999999999999999999999999999999",
                            "1e9223372036854775808",
                            "21e9223372036854775807",
                            "0.1e-9223372036854775808",
                            "",
                            " ",
                            ".",
                            "-",
                            "+",
                            "e",
                            "E",
                            "1.",
                            ".5",
                            "1e",
                            "1e-",
                            "1E-",
                            "1.0E-05",
                            "e5",
                            "1e5e",
                            "1.2.3",
                            "1,5",
                            "1;5",
                            "1 2",
                            "1  2",
                            " 7 ",
                            "+5",
                            "--5",
                            "0x10",
                            "1_000",
                            "inf",
                            "-inf",
                            "INF",
                            "Infinity",
                            "nan",
                            "-NaN",
                            "1e inf",
                            "٣",
                            "½",
                            "1\u00a0000",
                            "5\t",
                            "5\n",
                            "\x01",
                            "5%",
                            "1/2",
                            "dvě"};

constexpr std::string_view kNumberCharacters = "0123456789.-+eE ,";

constexpr std::array kFree{"",
                           "Plošné vsakování",
                           "Ing. Žofie Řeháčková, Ph.D.",
                           "Brno – střed",
                           "<b>tučně",
                           "</TH></TR><script>",
                           "a & b < c > d",
                           "\"uvozovky\"",
                           "zpětné\\lomítko",
                           "/../../x",
                           "../x",
                           "a/b",
                           "/",
                           ".",
                           "..",
                           "a\\b",
                           "řádek\r\ndruhý",
                           "jedna\ndvě\rtři",
                           "tab\tulátor",
                           "\x01\x02\x1f",
                           "\x7f",
                           "日本語",
                           "🚰🚱",
                           "Ω≈ç√∫",
                           "e\u0301",
                           "\u202eotočeno",
                           "%s%n%d",
                           "CON",
                           "*?|:",
                           "   ",
                           "€žš",
                           "List84",
                           "5"};

}  // namespace

std::string plausibleNumber(Random& random) {
    return random.oneOf(kPlausible);
}

std::string nastyNumber(Random& random) {
    if (random.percent(70)) {
        return random.oneOf(kNasty);
    }
    std::string text;
    for (int length = 1 + random.below(9); length > 0; --length) {
        text += kNumberCharacters[static_cast<std::size_t>(
            random.below(static_cast<int>(kNumberCharacters.size())))];
    }
    return text;
}

std::string freeText(Random& random) {
    std::string text = random.oneOf(kFree);
    if (random.percent(25)) {
        text += random.oneOf(kFree);
    }
    if (random.percent(2)) {
        constexpr std::size_t kLong = 300;  // longer than a file name may be
        text.append(kLong, 'd');
    }
    return text;
}

std::string quoted(const std::string& text) {
    std::string word = "\"";
    for (const char c : text) {
        switch (c) {
            case '"':
                word += "\\\"";
                break;
            case '\\':
                word += "\\\\";
                break;
            case '\n':
                word += "\\n";
                break;
            case '\r':
                word += "\\r";
                break;
            case '\t':
                word += "\\t";
                break;
            default:
                word += c;
        }
    }
    return word + "\"";
}

}  // namespace mero::monkey
