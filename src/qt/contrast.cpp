// SPDX-License-Identifier: MIT
/// Derives colours from the palette, so that they suit every desktop.
#include "qt/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "qt/look.h"

namespace mero::qt {
namespace {

/// A little more than demanded, because colours are rounded to 8 bits and edges are smoothed.
constexpr double kSpare = 1.1;
constexpr int kSteps = 50;
constexpr double kCardShare = 0.65;
constexpr double kStripTint = 0.13;
constexpr double kDividerShare = 0.18;

double luminance(const QColor& colour) {
    constexpr double kLinearBelow = 0.04045;
    const auto linear = [](double share) {
        return share <= kLinearBelow ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    constexpr double kGlare = 0.05;
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + kGlare) / (darker + kGlare);
}

QColor outlineColour(const QPalette& palette) {
    const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
    const std::array grounds{palette.color(QPalette::Active, QPalette::Window),
                             palette.color(QPalette::Active, QPalette::Base),
                             palette.color(QPalette::Active, QPalette::Button), cardColour(palette)};
    for (int step = 0; step < kSteps; ++step) {
        const QColor grey = mixed(grounds.front(), ink, static_cast<double>(step) / kSteps);
        const bool seen = std::ranges::all_of(grounds, [&grey](const QColor& ground) {
            return contrast(grey, ground) >= kOutlineContrast * kSpare;
        });
        if (seen) {
            return grey;
        }
    }
    return ink;
}

QColor cardColour(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    // A card is lighter than the window: on dark desktops the fields are the darkest.
    return isDark(palette) ? mixed(window, palette.color(QPalette::Active, QPalette::WindowText), 0.04)
                           : mixed(window, palette.color(QPalette::Active, QPalette::Base), kCardShare);
}

QColor titleStripColour(const QPalette& palette) {
    return mixed(cardColour(palette), palette.color(QPalette::Active, QPalette::Highlight), kStripTint);
}

QColor titleColour(const QPalette& palette) {
    const QColor link = palette.color(QPalette::Active, QPalette::Link);
    return contrast(link, titleStripColour(palette)) >= kTextContrast
               ? link
               : palette.color(QPalette::Active, QPalette::WindowText);
}

QColor primaryColour(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor fill = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor away = contrast(text, Qt::black) > contrast(text, Qt::white) ? Qt::black : Qt::white;
    int step = 0;
    const auto stronger = [&] { return mixed(fill, away, static_cast<double>(step) / kSteps); };
    while (step < kSteps && contrast(stronger(), text) < kTextContrast) {
        ++step;
    }
    return stronger();
}

QColor dividerColour(const QPalette& palette) {
    return mixed(palette.color(QPalette::Active, QPalette::Window),
                 palette.color(QPalette::Active, QPalette::WindowText), kDividerShare);
}

}  // namespace mero::qt
