// SPDX-License-Identifier: MIT
/// Files are read within a limit; what is no ordinary file is refused without waiting.
#include "platform/files/bounded_read.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "support/temporary_folder.h"
#include "support/unprivileged.h"

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

TEST(BoundedRead, GivesAllBytesUpToTheLimit) {
    const test::TemporaryFolder folder;
    const std::string bytes = std::string(200000, 'x') + '\0' + "\xFF konec";
    folder.write("a", bytes);
    const FileContent content = readBounded(folder.file("a"), bytes.size());
    EXPECT_EQ(content.failure, ReadFailure::None);
    EXPECT_EQ(content.bytes, bytes);
    folder.write("prázdný", "");
    EXPECT_EQ(readBounded(folder.file("prázdný"), 10).failure, ReadFailure::None);
}

TEST(BoundedRead, RefusesAByteMore) {
    const test::TemporaryFolder folder;
    folder.write("a", std::string(1001, 'x'));
    const FileContent content = readBounded(folder.file("a"), 1000);
    EXPECT_EQ(content.failure, ReadFailure::TooLarge);
    EXPECT_EQ(content.bytes, "");
}

// 2^40 bytes that take no room on the disk.
TEST(BoundedRead, RefusesAHugeFileByItsSize) {
    const test::TemporaryFolder folder;
    folder.write("a", "");
    fs::resize_file(folder.file("a"), std::uintmax_t{1} << 40U);
    EXPECT_EQ(readTextFile(folder.file("a")).failure, ReadFailure::TooLarge);
}

// Its size is told as 0, but it goes on for gigabytes.
TEST(BoundedRead, RefusesAFileThatGrowsWhileItIsRead) {
    EXPECT_EQ(readBounded("/proc/self/pagemap", 1000000).failure, ReadFailure::TooLarge);
}

TEST(BoundedRead, RefusesWhatIsNoFile) {
    const test::TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.file("roura").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", folder.file("zařízení"));
    fs::create_directory(folder.file("složka"));
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    folder.file("s").copy(static_cast<char*>(address.sun_path), sizeof address.sun_path - 1);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the interface of sockets
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    for (const char* name : {"roura", "zařízení", "složka", "s"}) {
        EXPECT_EQ(readTextFile(folder.file(name)).failure, ReadFailure::NoFile) << name;
    }
    close(listener);
}

TEST(BoundedRead, SaysWhatIsMissingOrForbidden) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(readTextFile(folder.file("není")).failure, ReadFailure::NotFound);
    folder.write("tajný", "x");
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(folder.file("tajný"), fs::perms::none);
    EXPECT_EQ(test::unprivileged([&] { return readTextFile(folder.file("tajný")).failure; }),
              ReadFailure::NotPermitted);
}

}  // namespace
}  // namespace mero::platform
