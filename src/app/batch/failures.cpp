// SPDX-License-Identifier: MIT
/// Catches the exceptions of a command.
/// Errors in arguments and projects exit with 2, all others with 1.
#include "app/batch/failures.h"

#include <exception>
#include <iostream>
#include <stdexcept>

#include "app/common/command_line.h"
#include "platform/numbers/runtime_error.h"
#include "project/read_project.h"
#include "sweep/variation.h"

namespace mero::app {
namespace {

int tell(const std::exception& error, int status) {
    std::cerr << "mero-batch: " << error.what() << '\n';
    return status;
}

}  // namespace

int reportingFailures(const std::function<int()>& command) {
    try {
        const int status = command();
        std::cout.flush();
        return status == kDone && !std::cout
                   ? tell(std::runtime_error("the output cannot be written"), kFailed)
                   : status;
    } catch (const UsageError& error) {
        return tell(error, kUnusable);
    } catch (const project::ProjectError& error) {
        return tell(error, kUnusable);
    } catch (const sweep::VariationError& error) {
        return tell(error, kUnusable);
    } catch (const std::exception& error) {  // the rain database, memory, threads
        return tell(error, kFailed);
    }
}

}  // namespace mero::app
