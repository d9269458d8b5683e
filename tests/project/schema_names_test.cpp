// SPDX-License-Identifier: MIT
/// The schema and the reader know the same names, and the document explains each of them.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "project/fields.h"

namespace mero::project {
namespace {

using nlohmann::json;

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

using Paths = std::set<std::string>;

/// Every name of the schema by its path.
void collect(const json& schema, const std::string& path, Paths& paths) {
    if (schema.contains("items")) {
        collect(schema["items"], path + "[]", paths);
    }
    if (schema.contains("properties")) {
        for (const auto& [name, member] : schema["properties"].items()) {
            const std::string full = path.empty() ? name : path + "." + name;
            paths.insert(full);
            collect(member, full, paths);
        }
    }
}

/// Every name that the reader takes.
Paths namesOfReader() {
    Paths paths;
    for (const char* object :
         {"", "project", "rain", "areas[]", "subsoil", "facility", "facility.overflow", "facility.drain"}) {
        for (const std::string& name : namesIn(object)) {
            paths.insert(*object == '\0' ? name : std::string(object) + "." + name);
        }
    }
    return paths;
}

TEST(ProjectSchema, KnowsTheNamesOfTheReader) {
    Paths paths;
    collect(json::parse(contentOf(MERO_DOCS "/project-file.schema.json")), "", paths);
    EXPECT_EQ(paths, namesOfReader());
}

TEST(ProjectSchema, OffersTheSameChoices) {
    const json schema = json::parse(contentOf(MERO_DOCS "/project-file.schema.json"));
    int compared = 0;
    for (const Field& field : design::inputs()) {
        const auto words = choices(field);
        if (!words.empty()) {
            const std::string name = std::string(field.path).substr(std::string("facility.").size());
            const json& offered = schema["properties"]["facility"]["properties"][name]["enum"];
            EXPECT_EQ(offered.get<std::vector<std::string>>(),
                      std::vector<std::string>(words.begin(), words.end()))
                << field.path;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 5);
}

TEST(ProjectDocument, ExplainsEveryName) {
    const std::string text = contentOf(MERO_DOCS "/project-file.md");
    for (const std::string& path : namesOfReader()) {
        const std::string name = path.substr(path.find_last_of('.') + 1);
        EXPECT_NE(text.find("`" + name + "`"), std::string::npos) << path;
    }
}

}  // namespace
}  // namespace mero::project
