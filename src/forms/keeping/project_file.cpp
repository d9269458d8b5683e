// SPDX-License-Identifier: MIT
/// A checksum of the inputs in the window's part tells whether they were changed outside the window.
#include "forms/keeping/project_file.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "forms/keeping/entered_state.h"
#include "forms/keeping/file_failures.h"
#include "forms/keeping/inputs_of_state.h"
#include "forms/keeping/quiet_program.h"
#include "forms/keeping/state_document.h"
#include "platform/files/whole_file.h"
#include "platform/numbers/number_text.h"
#include "project/write_project.h"

namespace mero::forms {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;
using project::ProjectError;

constexpr std::size_t kLargestFile = std::size_t{64} * 1024 * 1024;
constexpr const char* kChecksum = "inputs_checksum";

/// No station is ever chosen in the window as it opens.
class NoRain : public data::RainDatabase {
  public:
    data::StationTable read(std::int16_t /*station_number*/, const std::string& /*path*/) override {
        return {};
    }
};

/// Made once and never changed.
const StateDocument& stateDocument() {
    static const StateDocument kDocument = [] {
        NoRain no_rain;
        QuietProgram fresh(no_rain, "");
        return StateDocument(fresh.program());
    }();
    return kDocument;
}

/// Numbers count by their values, not by how they are written.
json canonical(const json& value) {
    if (value.is_number()) {
        return value.get<double>();
    }
    if (!value.is_structured()) {
        return value;
    }
    json copy = value;
    for (json& member : copy) {
        member = canonical(member);
    }
    return copy;
}

std::string dumped(const auto& document) {
    constexpr int kOneLine = -1;
    return document.dump(kOneLine, ' ', false, json::error_handler_t::replace);
}

/// Indented, but lists of single values on one line.
void appendPretty(std::string& text, const ordered_json& value, std::size_t depth) {
    const auto is_structured = [](const ordered_json& each) { return each.is_structured(); };
    if (!value.is_structured() || value.empty() ||
        (value.is_array() && std::ranges::none_of(value, is_structured))) {
        text += dumped(value);
        return;
    }
    constexpr std::size_t kIndent = 2;
    const auto line = [&](std::size_t at) { return "\n" + std::string(at * kIndent, ' '); };
    text += value.is_array() ? '[' : '{';
    bool first = true;
    for (const auto& [name, member] : value.items()) {
        text += (first ? "" : ",") + line(depth + 1);
        first = false;
        if (value.is_object()) {
            text += dumped(ordered_json(name)) + ": ";
        }
        appendPretty(text, member, depth + 1);
    }
    text += line(depth) + (value.is_array() ? ']' : '}');
}

std::string checksumOf(const json& document) {
    json inputs = document;
    for (const char* name : {"$schema", "version", "window"}) {
        inputs.erase(name);
    }
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    std::uint64_t hash = platform::hashOf(dumped(canonical(inputs)));
    for (std::size_t digit = 0; digit < sizeof hash * 2; ++digit) {
        text.insert(text.begin(), kDigits[hash % kDigits.size()]);
        hash /= kDigits.size();
    }
    return text;
}

/// Puts what is kept beside what is written; where both have a name, what is written counts.
void addKept(ordered_json& document, const ordered_json& kept) {
    for (const auto& [name, value] : kept.items()) {
        const auto place = document.find(name);
        if (place == document.end()) {
            document[name] = value;
        } else if (place->is_object() && value.is_object()) {
            addKept(*place, value);
        }
    }
}

/// The members of an object that this program does not know, those in its sections included.
json unknownInputs(const json& object, const std::string& path) {
    json unknown = json::object();
    const std::vector<std::string> names = project::namesIn(path);
    for (const auto& [name, value] : object.items()) {
        const std::string member = path.empty() ? name : std::string(path).append(".").append(name);
        if (std::ranges::find(names, name) == names.end()) {
            unknown[name] = value;
        } else if (value.is_object() && name != "window") {
            json inside = unknownInputs(value, member);
            if (!inside.empty()) {
                unknown[name] = std::move(inside);
            }
        }
    }
    return unknown;
}

/// What saving gives back to the file.
std::string keptOf(const json& document) {
    json kept = json::object();
    if (const int version = project::versionOf(document); version > project::kVersion) {
        kept = unknownInputs(document, "");
        kept["version"] = version;
        if (const auto window = document.find("window"); window != document.end() && window->is_object()) {
            json unknown = stateDocument().unknown(*window);
            unknown.erase(kChecksum);
            if (!unknown.empty()) {
                kept["window"] = std::move(unknown);
            }
        }
    }
    if (const auto schema = document.find("$schema"); schema != document.end()) {
        kept["$schema"] = *schema;
    }
    return kept.empty() ? std::string() : dumped(kept);
}

/// Does the document have at least one section of a project?
bool isProject(const json& document) {
    constexpr std::array kSections{"project", "rain", "areas", "subsoil", "facility", "window"};
    return document.is_object() &&
           std::ranges::any_of(kSections, [&](const char* name) { return document.contains(name); });
}

json parse(std::string_view text, const std::string& name) {
    try {
        return project::parseDocument(text, name);
    } catch (const project::DocumentError& error) {
        throw ProjectError("Soubor " + name + " není projekt: " +
                           (error.doubled().empty()
                                ? "není platný JSON (řádek " + numbers::general(error.line()) + ", sloupec " +
                                      numbers::general(error.column()) + ")."
                                : "jméno " + error.doubled() + " je v něm dvakrát."));
    }
}

/// The state that the window's part holds, unless the inputs were changed since.
std::optional<WindowState> storedState(const json& document, std::vector<std::string>& remarks) {
    const auto window = document.find("window");
    if (window == document.end() || !window->is_object()) {
        return std::nullopt;
    }
    if (window->value(kChecksum, json()) != checksumOf(document)) {
        remarks.emplace_back(
            "Vstupy v souboru byly změněny mimo okno programu: okno bylo vyplněno podle nich.");
        return std::nullopt;
    }
    try {
        return stateDocument().state(*window);
    } catch (const std::exception&) {
        remarks.emplace_back("window: stav okna nelze přečíst, okno bylo vyplněno podle vstupů.");
        return std::nullopt;
    }
}

}  // namespace

const WindowState& openingState() {
    return stateDocument().opening();
}

Opened readProjectText(std::string_view text, const std::string& name, const ProjectSource& source) {
    const json document = parse(text, name);
    if (!isProject(document)) {
        throw ProjectError("Soubor " + name + " není projekt.");
    }
    Opened opened;
    opened.kept = keptOf(document);
    if (project::versionOf(document) > project::kVersion) {
        opened.remarks.emplace_back(
            "Soubor zapsala novější verze programu. Co tato verze nezná, zůstane při uložení zachováno.");
    }
    auto stored = storedState(document, opened.remarks);
    opened.state = stored ? *std::move(stored) : enteredState(document, source, opened.remarks);
    return opened;
}

Opened openProject(const std::string& path, const ProjectSource& source) {
    auto read = platform::readWhole(path, kLargestFile);
    if (const auto* failure = std::get_if<platform::ReadFailure>(&read)) {
        throw ProjectError(readFailureText(path, *failure));
    }
    const auto& content = std::get<platform::FileContent>(read);
    Opened opened = readProjectText(content.bytes, path, source);
    opened.stamp = content.stamp;
    return opened;
}

std::string projectText(const WindowState& state, const std::string& kept) {
    ordered_json document = ordered_json::object();
    document["version"] = project::kVersion;
    document.update(project::inputsDocument(inputsOf(state, stateDocument())));
    const ordered_json unknown = kept.empty() ? ordered_json::object() : ordered_json::parse(kept);
    if (unknown.contains("version")) {
        document["version"] = unknown["version"];
    }
    addKept(document, unknown);
    ordered_json window = ordered_json::object();
    window[kChecksum] = checksumOf(json::parse(dumped(document)));
    window.update(ordered_json::parse(dumped(stateDocument().differences(state))));
    if (unknown.contains("window")) {
        addKept(window, unknown["window"]);
    }
    document["window"] = std::move(window);
    std::string text;
    appendPretty(text, document, 0);
    return text + "\n";
}

platform::FileStamp saveProject(const std::string& path, const WindowState& state, const std::string& kept) {
    const std::string text = projectText(state, kept);
    if (!platform::replaceWhole(path, text, platform::OnDisk::Required)) {
        throw ProjectError(writeFailureText(path, text.size()));
    }
    return platform::stampOf(path, text);
}

}  // namespace mero::forms
