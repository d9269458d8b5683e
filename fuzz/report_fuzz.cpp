// SPDX-License-Identifier: MIT
/// Reports with texts of arbitrary bytes: the document must keep its frame, the conversion must not fail, and
/// text stored as windows-1250 must read back unchanged.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "design/input.h"
#include "design/quantity.h"
#include "report/code_page.h"
#include "report/html_report.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
namespace design = mero::design;
namespace report = mero::report;

/// Reads texts and numbers from the front of the input.
class Input {
  public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    unsigned byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto value = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return value;
    }
    std::string text() {
        const std::size_t length = std::min<std::size_t>(byte(), rest_.size());
        std::string taken(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return taken;
    }
    float number() {
        float value = 0;
        if (rest_.size() >= sizeof value) {
            std::memcpy(&value, rest_.data(), sizeof value);
            rest_.remove_prefix(sizeof value);
        }
        return std::isfinite(value) ? value : 0.0F;
    }

  private:
    std::string_view rest_;
};

std::array<std::string*, 13> textsOf(report::ReportData& data) {
    return {&data.texts.txtProjName,
            &data.texts.txtProjektant,
            &data.texts.txtInvestor,
            &data.texts.txtMistoAkce,
            &data.texts.txtDetails,
            &data.texts.txtTypPudyPodlozi,
            &data.type_name,
            &data.rain.station,
            &data.rain.periodicity,
            &data.options.ring,
            &data.options.soil_caption,
            &data.date,
            &data.time};
}

report::ReportData reportOf(Input& input) {
    report::ReportData data;
    data.type = static_cast<mero::data::FacilityType>(input.byte() % mero::data::kTypeSlots);
    const unsigned flags = input.byte();
    data.options.drain = (flags & 1U) != 0;
    data.options.overflow = (flags & 2U) != 0;
    data.options.sand_layer = (flags & 4U) != 0;
    data.options.shape = static_cast<mero::data::ShaftShape>((flags & 8U) != 0 ? 1 : 0);
    data.options.upstream_settling = (flags & 16U) != 0;
    for (std::string* text : textsOf(data)) {
        *text = input.text();
    }
    for (const design::QuantityInfo& quantity : design::quantities()) {
        data.numbers.*quantity.stored = input.number();
    }
    for (const design::InputInfo& field : design::inputs()) {
        if (field.stored != nullptr) {
            data.numbers.*field.stored = input.number();
        }
    }
    data.rain.rows[0].duration_min = input.number();
    data.rain.rows[8].intensity_l_s_ha = input.number();
    for (unsigned entries = input.byte() % 5; entries > 0; --entries) {
        const float area = input.number();
        const float coefficient = input.number();
        data.partial_areas.push_back({area, coefficient, input.text()});
    }
    return data;
}

void checkReport(const report::ReportData& data) {
    const std::string html = report::htmlReport(data);
    require(html.starts_with("<html><body>") && html.ends_with("</div></body><html>\r\n"),
            "the document has its frame");
    require(html.find(data.texts.txtProjName) != std::string::npos,
            "the project's name stands as it was typed");
    require(data.texts.txtDetails.empty() || html.find(data.texts.txtDetails) != std::string::npos,
            "the description stands as it was typed");
    const std::string stored = report::toWindows1250(html);
    require(stored.size() <= html.size(), "one byte for a character");
    require(report::toWindows1250(report::fromWindows1250(stored)) == stored, "what is stored reads back");
}

/// Checks the report without texts, because the user's texts may contain anything.
void checkNumbers(report::ReportData data) {
    for (std::string* text : textsOf(data)) {
        text->clear();
    }
    data.partial_areas.clear();
    const std::string html = report::htmlReport(data);
    for (const std::string_view word : {">inf<", ">-inf<", ">nan<", ">-nan<"}) {
        require(html.find(word) == std::string::npos, "every number is one");
    }
}

void checkCodePage(std::string_view bytes) {
    const std::string stored = report::toWindows1250(bytes);
    require(stored.size() <= bytes.size(), "one byte for a character or a malformed sequence");
    require(report::toWindows1250(report::fromWindows1250(stored)) == stored, "a stored text reads back");
    const std::string read = report::fromWindows1250(bytes);
    std::string expected(bytes);
    for (char& c : expected) {
        constexpr std::string_view kWithoutCharacter = "\x81\x83\x88\x90\x98";
        c = kWithoutCharacter.find(c) != std::string_view::npos ? '?' : c;
    }
    require(report::toWindows1250(read) == expected, "every byte of the code page survives");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    checkCodePage(bytes);
    Input input(bytes);
    const report::ReportData data_of_report = reportOf(input);
    checkReport(data_of_report);
    checkNumbers(data_of_report);
    return 0;
}
