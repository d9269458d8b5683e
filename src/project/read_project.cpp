// SPDX-License-Identifier: MIT
/// From JSON to a project, value by value.
/// Syntax and doubled names are found while parsing, everything else with the path in the document.
#include "project/read_project.h"

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <vector>

#include "platform/controls/text_box.h"
#include "platform/files/bounded_read.h"
#include "platform/numbers/number_text.h"
#include "project/name_scan.h"
#include "project/project.h"
#include "project/shown_text.h"

namespace mero::project {
namespace {

using nlohmann::json;

// Most bytes of a file's own words in an error.
constexpr std::size_t kLongestPath = 200;
constexpr std::size_t kLongestReason = 1200;  // all stations or shafts that a value can be

/// Line and column of a byte of the document, both from 1.
std::string place(std::string_view document, std::size_t byte) {
    const std::string_view before = document.substr(0, std::min(byte, document.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t last_break = before.rfind('\n');
    const std::size_t column =
        last_break == std::string_view::npos ? before.size() : before.size() - last_break - 1;
    return numbers::general(static_cast<int>(line)) + ":" +
           numbers::general(static_cast<int>(std::max<std::size_t>(column, 1)));
}

/// The reason of a syntax error without the library's prefix.
std::string syntaxReason(const std::string& what) {
    const std::size_t colon = what.find(": ");
    return shownText(colon == std::string::npos ? what : what.substr(colon + 2), kLongestPath);
}

json parse(std::string_view document, const std::string& file) {
    // Checked before the values are stored: they need much more memory than the text.
    const NameScan names(document);
    if (names.tooDeep()) {
        throw ProjectError(file + ": objects and lists stand within each other too deeply");
    }
    try {
        json parsed = json::parse(document);
        if (!names.doubled().empty()) {
            throw ProjectError(file + ": " + shownText(names.doubled(), kLongestPath) +
                               ": stands twice; expected each name once");
        }
        return parsed;
    } catch (const json::parse_error& error) {
        throw ProjectError(file + ":" + place(document, error.byte) +
                           ": no valid JSON: " + syntaxReason(error.what()));
    } catch (const json::out_of_range& error) {
        // The library names the number, but not its place.
        const std::string what = error.what();
        const std::size_t quote = what.find('\'');
        const std::string number = quote == std::string::npos ? std::string() : what.substr(quote + 1);
        const std::size_t at = document.find(number.substr(0, number.find('\'')));
        throw ProjectError(file + ":" + place(document, at == std::string_view::npos ? 0 : at + 1) +
                           ": expected a number from -1e12 to 1e12");
    }
}

class Reader {
  public:
    explicit Reader(const std::string& file) : file_(&file) {}

    Project read(const json& document) {
        project_.inputs.rain.durations_min = reference().DobaTrvani;
        readObject(document, "");
        for (const char* section : {"rain", "areas", "subsoil", "facility"}) {
            if (!document.contains(section)) {
                fail(section, std::string("is missing: expected ") +
                                  (section == std::string_view("areas") ? "a list" : "an object"));
            }
        }
        checkRain();
        requireGiven("subsoil.filtration_coefficient_m_s");
        requireGiven("facility.type");
        checkShaft();
        const std::string missing = missingValue(project_.inputs.facility, project_.given);
        if (!missing.empty()) {
            requireGiven(missing);
        }
        return std::move(project_);
    }

  private:
    [[noreturn]] void fail(const std::string& path, const std::string& reason) const {
        throw ProjectError(*file_ + ": " +
                           (path.empty() ? std::string("the document") : shownText(path, kLongestPath)) +
                           ": " + shownText(reason, kLongestReason));
    }

    [[nodiscard]] bool isGiven(const std::string& path) const {
        return std::find(project_.given.begin(), project_.given.end(), path) != project_.given.end();
    }

    void requireGiven(const std::string& path) const {
        if (isGiven(path)) {
            return;
        }
        const Field* field = findField(path);
        fail(path, "is missing" + (field == nullptr ? std::string() : ": expected " + expected(*field)));
    }

    static std::string memberOf(const std::string& path, const std::string& name) {
        return path.empty() ? name : std::string(path).append(".").append(name);
    }

    void requireKnown(const std::string& name, const std::vector<std::string>& names,
                      const std::string& path) const {
        if (std::find(names.begin(), names.end(), name) != names.end()) {
            return;
        }
        const std::string near = nearestName(name, names);
        fail(path, near.empty() ? std::string("is not a known name")
                                : "is not a known name; did you mean \"" + near + "\"?");
    }

    void readObject(const json& object, const std::string& path) {
        if (!object.is_object()) {
            fail(path, "expected an object, not " + shortText(object));
        }
        const std::vector<std::string> names = namesIn(path);
        for (const auto& [name, value] : object.items()) {
            const std::string member = memberOf(path, name);
            requireKnown(name, names, member);
            readMember(value, member);
        }
    }

    void readMember(const json& value, const std::string& path) {
        if (const Field* field = findField(path)) {
            readField(*field, value);
        } else if (path == "areas") {
            readAreas(value);
        } else if (path == "rain.durations_min") {
            readRow(value, path, project_.inputs.rain.durations_min);
        } else if (path == "rain.intensities_l_s_ha") {
            readRow(value, path, project_.inputs.rain.intensities_l_s_ha);
        } else if (path == "$schema") {
            static_cast<void>(textOf(value, path, false));
        } else if (const auto text =
                       std::ranges::find(design::textInputs(), path, &design::TextInputInfo::path);
                   text != design::textInputs().end()) {
            project_.texts.*(text->stored) = textOf(value, path, text->several_lines);
        } else {
            readObject(value, path);
            project_.inputs.facility.overflow.given |= path == "facility.overflow";
            project_.inputs.facility.drain.given |= path == "facility.drain";
        }
        project_.given.push_back(path);
    }

    void readField(const Field& field, const json& value) {
        const bool fits = field.kind == FieldKind::Truth     ? value.is_boolean()
                          : field.kind == FieldKind::Choice  ? value.is_string()
                          : field.kind == FieldKind::Station ? value.is_string() || value.is_number_integer()
                                                             : value.is_number();
        if (!fits) {
            fail(field.path, "expected " + expected(field) + ", not " + shortText(value));
        }
        const std::string text = value.is_string()    ? value.get<std::string>()
                                 : value.is_boolean() ? std::string(value.get<bool>() ? "true" : "false")
                                                      : numbers::general(value.get<double>());
        try {
            store(field, project_.inputs, fieldValue(field, text));
        } catch (const std::invalid_argument& reason) {
            fail(field.path, reason.what());
        }
    }

    float numberOf(const json& value, const std::string& path, const std::string& what) const {
        if (!value.is_number()) {
            fail(path, "expected " + what + ", not " + shortText(value));
        }
        try {
            return singleOf(value.get<double>());
        } catch (const std::invalid_argument& reason) {
            fail(path, reason.what());
        }
    }

    void readRow(const json& value, const std::string& path, std::array<float, calc::kRainRows>& row) const {
        if (!value.is_array() || value.size() != row.size()) {
            fail(path, "expected a list of nine numbers, not " +
                           (value.is_array() ? "one of " + numbers::general(static_cast<int>(value.size()))
                                             : shortText(value)));
        }
        for (std::size_t k = 0; k < row.size(); ++k) {
            row[k] = numberOf(value[k], element(path, k), "a number");
        }
    }

    static std::string element(const std::string& path, std::size_t index) {
        return path + "[" + numbers::general(static_cast<int>(index)) + "]";
    }

    void readAreas(const json& list) {
        if (!list.is_array()) {
            fail("areas", "expected a list, not " + shortText(list));
        }
        const std::vector<std::string> names = namesIn("areas[]");
        for (std::size_t i = 0; i < list.size(); ++i) {
            const std::string path = element("areas", i);
            if (!list[i].is_object()) {
                fail(path, "expected an object, not " + shortText(list[i]));
            }
            for (const auto& [name, value] : list[i].items()) {
                requireKnown(name, names, memberOf(path, name));
            }
            readArea(list[i], path);
        }
    }

    void readArea(const json& object, const std::string& path) {
        const auto number = [&](const char* name, const char* what) {
            const std::string member = memberOf(path, name);
            if (!object.contains(name)) {
                fail(member, std::string("is missing: expected ") + what);
            }
            const float value = numberOf(object[name], member, what);
            if (value == 0.0F) {
                fail(member, std::string("expected ") + what + " other than 0");
            }
            project_.given.push_back(member);
            return value;
        };
        const float area_m2 = number("area_m2", "a number [m²]");
        const float coefficient = number("runoff_coefficient", "a number");
        project_.inputs.areas.push_back({area_m2, coefficient});
        project_.texts.surfaces.push_back(
            object.contains("surface") ? textOf(object["surface"], path + ".surface", false) : std::string());
    }

    /// As a box takes it; a text that a box would change in silence is refused.
    std::string textOf(const json& value, const std::string& path, bool several_lines) const {
        if (!value.is_string()) {
            fail(path, "expected a text, not " + shortText(value));
        }
        const auto text = value.get<std::string>();
        if (!std::ranges::all_of(text, [&](char c) { return platform::isAccepted(c, several_lines); })) {
            fail(path, several_lines ? "expected a text without control characters"
                                     : "expected a text on one line");
        }
        return platform::acceptedText(text, several_lines);
    }

    static std::string shortText(const json& value) {
        constexpr std::size_t kLongest = 40;
        constexpr int kOneLine = -1;
        if (value.is_object()) {
            return "an object";
        }
        if (value.is_array()) {
            return "a list";
        }
        std::string text = value.dump(kOneLine, ' ', false, json::error_handler_t::replace);
        return text.size() <= kLongest ? text : "a longer text";
    }

    void checkRain() {
        const bool own = isGiven("rain.intensities_l_s_ha");
        if (own == isGiven("rain.station")) {
            fail("rain", own ? "expected either \"station\" or \"intensities_l_s_ha\", not both"
                             : "expected \"station\", or \"intensities_l_s_ha\" with nine own values");
        }
        if (!own && isGiven("rain.durations_min")) {
            fail("rain.durations_min",
                 "goes only with \"intensities_l_s_ha\": a station has its own durations");
        }
        requireGiven("rain.periodicity");
        const RainChoice& rain = project_.inputs.rain;
        if (rain.picks_row && std::find(rain.durations_min.begin(), rain.durations_min.end(),
                                        rain.design_duration_min) == rain.durations_min.end()) {
            fail("rain.design_duration_min", "expected one of the nine durations");
        }
    }

    void checkShaft() const {
        if (!isGiven("facility.catalogue_shaft")) {
            return;
        }
        for (const Field& field : design::inputs()) {
            if (isReplacedByRing(field) && isGiven(field.path)) {
                fail(field.path, "does not go with \"catalogue_shaft\", which has its own dimensions");
            }
        }
    }

    const std::string* file_;
    Project project_;
};

}  // namespace

Project readProject(std::string_view document, const std::string& file) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (document.starts_with(kByteOrderMark)) {
        document.remove_prefix(kByteOrderMark.size());
    }
    return Reader(file).read(parse(document, file));
}

Project readProjectFile(const std::string& file) {
    const platform::FileContent document = platform::readTextFile(file);
    if (document.failure != platform::ReadFailure::None) {  // also a folder, a device
        throw ProjectError(file + ": cannot be read" + platform::detailOf(document.failure));
    }
    return readProject(document.bytes, file);
}

}  // namespace mero::project
