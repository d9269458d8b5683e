// SPDX-License-Identifier: MIT
/// Files are replaced completely or not at all, under real faults.
#include "platform/files/whole_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "support/temporary_folder.h"
#include "support/unprivileged.h"

namespace mero::platform {
namespace {

namespace fs = std::filesystem;
using mero::test::unprivileged;

class WholeFile : public testing::Test {
  protected:
    void SetUp() override { fs::permissions(folder.path(), fs::perms::all); }

    [[nodiscard]] std::ptrdiff_t filesThere() const {
        return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
    }

    mero::test::TemporaryFolder folder{" whole ěš"};
};

TEST_F(WholeFile, IsMadeWithTheRightsOfNewFiles) {
    const mode_t mask = umask(027);
    EXPECT_TRUE(replaceWhole(folder.file("a.html"), "obsah"));
    umask(mask);
    EXPECT_EQ(folder.read("a.html"), "obsah");
    EXPECT_EQ(fs::status(folder.file("a.html")).permissions(), fs::perms(0640));
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(WholeFile, ReplacesAnOldOneAndKeepsItsRights) {
    folder.write("a.html", std::string(5000, 'x'));
    fs::permissions(folder.file("a.html"), fs::perms(0604));
    EXPECT_TRUE(replaceWhole(folder.file("a.html"), "nový"));
    EXPECT_EQ(folder.read("a.html"), "nový");
    EXPECT_EQ(fs::status(folder.file("a.html")).permissions(), fs::perms(0604));
}

TEST_F(WholeFile, LeavesTheOldOneWhenTheDiskIsFull) {
    folder.write("a.html", "starý");
    fs::permissions(folder.file("a.html"), fs::perms::all);
    EXPECT_FALSE(unprivileged([&] {
        const rlimit limit{4096, 4096};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        return replaceWhole(folder.file("a.html"), std::string(100000, 'x'));
    }));
    EXPECT_EQ(folder.read("a.html"), "starý");
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(WholeFile, LeavesTheOldOneWhenTheWriterFails) {
    folder.write("a.pdf", "starý");
    EXPECT_FALSE(replaceWhole(folder.file("a.pdf"), [](const std::string& fresh_path) {
        std::ofstream(fresh_path) << "půl";
        return false;
    }));
    EXPECT_EQ(folder.read("a.pdf"), "starý");
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(WholeFile, IsNotWrittenIntoAReadOnlyFolder) {
    folder.write("a.html", "starý");
    fs::permissions(folder.file("a.html"), fs::perms::all);
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_FALSE(unprivileged([&] { return replaceWhole(folder.file("a.html"), "nový"); }));
    EXPECT_FALSE(unprivileged([&] { return replaceWhole(folder.file("b.html"), "nový"); }));
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(folder.read("a.html"), "starý");
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(WholeFile, DoesNotReplaceAProtectedOne) {
    folder.write("a.html", "starý");
    fs::permissions(folder.file("a.html"), fs::perms(0444));
    EXPECT_FALSE(unprivileged([&] { return replaceWhole(folder.file("a.html"), "nový"); }));
    EXPECT_EQ(folder.read("a.html"), "starý");
}

TEST_F(WholeFile, DoesNotTakeTheFolderInItsPlace) {
    fs::create_directory(folder.file("a.pdf"));
    EXPECT_FALSE(replaceWhole(folder.file("a.pdf"), "x"));
    EXPECT_TRUE(fs::is_directory(folder.file("a.pdf")));
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(WholeFile, DoesNotTakeADevicesPlace) {
    fs::create_symlink("/dev/full", folder.file("a.pdf"));
    EXPECT_FALSE(replaceWhole(folder.file("a.pdf"), "x"));
    EXPECT_FALSE(replaceWhole("/dev/full", "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(filesThere(), 1);
}

TEST_F(WholeFile, GoesWhereALinkLeads) {
    folder.write("pravý.html", "starý");
    fs::create_symlink(folder.file("pravý.html"), folder.file("odkaz.html"));
    EXPECT_TRUE(replaceWhole(folder.file("odkaz.html"), "nový"));
    EXPECT_TRUE(fs::is_symlink(folder.file("odkaz.html")));
    EXPECT_EQ(folder.read("pravý.html"), "nový");
}

TEST_F(WholeFile, NeedsAFolderAndAName) {
    EXPECT_FALSE(replaceWhole("", "x"));
    EXPECT_FALSE(replaceWhole(folder.file("není/a.html"), "x"));
    EXPECT_FALSE(replaceWhole(folder.file(std::string("a\0b", 3)), "x"));
    EXPECT_FALSE(replaceWhole(folder.path() + "/", "x"));
    EXPECT_FALSE(replaceWhole(folder.file(std::string(300, 'n')), "x"));
    EXPECT_EQ(filesThere(), 0);
}

}  // namespace
}  // namespace mero::platform
