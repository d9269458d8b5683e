// SPDX-License-Identifier: MIT
/// Resolves overlaps: pushes labels down from the top, then up from the bottom.
#include "picture/label_column.h"

#include <algorithm>
#include <numeric>

namespace mero::picture {

std::vector<double> labelTops(const std::vector<double>& wanted, double height, double top, double bottom) {
    const double room = std::max(0.0, bottom - top);
    const auto most = static_cast<std::size_t>(height > 0 ? room / height : 0.0);
    const std::size_t count = std::min(wanted.size(), most);

    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return wanted[a] < wanted[b]; });

    std::vector<double> tops(count);
    double free_from = top;
    for (const std::size_t label : order) {
        tops[label] = std::max(wanted[label] - height / 2.0, free_from);
        free_from = tops[label] + height;
    }
    double free_to = bottom;
    for (auto label = order.rbegin(); label != order.rend(); ++label) {
        tops[*label] = std::min(tops[*label], free_to - height);
        free_to = tops[*label];
    }
    return tops;
}

}  // namespace mero::picture
