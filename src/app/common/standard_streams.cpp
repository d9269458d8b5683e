// SPDX-License-Identifier: MIT
/// Holding the first three descriptors.
/// An output is opened for reading, so that printing fails as it does on a closed one.
#include "app/common/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>

namespace mero::app {

void holdStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (::fcntl(descriptor, F_GETFD) < 0 && errno == EBADF) {
            // The lowest free descriptor is this one.
            static_cast<void>(::open("/dev/null", O_RDONLY));
        }
    }
}

int traceFailed(const char* program) {
    std::cerr << program << ": the trace cannot be written\n";
    return 1;
}

}  // namespace mero::app
