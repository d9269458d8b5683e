// SPDX-License-Identifier: MIT
/// A file that is written piece by piece and takes its place at the end.
#include "platform/files/fresh_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/files/leftovers.h"
#include "support/temporary_folder.h"

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

class Fresh : public testing::Test {
  protected:
    [[nodiscard]] std::ptrdiff_t filesThere() const {
        return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
    }
    test::TemporaryFolder folder{" fresh ěš"};
};

TEST_F(Fresh, LeavesTheOldFileUntilItIsComplete) {
    folder.write("a.csv", "starý");
    FreshFile file(folder.file("a.csv"));
    ASSERT_TRUE(file.isOpen());
    EXPECT_TRUE(file.write("no"));
    EXPECT_EQ(folder.read("a.csv"), "starý");
    EXPECT_TRUE(file.write("vý"));
    EXPECT_TRUE(file.putInPlace());
    EXPECT_EQ(folder.read("a.csv"), "nový");
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(Fresh, LeavesNothingWhenItIsGivenUp) {
    folder.write("a.csv", "starý");
    {
        FreshFile file(folder.file("a.csv"));
        EXPECT_TRUE(file.write("půl"));
        EXPECT_EQ(filesThere(), 2);
    }
    EXPECT_EQ(folder.read("a.csv"), "starý");
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(Fresh, IsKeptBesideTheOldFile) {
    folder.write("a.csv", "starý");
    folder.write("a.csv.part", "dřívější");
    FreshFile file(folder.file("a.csv"));
    EXPECT_TRUE(file.write("půl"));
    EXPECT_TRUE(file.keepBeside(".part"));
    EXPECT_EQ(file.target(), folder.file("a.csv.part"));
    EXPECT_EQ(folder.read("a.csv"), "starý");
    EXPECT_EQ(folder.read("a.csv.part"), "půl");
    EXPECT_EQ(filesThere(), 2);
}

TEST_F(Fresh, IsNotKeptInPlaceOfALinkOrAFolder) {
    folder.write("cizí", "cizí");
    fs::create_symlink(folder.file("cizí"), folder.file("a.csv.part"));
    fs::create_directory(folder.file("b.csv.part"));
    for (const char* name : {"a.csv", "b.csv"}) {
        FreshFile file(folder.file(name));
        EXPECT_TRUE(file.write("půl"));
        EXPECT_FALSE(file.keepBeside(".part"));
        EXPECT_EQ(file.reason(), "File exists");
    }
    EXPECT_EQ(folder.read("cizí"), "cizí");
}

TEST_F(Fresh, RefusesALinkWhereItMust) {
    folder.write("cizí", "cizí");
    fs::create_symlink(folder.file("cizí"), folder.file("odkaz"));
    fs::create_symlink(folder.file("není"), folder.file("nikam"));
    for (const char* name : {"odkaz", "nikam"}) {
        EXPECT_FALSE(FreshFile(folder.file(name), Links::Refused).isOpen()) << name;
    }
    EXPECT_EQ(filesThere(), 3);
    EXPECT_EQ(folder.read("cizí"), "cizí");
}

// As the program does that makes PDF files.
TEST_F(Fresh, MayBeWrittenByOthers) {
    FreshFile file(folder.file("a.pdf"));
    EXPECT_TRUE(isTemporaryName(fs::path(file.path()).filename().string()));
    std::ofstream(file.path()) << "hotový";
    EXPECT_TRUE(file.putInPlace());
    EXPECT_EQ(folder.read("a.pdf"), "hotový");
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(Fresh, SaysWhyItCannotBeOpened) {
    fs::create_directory(folder.file("složka"));
    EXPECT_EQ(FreshFile(folder.file("složka")).reason(), "Is a directory");
    EXPECT_EQ(FreshFile(folder.file("není/a")).reason(), "No such file or directory");
    EXPECT_EQ(FreshFile("/dev/null").reason(), "Invalid argument");
    EXPECT_EQ(FreshFile("").reason(), "No such file or directory");
}

}  // namespace
}  // namespace mero::platform
