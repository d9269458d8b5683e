// SPDX-License-Identifier: MIT
/// Steps have the captions that a user sees beside the controls.
#include "forms/keeping/step_name.h"

#include <gtest/gtest.h>

#include <set>

#include "support/test_program.h"

namespace mero::forms {
namespace {

class StepName : public testing::Test {
  protected:
    test::TestProgram one;

    std::string of(const std::string& control) {
        const platform::Control* found = one.window().find(control);
        EXPECT_NE(found, nullptr) << control;
        return found == nullptr ? "" : stepName(one.window(), *found);
    }
};

TEST_F(StepName, OfAFieldIsItsCaption) {
    EXPECT_EQ(of("txtProjName"), "Název projektu");
    EXPECT_EQ(of("txtSoucFiltrace"), "Součinitel filtrace (kf) podloží");
    EXPECT_EQ(of("txtSirkaRyhy(4)"), "Šířka rýhy (střední)");
    EXPECT_EQ(of("txtPrumTroubVnej(3)"), "Vnější průměr vsakovací trouby");
    EXPECT_EQ(of("txtVsakPlocha(5)"), "Vsakovací plocha šachty");
    EXPECT_EQ(of("updSacht"), "Počet šachet");
}

TEST_F(StepName, OfAChoiceSaysWhatWasChosen) {
    EXPECT_EQ(of("optSelTypPudy2(1)"), "Typ půdy: Slit a písek, slit");
    EXPECT_EQ(of("optSelTypSachty(0)"), "Tvar šachty: kruhový");
    EXPECT_EQ(of("optSelTypPudy5(1)"), "Typ šachty: typ B");
    EXPECT_EQ(of("optSelType(1)"), "Centralizované");
    EXPECT_EQ(of("chkPredUsaz"), "Předsazené usazování");
    EXPECT_EQ(of("chkSelPretok(4)"), "Drenáž");
    one.giveSite();
    one.chooseType(FacilityType::Trench);
    EXPECT_EQ(of("cboSelType"), "Typ vsakování: " + one.window().cboSelType.text());
}

TEST_F(StepName, OfAButtonSaysWhatItDoes) {
    EXPECT_EQ(of("cmdCalcul(4)"), "Výpočet");
    EXPECT_EQ(of("cmdEdit(0)"), "Intenzity trvání deště");
    EXPECT_EQ(of("cmdEdit(1)"), "Střední odtokový součinitel");
    EXPECT_EQ(of("cmdEdit(2)"), "Součinitel filtrace");
    EXPECT_EQ(of("cmdEdit(3)"), "Přetok a škrcený odtok – Editovat");
    EXPECT_EQ(of("cmdOK(4)"), "Drenáž – OK");
}

TEST_F(StepName, OfADialogIsItsTitle) {
    EXPECT_EQ(stepName(one.window(), one.window().areaDialog.txtPlocha), "Střední odtokový součinitel");
    EXPECT_EQ(stepName(one.window(), one.window().intDialog), "Intenzity trvání deště");
}

TEST_F(StepName, IsThereForEveryControlThatAUserActsOn) {
    for (platform::Form* form : one.program.forms()) {
        for (const platform::Control* control : form->controls()) {
            const bool acts = dynamic_cast<const platform::TextBox*>(control) != nullptr ||
                              dynamic_cast<const platform::Button*>(control) != nullptr ||
                              dynamic_cast<const platform::OptionButton*>(control) != nullptr ||
                              dynamic_cast<const platform::CheckBox*>(control) != nullptr ||
                              dynamic_cast<const platform::DropList*>(control) != nullptr ||
                              dynamic_cast<const platform::UpDown*>(control) != nullptr;
            if (acts) {
                const std::string name = stepName(one.window(), *control);
                EXPECT_NE(name, "") << control->name();
                EXPECT_EQ(name.find(':') + 1, name.find(": ") + 1) << name;
            }
        }
    }
}

}  // namespace
}  // namespace mero::forms
