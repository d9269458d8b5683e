// SPDX-License-Identifier: MIT
/// Damages a file: cuts at and around every page, zeros in every page, swapped pages, flipped bits, forged
/// lengths and offsets.
#include "data/damage/damage.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <stdexcept>

#include "platform/numbers/number_text.h"

namespace mero::data::damage {
namespace {

std::string text(std::size_t number) {
    return numbers::general(static_cast<int>(number));
}

template <typename Word>
Word wordAt(const std::string& file, std::size_t at) {
    Word word{};
    std::memcpy(&word, file.data() + at, sizeof word);
    return word;
}

class Damager {
  public:
    using Use = std::function<void(const Damaged&)>;

    Damager(const std::string& file, const Places& places, std::uint32_t seed, const Use& use)
        : file_(&file), places_(places), random_(seed), use_(&use) {}

    void cut() {
        for (std::size_t page = 0; page <= pages(); ++page) {
            for (const std::size_t extra : {std::size_t{0}, std::size_t{1}, kPage / 2, kPage - 1}) {
                const std::size_t length = page * kPage + extra;
                if (length < file_->size()) {
                    give(Kind::Cut, "cut after " + text(length) + " bytes", file_->substr(0, length), {});
                }
            }
        }
    }

    void zeroed() {
        for (std::size_t page = 0; page < pages(); ++page) {
            for (const std::size_t first : {std::size_t{0}, kPage / 2}) {
                std::string content = *file_;
                content.replace(page * kPage + first, kPage - first, kPage - first, '\0');
                give(Kind::Zeroed, "zeros in page " + text(page) + " from " + text(first), content, {});
            }
        }
    }

    void swapped() {
        constexpr int kSwaps = 600;
        for (int swap = 0; swap < kSwaps; ++swap) {
            const std::size_t one = swap % 2 == 0 ? hotPage() : below(pages());
            const std::size_t other = below(pages());
            std::string content = *file_;
            const auto page = [&](std::size_t number) {
                return content.begin() + static_cast<std::ptrdiff_t>(number * kPage);
            };
            std::swap_ranges(page(one), page(one + 1), page(other));
            give(Kind::Swapped, "pages " + text(one) + " and " + text(other) + " swapped", content, {});
        }
    }

    void bits() {
        constexpr int kFiles = 1500;
        for (int round = 0; round < kFiles; ++round) {
            std::string content = *file_;
            std::string name = "bits flipped:";
            std::vector<std::size_t> changed;
            for (std::size_t flips = 1 + below(3); flips > 0; --flips) {
                const std::size_t at = place(round);
                const std::size_t bit = below(8);
                content[at] = static_cast<char>(static_cast<unsigned char>(content[at]) ^ (1U << bit));
                name += " " + text(at) + "." + text(bit);
                changed.push_back(at);
            }
            give(Kind::Bits, name, content, changed);
        }
    }

    void forged() {
        constexpr int kFiles = 1500;
        constexpr std::array kForged{0x0U,    0x1U,    0x7FU,       0xFFU,       0x100U,      0x7FFFU,
                                     0x8000U, 0xFFFFU, 0x10000U,    0x1000000U,  0x7FFFFFFFU, 0x80000000U,
                                     0xFFFU,  0x1000U, 0x5B000000U, 0xFFFFFFFFU, 0x2U,        0x9U};
        for (int round = 0; round < kFiles; ++round) {
            std::string content = *file_;
            const std::size_t size = below(2) == 0 ? 2 : 4;
            const std::size_t at = place(round) / 2 * 2;
            const std::uint32_t value = below(3) == 0 ? static_cast<std::uint32_t>(below(pages()))
                                                      : kForged.at(below(kForged.size()));
            if (at + size > content.size()) {
                continue;
            }
            std::memcpy(content.data() + at, &value, size);
            std::vector<std::size_t> changed;
            for (std::size_t byte = at; byte < at + size; ++byte) {
                changed.push_back(byte);
            }
            give(Kind::Forged,
                 text(size) + " bytes at " + text(at) +
                     " forged: " + numbers::general(static_cast<double>(value)),
                 content, changed);
        }
    }

  private:
    [[nodiscard]] std::size_t pages() const { return file_->size() / kPage; }
    std::size_t below(std::size_t count) { return random_() % count; }
    std::size_t hotPage() {
        const std::array hot{places_.rows,   places_.header, places_.map,
                             std::size_t{0}, std::size_t{2}, std::size_t{3}};
        return hot.at(below(hot.size()));
    }
    /// A byte position, mostly in the table's own pages, for a header near its front, where the structure is.
    std::size_t place(int round) {
        if (round % 4 == 0) {
            return below(file_->size());
        }
        const std::size_t page = hotPage();
        constexpr std::size_t kStructure = 400;
        return page * kPage + below(page == places_.header ? kStructure : kPage);
    }

    void give(Kind kind, const std::string& name, const std::string& content,
              const std::vector<std::size_t>& changed) {
        const bool touches = std::any_of(changed.begin(), changed.end(), [&](std::size_t at) {
            return at / kPage == places_.rows || at / kPage == places_.header;
        });
        (*use_)({kind, name, content, touches});
    }

    const std::string* file_;
    Places places_;
    std::mt19937 random_;
    const Use* use_;
};

}  // namespace

Places placesOf(const std::string& file, double first_duration, double first_intensity) {
    std::string row(6, '\0');
    const auto duration = static_cast<std::int16_t>(first_duration);
    const auto intensity = static_cast<float>(first_intensity);
    std::memcpy(row.data(), &duration, sizeof duration);
    std::memcpy(row.data() + 2, &intensity, sizeof intensity);
    const std::size_t at = file.find(row);
    if (at == std::string::npos || file.find(row, at + 1) != std::string::npos) {
        throw std::invalid_argument("the first row cannot be found");
    }
    Places places;
    places.rows = at / kPage;
    places.header = wordAt<std::uint32_t>(file, places.rows * kPage + 4);
    places.map = wordAt<std::uint32_t>(file, places.header * kPage + 55) >> 8U;
    return places;
}

std::string_view nameOf(Kind kind) {
    switch (kind) {
        case Kind::Cut:
            return "cut";
        case Kind::Zeroed:
            return "zeroed";
        case Kind::Swapped:
            return "swapped";
        case Kind::Bits:
            return "bits";
        case Kind::Forged:
            return "forged";
    }
    return "";
}

void forEachDamage(const std::string& file, const Places& places, std::uint32_t seed,
                   const std::function<void(const Damaged&)>& use) {
    Damager damager(file, places, seed, use);
    damager.cut();
    damager.zeroed();
    damager.swapped();
    damager.bits();
    damager.forged();
}

}  // namespace mero::data::damage
