// SPDX-License-Identifier: MIT
/// Reading whole files, and whether somebody changed them.
#include "platform/files/read_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/temporary_folder.h"

namespace mero::platform {
namespace {

class ReadFile : public ::testing::Test {
  protected:
    void write(const std::string& content) const { std::ofstream(path, std::ios::binary) << content; }
    [[nodiscard]] FileContent content() const { return std::get<FileContent>(readWhole(path, 100)); }
    [[nodiscard]] static ReadFailure failure(const std::string& of, std::size_t largest = 100) {
        return std::get<ReadFailure>(readWhole(of, largest));
    }

    test::TemporaryFolder folder;
    std::string path = folder.path() + "/f";
};

TEST_F(ReadFile, GivesItsBytes) {
    write(std::string("a\0b\r\n", 5));
    EXPECT_EQ(content().bytes, std::string("a\0b\r\n", 5));
}

TEST_F(ReadFile, TellsWhyNot) {
    EXPECT_EQ(failure(path), ReadFailure::NotFound);
    EXPECT_EQ(failure(folder.path()), ReadFailure::NotAFile);
    EXPECT_EQ(failure("/dev/zero"), ReadFailure::NotAFile);
    write("12345");
    EXPECT_EQ(failure(path, 4), ReadFailure::TooLarge);
    EXPECT_EQ(failure(path + std::string(1, '\0')), ReadFailure::NotFound);
}

TEST_F(ReadFile, IsUnchangedUntilItsContentChanges) {
    write("one");
    const FileStamp stamp = content().stamp;
    EXPECT_FALSE(changedSince(path, stamp));
    // The same content in another file, as a copy that was put back.
    std::filesystem::remove(path);
    EXPECT_FALSE(changedSince(path, stamp));
    write("one");
    EXPECT_FALSE(changedSince(path, stamp));
    write("two");
    EXPECT_TRUE(changedSince(path, stamp));
    write("three");
    EXPECT_TRUE(changedSince(path, stamp));
}

TEST_F(ReadFile, HashIsTheKnownOne) {
    // FNV-1a of the empty text and of "a".
    EXPECT_EQ(hashOf(""), 0xCBF29CE484222325ULL);
    EXPECT_EQ(hashOf("a"), 0xAF63DC4C8601EC8CULL);
}

}  // namespace
}  // namespace mero::platform
