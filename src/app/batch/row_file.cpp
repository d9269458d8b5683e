// SPDX-License-Identifier: MIT
/// Writes with POSIX calls, unbuffered: the rows come in large blocks.
/// An interrupted write is resumed.
#include "app/batch/row_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace mero::app {
namespace {

std::string reason(int error_number) {
    return std::generic_category().message(error_number);
}

}  // namespace

RowFile::RowFile(const std::string& path)
    : name_(path.empty() ? "standard output" : path), descriptor_(STDOUT_FILENO), owned_(!path.empty()) {
    constexpr mode_t kForAll = 0666;
    if (owned_) {
        descriptor_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kForAll);
        if (descriptor_ < 0) {
            throw std::runtime_error(name_ + " cannot be written: " + reason(errno));
        }
    }
}

RowFile::~RowFile() {
    if (owned_ && descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

bool RowFile::fail() {
    failure_ = name_ + " cannot be written: " + reason(errno);
    return false;
}

bool RowFile::write(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor_, text.data(), text.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return fail();
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool RowFile::close() {
    if (!owned_) {
        return true;
    }
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return ::close(descriptor) == 0 || fail();
}

}  // namespace mero::app
