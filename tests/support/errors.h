// SPDX-License-Identifier: MIT
/// Helper of the tests: the run-time error that an action throws.
#pragma once

#include "platform/numbers/runtime_error.h"

namespace mero::test {

/// The number of the RuntimeError that `action` throws, 0 when it throws none.
template <typename Action>
int errorNumberOf(Action action) {
    try {
        static_cast<void>(action());
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace mero::test
