// SPDX-License-Identifier: MIT
/// Each step is an event of its own, as a person's clicks are.
#include "forms/calc/layout/guided_choice.h"

#include "design/checks.h"

namespace mero::forms {

void chooseByGuide(const qt::WidgetKit& kit, frmCalc& form, FacilityType type) {
    kit.enter([&] { form.SSTab1.userSelect(kTabDesign); });
    if (form.SelectedType == type && form.picResults[type].visible()) {
        return;  // choosing it again would clear its results
    }
    const bool centralised = type == FacilityType::Tank;
    kit.enter([&] { form.optSelType[centralised ? 1 : 0].userClick(); });
    if (centralised) {
        return;  // the group has one type, which its guard lets through or not
    }
    kit.enter([&] { form.cboSelType.userGotFocus(); });
    if (!design::checks::missingInput(form.values())) {
        kit.enter([&] { form.cboSelType.userSelect(static_cast<int>(type)); });
    }
}

}  // namespace mero::forms
