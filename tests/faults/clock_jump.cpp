// SPDX-License-Identifier: MIT
// Preloaded into a program: its wall clock returns the seconds since 1970 from the file $CLOCK_JUMP_FILE. The
// steady clock, used for time limits, runs on, as it does when the machine's clock is set.
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

bool jumped(time_t& seconds) {
    const char* path = std::getenv("CLOCK_JUMP_FILE");
    std::FILE* file = path == nullptr ? nullptr : std::fopen(path, "r");
    if (file == nullptr) {
        return false;
    }
    long long value = 0;
    const bool read = std::fscanf(file, "%lld", &value) == 1;
    std::fclose(file);
    seconds = static_cast<time_t>(value);
    return read;
}

}  // namespace

extern "C" int clock_gettime(clockid_t clock, timespec* moment) {
    if (clock == CLOCK_REALTIME && jumped(moment->tv_sec)) {
        moment->tv_nsec = 0;
        return 0;
    }
    return static_cast<int>(syscall(SYS_clock_gettime, clock, moment));
}

extern "C" time_t time(time_t* moment) {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (moment != nullptr) {
        *moment = now.tv_sec;
    }
    return now.tv_sec;
}

extern "C" int gettimeofday(timeval* moment, void* /*zone*/) {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    moment->tv_sec = now.tv_sec;
    moment->tv_usec = static_cast<suseconds_t>(now.tv_nsec / 1000);
    return 0;
}
