// SPDX-License-Identifier: MIT
/// From JSON to a project, value by value.
/// Syntax and doubled names are found while parsing, everything else with the path in the document.
#include "project/read_project.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <vector>

#include "platform/controls/text_box.h"
#include "platform/numbers/number_text.h"
#include "project/project.h"
#include "project/shown_text.h"

namespace mero::project {
namespace {

using nlohmann::json;

// Most bytes of a file's own words in an error.
constexpr std::size_t kLongestPath = 200;
constexpr std::size_t kLongestReason = 1200;  // all stations or shafts that a value can be

class Reader {
  public:
    explicit Reader(const std::string& file) : file_(&file) {}
    /// A lenient one: what is wrong is a remark, and the rest is read.
    explicit Reader(std::vector<Remark>& remarks) : remarks_(&remarks) {}

    Project readLeniently(const json& document) {
        begin(document);
        attempt([&] { checkRain(); });
        attempt([&] { checkShaft(); });
        return std::move(project_);
    }

    Project read(const json& document) {
        begin(document);
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
    /// A value was not taken, which is a remark already.
    struct NotTaken {};

    void begin(const json& document) {
        newer_ = versionOf(document) > kVersion;
        project_.inputs.rain.durations_min = reference().DobaTrvani;
        readObject(document, "");
    }

    template <typename Action>
    void attempt(Action action) {
        try {
            action();
        } catch (const NotTaken&) {
            return;
        }
    }

    [[noreturn]] void fail(const std::string& path, const std::string& reason,
                           Fault fault = Fault::WrongValue) const {
        if (remarks_ != nullptr) {
            remarks_->push_back({shownText(path, kLongestPath), fault});
            throw NotTaken();
        }
        throw ProjectError(*file_ + ": " +
                           (path.empty() ? std::string("the document") : shownText(path, kLongestPath)) +
                           ": " + shownText(reason, kLongestReason));
    }

    [[nodiscard]] bool isGiven(const std::string& path) const {
        return std::find(project_.given.begin(), project_.given.end(), path) != project_.given.end();
    }

    void requireGiven(const std::string& path) const {
        if (isGiven(path) || remarks_ != nullptr) {
            return;
        }
        const Field* field = findField(path);
        fail(path, "is missing" + (field == nullptr ? std::string() : ": expected " + expected(*field)),
             Fault::Missing);
    }

    static std::string memberOf(const std::string& path, const std::string& name) {
        return path.empty() ? name : std::string(path).append(".").append(name);
    }

    /// False for an unknown name that a newer program may have written.
    [[nodiscard]] bool requireKnown(const std::string& name, const std::vector<std::string>& names,
                                    const std::string& path) const {
        if (std::find(names.begin(), names.end(), name) != names.end()) {
            return true;
        }
        if (newer_) {
            return false;
        }
        const std::string near = nearestName(name, names);
        fail(path,
             near.empty() ? std::string("is not a known name")
                          : "is not a known name; did you mean \"" + near + "\"?",
             Fault::UnknownName);
    }

    void readObject(const json& object, const std::string& path) {
        if (!object.is_object()) {
            fail(path, "expected an object, not " + shortText(object));
        }
        const std::vector<std::string> names = namesIn(path);
        for (const auto& [name, value] : object.items()) {
            const std::string member = memberOf(path, name);
            attempt([&, &it = value, &its_name = name] {
                if (requireKnown(its_name, names, member)) {
                    readMember(it, member);
                }
            });
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
        } else if (path == "version") {
            if (!value.is_number_integer() || value.get<double>() < 1) {
                fail(path, "expected a whole number from 1, not " + shortText(value));
            }
        } else if (path == "window") {
            // The window's own: no input of a design.
            if (!value.is_object()) {
                fail(path, "expected an object, not " + shortText(value));
            }
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
            attempt([&] { readElement(list[i], names, element("areas", i)); });
        }
    }

    void readElement(const json& object, const std::vector<std::string>& names, const std::string& path) {
        if (!object.is_object()) {
            fail(path, "expected an object, not " + shortText(object));
        }
        for (const auto& [name, value] : object.items()) {
            attempt([&, &its_name = name] {
                static_cast<void>(requireKnown(its_name, names, memberOf(path, its_name)));
            });
        }
        readArea(object, path);
    }

    void readArea(const json& object, const std::string& path) {
        const auto number = [&](const char* name, const char* what) {
            const std::string member = memberOf(path, name);
            if (!object.contains(name)) {
                fail(member, std::string("is missing: expected ") + what, Fault::Missing);
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
        RainChoice& rain = project_.inputs.rain;
        if (own == isGiven("rain.station") && (own || remarks_ == nullptr)) {
            rain.station = 0;
            fail("rain",
                 own ? "expected either \"station\" or \"intensities_l_s_ha\", not both"
                     : "expected \"station\", or \"intensities_l_s_ha\" with nine own values",
                 Fault::Conflict);
        }
        if (rain.station > 0 && isGiven("rain.durations_min")) {
            rain.durations_min = reference().DobaTrvani;
            fail("rain.durations_min",
                 "goes only with \"intensities_l_s_ha\": a station has its own durations", Fault::Conflict);
        }
        requireGiven("rain.periodicity");
        if (rain.picks_row && std::find(rain.durations_min.begin(), rain.durations_min.end(),
                                        rain.design_duration_min) == rain.durations_min.end()) {
            rain.picks_row = false;
            fail("rain.design_duration_min", "expected one of the nine durations", Fault::Conflict);
        }
    }

    void checkShaft() const {
        if (!isGiven("facility.catalogue_shaft")) {
            return;
        }
        for (const Field& field : design::inputs()) {
            if (isReplacedByRing(field) && isGiven(field.path)) {
                fail(field.path, "does not go with \"catalogue_shaft\", which has its own dimensions",
                     Fault::Conflict);
            }
        }
    }

    const std::string* file_ = nullptr;
    std::vector<Remark>* remarks_ = nullptr;
    bool newer_ = false;  ///< written by a newer program: unknown names are its own
    Project project_;
};

}  // namespace

Project readLeniently(const json& document, std::vector<Remark>& remarks) {
    return Reader(remarks).readLeniently(document);
}

Project readProject(std::string_view document, const std::string& file) {
    return Reader(file).read(parseDocument(document, file));
}

Project readProjectFile(const std::string& file) {
    std::string document;
    try {
        std::ifstream stream(file, std::ios::binary);
        stream.exceptions(std::ios::badbit | std::ios::failbit);
        document.assign(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    } catch (const std::ios_base::failure&) {  // no such file, no permission, a folder
        throw ProjectError(file + ": cannot be read");
    }
    return readProject(document, file);
}

}  // namespace mero::project
