// SPDX-License-Identifier: MIT
// Replaces the window program: the name of the given document selects what it does.
// It prints nothing; a file that it makes contains the document's name.
#include <unistd.h>

#include <fstream>
#include <string>

int main(int argc, char** argv) {
    if ((argc != 4 && argc != 5) || std::string(argv[1]) != "--export-pdf") {
        return 2;
    }
    const std::string document = argv[2];
    if (document == "slow") {
        pause();
    }
    if (document == "without libraries") {
        return 127;
    }
    if (document == "crash") {
        __builtin_trap();
    }
    if (document == "unreadable") {
        return 1;
    }
    std::ofstream(argv[3]) << document << (argc == 5 ? ", " + std::string(argv[4]) : "");
    return 0;
}
