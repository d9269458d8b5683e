/// mero-rain FILE TABLE: prints one table of the rain database as the lines of data/rain_protocol.h.
/// All of the text comes at once, at the end; a failure prints nothing but its reason on standard error.
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <exception>
#include <iostream>
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

ReaderExit run(const std::string& path, const std::string& table_name, int output) {
    try {
        const auto text = mero::data::encode(mero::rain::readTable(path, table_name));
        if (!text) {
            std::cerr << "mero-rain: the table holds what no station's table holds\n";
            return ReaderExit::ReadFailed;
        }
        return writeAll(output, *text) ? ReaderExit::Done : ReaderExit::ReadFailed;
    } catch (const mero::rain::TableError& error) {
        std::cerr << "mero-rain: " << error.what() << '\n';
        return error.exit();
    } catch (const std::exception& error) {  // out of memory: a damaged length
        std::cerr << "mero-rain: " << error.what() << '\n';
        return ReaderExit::ReadFailed;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: mero-rain FILE TABLE\n";
        return static_cast<int>(ReaderExit::WrongArguments);
    }
    mero::rain::setLimits();
    const int output = mero::rain::takeStandardOutput();
    return static_cast<int>(run(argv[1], argv[2], output));
}
