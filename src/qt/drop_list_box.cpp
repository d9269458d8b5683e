// SPDX-License-Identifier: MIT
/// Binds drop-down lists to combo boxes.
/// Only `activated` is observed: it is emitted for the user's choice, not for filling and selecting by code.
#include "qt/drop_list_box.h"

#include <QSignalBlocker>

#include "qt/field_keys.h"
#include "qt/program_style.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;
using platform::DropList;

constexpr int kVisibleEntries = 20;

/// Opens the list below its box with a limited number of entries, instead of over the whole screen.
class ListStyle : public ProgramStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_ComboBox_Popup ? 0 : ProgramStyle::styleHint(hint, option, widget, data);
    }
};

void showItems(QComboBox& combo, const DropList& list) {
    const QSignalBlocker silence(combo);
    const auto& items = list.items();
    const auto shared = qMin(combo.count(), static_cast<int>(items.size()));
    int same = 0;
    while (same < shared && combo.itemText(same) == shown(items[static_cast<std::size_t>(same)])) {
        ++same;
    }
    while (combo.count() > same) {
        combo.removeItem(combo.count() - 1);
    }
    for (auto i = static_cast<std::size_t>(same); i < items.size(); ++i) {
        combo.addItem(shown(items[i]));
    }
    combo.setCurrentIndex(list.position());
}

void showPosition(QComboBox& combo, const DropList& list) {
    const QSignalBlocker silence(combo);
    combo.setCurrentIndex(list.position());
}

}  // namespace

QComboBox& makeDropList(WidgetKit& kit, DropList& list, QWidget& parent) {
    auto& combo = *new QComboBox(&parent);
    auto* style = new ListStyle;
    style->setParent(&combo);
    combo.setStyle(style);
    combo.setMaxVisibleItems(kVisibleEntries);
    combo.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    keepWheelForFocus(combo);
    showItems(combo, list);
    bindCommon(kit, list, combo);
    bindFocus(kit, combo, [&list] { list.userGotFocus(); }, {});
    follow(list, combo, [&list, &combo](Aspect aspect) {
        if (aspect == Aspect::Items) {
            showItems(combo, list);
        } else if (aspect == Aspect::Position) {
            showPosition(combo, list);
        }
    });
    QObject::connect(&combo, &QComboBox::activated, &combo, [&kit, &list, &combo](int position) {
        kit.enter([&list, position] { list.userSelect(position); });
        showPosition(combo, list);
    });
    return combo;
}

}  // namespace mero::qt
