// SPDX-License-Identifier: MIT
/// Opens /dev/null for closed descriptors.
/// Outputs are opened for reading only, so that printing fails as on a closed descriptor.
#include "app/common/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>

namespace mero::app {

void holdStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (::fcntl(descriptor, F_GETFD) < 0 && errno == EBADF) {
            // open() returns the lowest free descriptor, which is this one.
            static_cast<void>(::open("/dev/null", O_RDONLY));
        }
    }
}

int traceFailed(const char* program) {
    std::cerr << program << ": the trace cannot be written\n";
    return 1;
}

}  // namespace mero::app
