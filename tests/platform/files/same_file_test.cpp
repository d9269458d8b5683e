// SPDX-License-Identifier: MIT
/// Two paths of one file are recognised, whatever they look like.
#include "platform/files/same_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.h"

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

class SameFile : public testing::Test {
  protected:
    void SetUp() override {
        folder.write("a", "x");
        folder.write("b", "x");
        fs::create_directory(folder.file("složka"));
        fs::create_directory_symlink(folder.path(), folder.file("složka/zpět"));
    }
    test::TemporaryFolder folder{" ěš"};
};

TEST_F(SameFile, IsKnownUnderOtherSpellings) {
    EXPECT_TRUE(isSameFile(folder.file("a"), folder.file("a")));
    EXPECT_TRUE(isSameFile(folder.file("a"), folder.file("./složka/../a")));
    EXPECT_TRUE(isSameFile(folder.file("a"), folder.file("složka/zpět/a")));
    EXPECT_FALSE(isSameFile(folder.file("a"), folder.file("b"))) << "of the same content";
}

TEST_F(SameFile, IsKnownThroughLinks) {
    fs::create_symlink(folder.file("a"), folder.file("odkaz"));
    fs::create_hard_link(folder.file("a"), folder.file("jméno"));
    EXPECT_TRUE(isSameFile(folder.file("a"), folder.file("odkaz")));
    EXPECT_TRUE(isSameFile(folder.file("odkaz"), folder.file("jméno")));
}

TEST_F(SameFile, IsKnownBeforeItIsThere) {
    EXPECT_TRUE(isSameFile(folder.file("nový"), folder.file("složka/../nový")));
    EXPECT_TRUE(isSameFile(folder.file("nový"), folder.file("složka/zpět/nový")));
    EXPECT_FALSE(isSameFile(folder.file("nový"), folder.file("jiný")));
    EXPECT_FALSE(isSameFile(folder.file("nový"), folder.file("a")));
    EXPECT_FALSE(isSameFile(folder.file("není/nový"), folder.file("není/nový"))) << "no file can be made";
}

TEST_F(SameFile, IsKnownByItsNameInTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_TRUE(isSameFile("a", folder.file("a")));
    EXPECT_TRUE(isSameFile("nový", folder.file("nový")));
    fs::current_path(before);
}

TEST_F(SameFile, IsNoDeviceAndNoFolder) {
    EXPECT_FALSE(isSameFile("/dev/null", "/dev/null"));
    EXPECT_FALSE(isSameFile(folder.path(), folder.path()));
    EXPECT_FALSE(isSameFile("", ""));
}

}  // namespace
}  // namespace mero::platform
