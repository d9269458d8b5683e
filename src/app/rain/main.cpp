// SPDX-License-Identifier: MIT
/// mero-rain FILE TABLE: prints one table of the rain database as the lines of data/rain_protocol.h.
/// The text is printed at once, at the end; a failure prints only its reason, on standard error.
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

#include "app/rain/jet_table.h"
#include "app/rain/limits.h"
#include "app/rain/table_error.h"
#include "data/rain_protocol.h"

namespace {

using mero::data::ReaderExit;

bool writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

ReaderExit fail(ReaderExit exit, const std::string& what, int errors) {
    static_cast<void>(writeAll(errors, "mero-rain: " + what + "\n"));
    return exit;
}

ReaderExit run(const std::string& path, const std::string& table_name, const mero::rain::Streams& streams) {
    try {
        const auto text = mero::data::encode(mero::rain::readTable(path, table_name));
        if (!text) {
            return fail(ReaderExit::ReadFailed, "the table holds what no station's table holds",
                        streams.errors);
        }
        if (!writeAll(streams.output, *text)) {
            return fail(ReaderExit::ReadFailed, "the table cannot be written", streams.errors);
        }
        return ReaderExit::Done;
    } catch (const mero::rain::TableError& error) {
        return fail(error.exit(), error.what(), streams.errors);
    } catch (const std::exception& error) {  // out of memory: a damaged length
        return fail(ReaderExit::ReadFailed, error.what(), streams.errors);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        static_cast<void>(writeAll(STDERR_FILENO, "usage: mero-rain FILE TABLE\n"));
        return static_cast<int>(ReaderExit::WrongArguments);
    }
    mero::rain::setLimits();
    return static_cast<int>(run(argv[1], argv[2], mero::rain::takeStandardStreams()));
}
