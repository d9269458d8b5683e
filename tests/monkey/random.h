// SPDX-License-Identifier: MIT
/// Random numbers that are the same on every machine. The distributions of the standard library may differ
/// between implementations, its engine does not.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace mero::monkey {

class Random {
  public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    /// 0 to `count` - 1; `count` must be positive.
    int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
    /// True in about `percent` of 100 cases.
    bool percent(int percent) { return below(100) < percent; }
    /// A random element; the list must not be empty.
    template <typename List>
    const auto& oneOf(const List& list) {
        return *(std::begin(list) + below(static_cast<int>(std::size(list))));
    }

  private:
    std::mt19937_64 engine_;
};

}  // namespace mero::monkey
