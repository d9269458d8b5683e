// SPDX-License-Identifier: MIT
/// Sets resource limits and redirections with POSIX calls.
/// A limit that cannot be set is skipped: the parent's time limit and checks still apply.
#include "app/rain/limits.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>

#include "data/reader_environment.h"

namespace mero::rain {
namespace {

constexpr int kFirstFreeDescriptor = STDERR_FILENO + 1;
constexpr rlim_t kProcessorSeconds = 2;
// The library needs a few MiB; a damaged length field makes it request gigabytes.
constexpr rlim_t kMemoryBytes = 128U << 20U;
#ifdef MERO_SANITIZED
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif

void limit(decltype(RLIMIT_CORE) resource, rlim_t most) {
    const rlimit bound{most, most};
    static_cast<void>(::setrlimit(resource, &bound));
}

}  // namespace

void setLimits() {
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, kProcessorSeconds);
    if (kLimitsMemory) {
        limit(RLIMIT_AS, kMemoryBytes);
    }
    for (const char* variable : data::kLibraryVariables) {
        ::unsetenv(variable);
    }
}

Streams takeStandardStreams() {
    const Streams streams{::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, kFirstFreeDescriptor),
                          ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, kFirstFreeDescriptor)};
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere >= 0) {
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
    }
    if (nowhere >= kFirstFreeDescriptor) {
        ::close(nowhere);
    }
    return streams;
}

}  // namespace mero::rain
