// SPDX-License-Identifier: MIT
/// Writes the report file with POSIX calls, whose error numbers distinguish a locked file.
#include "report/report_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "platform/files/whole_file.h"
#include "report/code_page.h"

namespace mero::report {
namespace {

/// An open file; the destructor closes it.
class OpenFile {
  public:
    /// Opening a pipe without a reader fails instead of blocking.
    explicit OpenFile(const std::string& path, int flags = 0)
        : descriptor_(open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW | flags, 0666)) {
        if (isOpen()) {
            static_cast<void>(fcntl(descriptor_, F_SETFL, 0));  // writing to a pipe with a reader may block
        }
    }
    ~OpenFile() { static_cast<void>(closeIt()); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }

    /// True for a regular file; a device or a pipe at the path must not be removed.
    [[nodiscard]] bool isRegular() const {
        struct stat status {};
        return fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
    }

    [[nodiscard]] bool writeAll(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR) {
                continue;
            }
            if (count <= 0) {
                return false;
            }
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return true;
    }

    /// Closes the file. Some file systems report a full disk only here.
    [[nodiscard]] bool closeIt() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor < 0 || close(descriptor) == 0;
    }

  private:
    int descriptor_;
};

/// True for errors of opening an existing file that cannot be written now: it is write-protected (by its
/// mode, as immutable or by its file system), or in use, which network shares report as busy.
bool isPermissionDenied(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == ETXTBSY;
}

bool isDenied(const std::string& path) {
    const OpenFile old(path);
    return !old.isOpen() && isPermissionDenied(errno);
}

/// For cases where no new file can replace the old one: a protected folder, a full disk, a pipe.
WriteResult writeInPlace(const std::string& path, std::string_view bytes) {
    OpenFile file(path, O_CREAT | O_TRUNC);
    if (!file.isOpen()) {
        return isPermissionDenied(errno) ? WriteResult::PermissionDenied : WriteResult::Failed;
    }
    const bool removable = file.isRegular();
    const bool written = file.writeAll(bytes);
    const bool closed = file.closeIt();
    if (written && closed) {
        return WriteResult::Written;
    }
    if (removable) {
        removeReport(path);
    }
    return WriteResult::Failed;
}

WriteResult writeBytes(const std::string& path, std::string_view bytes) {
    if (isDenied(path)) {
        return WriteResult::PermissionDenied;
    }
    // Another program in this folder may be reading a report of the same name: it gets the complete old or
    // new one.
    const bool replaced =
        platform::replaceWhole(path, bytes, platform::OnDisk::NotRequired, platform::Links::Refused);
    return replaced ? WriteResult::Written : writeInPlace(path, bytes);
}

}  // namespace

WriteResult writeReport(const std::string& path, std::string_view html_utf8) {
    // The system cuts a path at a zero character, and the cut path is another file's.
    if (path.empty() || path.find('\0') != std::string::npos) {
        return WriteResult::Failed;
    }
    try {
        return writeBytes(path, toWindows1250(html_utf8));
    } catch (const std::exception&) {
        return WriteResult::Failed;
    }
}

bool holdsReport(const std::string& path, std::string_view html_utf8) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure)) {  // opening a pipe would block
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return file.is_open() && !file.bad() && bytes == toWindows1250(html_utf8);
}

void removeReport(const std::string& path) {
    if (!path.empty() && path.find('\0') == std::string::npos) {
        static_cast<void>(unlink(path.c_str()));
    }
}

std::string bareFileName(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

}  // namespace mero::report
