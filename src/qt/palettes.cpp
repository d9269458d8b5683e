// SPDX-License-Identifier: MIT
/// The colours of the two palettes.
/// The contrast of texts to their background is 4.5 : 1 at least, also for disabled widgets.
#include "qt/palettes.h"

#include <QApplication>
#include <QStyle>

#include "qt/look.h"

namespace mero::qt {
namespace {

struct Colours {
    QRgb window;
    QRgb base;
    QRgb alternate_base;
    QRgb button;
    QRgb text;
    QRgb disabled_text;
    QRgb highlight;
    QRgb disabled_highlight;
    QRgb link;
    QRgb visited_link;
    QRgb tip;
    // The edges of raised widgets, from the brightest to the darkest.
    QRgb light;
    QRgb mid_light;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
};

constexpr Colours kLight{.window = 0xffe9eef4,
                         .base = 0xffffffff,
                         .alternate_base = 0xfff4f7fa,
                         .button = 0xffe3eaf1,
                         .text = 0xff16191c,
                         .disabled_text = 0xff5b6268,
                         .highlight = 0xff145ca8,
                         .disabled_highlight = 0xff8d959c,
                         .link = 0xff145ca8,
                         .visited_link = 0xff6b3fa0,
                         .tip = 0xfffffbe6,
                         .light = 0xffffffff,
                         .mid_light = 0xfff8f9fa,
                         .mid = 0xffb6bbc0,
                         .dark = 0xff979da3,
                         .shadow = 0xff6c7278};

constexpr Colours kDark{.window = 0xff272b30,
                        .base = 0xff17191c,
                        .alternate_base = 0xff202429,
                        .button = 0xff3d434b,
                        .text = 0xffe8eaec,
                        .disabled_text = 0xffb4b9be,
                        .highlight = 0xff3578b6,
                        .disabled_highlight = 0xff565c62,
                        .link = 0xff7db9ee,
                        .visited_link = 0xffbfa2e6,
                        .tip = 0xff45423a,
                        .light = 0xff5e6369,
                        .mid_light = 0xff50555a,
                        .mid = 0xff222427,
                        .dark = 0xff17181a,
                        .shadow = 0xff0e0f10};

QPalette paletteOf(const Colours& colours) {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour) {
        palette.setColor(role, QColor(colour));
    };
    set(QPalette::Window, colours.window);
    set(QPalette::Base, colours.base);
    set(QPalette::AlternateBase, colours.alternate_base);
    set(QPalette::Button, colours.button);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText}) {
        set(role, colours.text);
        palette.setColor(QPalette::Disabled, role, QColor(colours.disabled_text));
    }
    set(QPalette::PlaceholderText, colours.disabled_text);
    set(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours.disabled_highlight));
    set(QPalette::HighlightedText, 0xffffffff);
    set(QPalette::Link, colours.link);
    set(QPalette::LinkVisited, colours.visited_link);
    set(QPalette::ToolTipBase, colours.tip);
    set(QPalette::ToolTipText, colours.text);
    set(QPalette::Light, colours.light);
    set(QPalette::Midlight, colours.mid_light);
    set(QPalette::Mid, colours.mid);
    set(QPalette::Dark, colours.dark);
    set(QPalette::Shadow, colours.shadow);
    return palette;
}

}  // namespace

QPalette lightPalette() {
    return paletteOf(kLight);
}

QPalette darkPalette() {
    return paletteOf(kDark);
}

void useOwnColoursWhereDesktopHasNone() {
    const QPalette given = QApplication::style()->standardPalette();
    const QPalette used = QApplication::palette();
    const bool untouched = used.color(QPalette::Window) == given.color(QPalette::Window) &&
                           used.color(QPalette::Base) == given.color(QPalette::Base) &&
                           used.color(QPalette::Highlight) == given.color(QPalette::Highlight);
    if (untouched) {
        QApplication::setPalette(isDark(given) ? darkPalette() : lightPalette());
    }
}

}  // namespace mero::qt
