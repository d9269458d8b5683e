// SPDX-License-Identifier: MIT
/// The schema is the file in the tree, knows the names of the reader and describes the numbers; the document
/// explains all other names.
#include "project/schema.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "design/verdict.h"
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
    collect(json::parse(schema()), "", paths);
    EXPECT_EQ(paths, namesOfReader());
}

/// If they differ, the text is written beside the kept file as NAME.out; moving it over the file accepts it.
TEST(ProjectSchema, IsTheFileThatIsKept) {
    const std::string kept = MERO_DOCS "/project-file.schema.json";
    const std::string out = kept + ".out";
    if (schema() == contentOf(kept)) {
        std::filesystem::remove(out);
        return;
    }
    std::ofstream(out, std::ios::binary) << schema();
    FAIL() << "differs from " << kept << "; to accept it: mv " << out << " " << kept;
}

TEST(ProjectDocument, ExplainsEveryNameThatIsMoreThanANumberOfTheSchema) {
    const std::string text = contentOf(MERO_DOCS "/project-file.md");
    for (const std::string& path : namesOfReader()) {
        const Field* field = findField(path);
        if (field != nullptr && (field->kind == FieldKind::Number || field->kind == FieldKind::WholeNumber)) {
            EXPECT_STRNE(field->note, "") << path << " has no description in the schema";
            continue;
        }
        const std::string name = path.substr(path.find_last_of('.') + 1);
        EXPECT_NE(text.find("`" + name + "`"), std::string::npos) << path;
    }
}

TEST(ProjectDocument, ExplainsEveryVerdict) {
    const std::string text = contentOf(MERO_DOCS "/project-file.md");
    for (const design::VerdictInfo& verdict : design::verdicts()) {
        const std::string code = verdict.code;
        // The checks of the inputs and the run-time errors are named by their patterns.
        if (isOfDesigns(verdict.id) && !isRuntimeError(verdict.id) && !code.ends_with("_not_positive")) {
            EXPECT_NE(text.find("`" + code + "`"), std::string::npos) << code;
        }
    }
}

}  // namespace
}  // namespace mero::project
