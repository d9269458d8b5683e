// SPDX-License-Identifier: MIT
/// Writes with POSIX calls, unbuffered: the data come in large blocks.
/// An interrupted write is resumed.
#include "app/batch/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace mero::app {
namespace {

constexpr const char* kPartSuffix = ".part";

std::string reasonOf(int error_number) {
    return std::generic_category().message(error_number);
}

/// A device, a pipe or a socket, which no file can replace.
bool isNoFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : name_(path.empty() ? "standard output" : path) {
    if (path.empty()) {
        descriptor_ = STDOUT_FILENO;
    } else if (isNoFile(path)) {
        descriptor_ = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
        if (descriptor_ < 0) {
            throw std::runtime_error(cannotBeWritten(reasonOf(errno)));
        }
    } else if (!file_.emplace(path).isOpen()) {
        throw std::runtime_error(cannotBeWritten(file_->reason()));
    }
}

OutputFile::~OutputFile() {
    static_cast<void>(closeDescriptor());
}

bool OutputFile::closeDescriptor() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return descriptor < 0 || descriptor == STDOUT_FILENO || ::close(descriptor) == 0;
}

std::string OutputFile::cannotBeWritten(const std::string& reason) const {
    return name_ + " cannot be written: " + reason;
}

bool OutputFile::fail(const std::string& reason) {
    failure_ = cannotBeWritten(reason);
    return false;
}

bool OutputFile::write(std::string_view text) {
    if (file_) {
        return file_->write(text) || fail(file_->reason());
    }
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor_, text.data(), text.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return fail(reasonOf(errno));
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool OutputFile::finish() {
    if (file_) {
        return file_->putInPlace() || fail(file_->reason());
    }
    return closeDescriptor() || fail(reasonOf(errno));
}

std::string OutputFile::partPath(const std::string& path) {
    std::error_code failure;
    const std::filesystem::path real = std::filesystem::weakly_canonical(path, failure);
    return (failure ? path : real.string()) + kPartSuffix;
}

bool OutputFile::finishPart() {
    if (!file_) {
        return finish();
    }
    name_ += kPartSuffix;
    if (!file_->keepBeside(kPartSuffix)) {
        return fail(file_->reason());
    }
    part_name_ = file_->target();
    return true;
}

}  // namespace mero::app
