// SPDX-License-Identifier: MIT
/// Preferences are read as they were written, and a file that makes no sense is no error.
#include "app/keeping/preferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace mero::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PreferencesFile : public testing::Test {
  protected:
    test::TemporaryFolder folder;
    std::string file = folder.file("config/mero.json");

    Preferences readText(const std::string& text) {
        folder.write("p.json", text);
        return readPreferences(folder.file("p.json"));
    }
};

TEST_F(PreferencesFile, IsReadAsItWasWritten) {
    Preferences written;
    written.place = WindowPlace{-5, 20, 1200, 800, true};
    written.folder = "/home/jana/Můj dům";
    written.files = {"/home/jana/dům.json", "/tmp/b.json"};
    written.designer = "Ing. Jana Nováková";
    writePreferences(file, written);
    EXPECT_EQ(readPreferences(file), written);
}

TEST_F(PreferencesFile, KeepsWhatANewerProgramWrote) {
    folder.write("p.json", R"({"zoom": 1.5, "folder": "/a"})");
    Preferences preferences = readPreferences(folder.file("p.json"));
    preferences.folder = "/b";
    writePreferences(folder.file("p.json"), preferences);
    EXPECT_THAT(folder.read("p.json"), HasSubstr("\"zoom\": 1.5"));
    EXPECT_THAT(folder.read("p.json"), HasSubstr("\"folder\": \"/b\""));
}

TEST_F(PreferencesFile, IsAtItsDefaultsWhenItMakesNoSense) {
    EXPECT_EQ(readPreferences(""), Preferences());
    EXPECT_EQ(readPreferences(folder.file("missing.json")), Preferences());
    EXPECT_EQ(readPreferences(folder.path()), Preferences());
    for (const char* text : {"", "{", "[]", "null", "\xff", R"({"window": 5, "files": {}, "folder": 1})",
                             R"({"window": {"x": 1, "y": 1, "width": 0, "height": 5}})",
                             R"({"window": {"x": 1e9, "y": 1, "width": 9, "height": 5}})",
                             R"({"window": {"x": 1000000, "y": 1, "width": 9, "height": 5}})"}) {
        EXPECT_EQ(readText(text), Preferences()) << text;
    }
}

TEST_F(PreferencesFile, TakesWhatMakesSense) {
    const Preferences read = readText(R"({"window": "left", "files": ["/a", 7, "/b"], "designer": "JN"})");
    EXPECT_EQ(read.place, std::nullopt);
    EXPECT_THAT(read.files, ElementsAre("/a", "/b"));
    EXPECT_EQ(read.designer, "JN");
}

TEST_F(PreferencesFile, IsNotWrittenWithoutAPath) {
    writePreferences("", Preferences());
    writePreferences("/proc/no/such/folder/mero.json", Preferences());
}

TEST(PreferencesFiles, AreListedOnceTheLatestFirst) {
    Preferences preferences;
    preferences.used("/a");
    preferences.used("/b");
    preferences.used("/a");
    EXPECT_THAT(preferences.files, ElementsAre("/a", "/b"));
    preferences.forget("/a");
    EXPECT_THAT(preferences.files, ElementsAre("/b"));
}

TEST(PreferencesFiles, AreTenAtMost) {
    Preferences preferences;
    for (char name = 'a'; name <= 'l'; ++name) {
        preferences.used(std::string(1, name));
    }
    EXPECT_THAT(preferences.files, ElementsAre("l", "k", "j", "i", "h", "g", "f", "e", "d", "c"));
}

}  // namespace
}  // namespace mero::app
