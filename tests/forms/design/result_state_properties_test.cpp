// SPDX-License-Identifier: MIT
/// Whatever is entered in whatever order: results that count as current are those that the calculation would
/// give again.
#include <random>

#include "forms/calc/result_state.h"
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using enum FacilityType;

/// A person who enters plausible and odd values at random. The seed is given, so that a failure shows again.
class RandomPerson {
  public:
    explicit RandomPerson(unsigned seed) : random_(seed) {}

    Project project;

    void start() {
        project.site("500", "1e-4", kStorm, 3);
        for (int type = 1; type <= 6; ++type) {
            choose(static_cast<FacilityType>(type));
            fillPanel();
        }
    }
    /// One event.
    void act() {
        switch (below(12)) {
            case 0:
                choose(static_cast<FacilityType>(1 + below(6)));
                break;
            case 1:
                project.tab(kTabInputs);
                project.set(form().txtSoucFiltrace, one({"1e-4", "5e-5", "1e-3"}));
                back();
                break;
            case 2:
                project.tab(kTabInputs);
                project.set(form().txtHPV, one({"", "2", "5"}));
                back();
                break;
            case 3:
                project.area(one({"300", "500"}));
                back();
                break;
            case 4:
                leaveRainTableUnconfirmed();
                break;
            case 5:
                chooseOption();
                break;
            case 6:
                pipes();
                break;
            default:
                below(2) == 0 ? calculate() : editPanel();
        }
        project.messages();
        project.errors();
    }
    void calculate() {
        if (form().SelectedType == None || !form().picResults[form().SelectedType].onScreen()) {
            return;
        }
        if (design::isLive(form().SelectedType)) {
            project.select(form().cboSelType, form().cboSelType.position());
        } else {
            project.calculate();
        }
    }
    frmCalc& form() { return project.window(); }
    /// Texts of the results of the type.
    std::vector<std::string> results(FacilityType type) {
        std::vector<std::string> texts;
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            texts.push_back(form().textBox(design::controlName(row.box, type)).text());
        }
        return texts;
    }

  private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    std::string one(const std::vector<std::string>& of) {
        return of[static_cast<std::size_t>(below(static_cast<int>(of.size())))];
    }
    void back() {
        if (form().SelectedType != None) {
            choose(form().SelectedType);
        } else {
            choose(Trench);
        }
    }
    void choose(FacilityType type) { type == Tank ? project.chooseTank() : project.choose(type); }

    std::vector<platform::TextBox*> inputs() {
        std::vector<platform::TextBox*> boxes;
        for (const design::PanelInput& row : design::panelInputs(form().SelectedType)) {
            if (info(row.input).stored == nullptr) {
                continue;
            }
            platform::TextBox& box =
                form().textBox(design::controlName(info(row.input).box, form().SelectedType));
            if (box.onScreen() && box.reachable()) {
                boxes.push_back(&box);
            }
        }
        return boxes;
    }
    void fillPanel() {
        if (form().SelectedType == Shaft) {
            project.click(form().optSelTypSachty[0]);
        }
        for (platform::TextBox* box : inputs()) {
            project.set(*box, one({"1", "1.5", "0.4"}));
        }
    }
    void editPanel() {
        const auto boxes = inputs();
        if (!boxes.empty()) {
            platform::TextBox& box = *boxes[static_cast<std::size_t>(below(static_cast<int>(boxes.size())))];
            project.set(box, one({"1", "1.5", "0.4", "2", "0", ""}));
        }
    }
    void chooseOption() {
        const int which = below(2);
        switch (form().SelectedType) {
            case Swale:
                project.click(form().optSelTypPudy2[which]);
                break;
            case SwaleTrench:
                project.click(form().optSelTypPudy3[which]);
                break;
            case Shaft:
                project.click(form().optSelTypPudy5[which]);
                break;
            case Tank:
                project.click(form().chkPredUsaz);
                break;
            default:
                break;
        }
    }
    void pipes() {
        const FacilityType type = form().SelectedType;
        if (type != SwaleTrench && type != Trench) {
            return;
        }
        if (form().picPretokSkrOdtok[type].onScreen() && below(3) != 0) {
            project.click(form().cmdOK[type]);
        } else if (form().cmdEdit[type].reachable() && below(2) == 0) {
            project.click(form().cmdEdit[type]);
        } else {
            project.click(form().chkSelPretok[type]);
        }
    }
    void leaveRainTableUnconfirmed() {
        project.tab(kTabInputs);
        project.click(form().cmdEdit[0]);
        project.cell(form().intDialog.fgIntDeste, 1 + below(9), 1 + below(2));
        if (form().intDialog.txtSChange.visible()) {
            project.set(form().intDialog.txtSChange, one({"50", "250", "0"}));
        }
        form().intDialog.close_requested();
        project.tab(kTabDesign);
    }

    std::mt19937 random_;
};

TEST(ResultStateProperties, CurrentResultsAreThoseThatTheCalculationGivesAgain) {
    constexpr unsigned kPeople = 30;
    constexpr int kEvents = 150;
    int current = 0;
    int stale = 0;
    for (unsigned seed = 1; seed <= kPeople; ++seed) {
        RandomPerson person(seed);
        person.start();
        for (int event = 0; event < kEvents; ++event) {
            person.act();
            const FacilityType type = person.form().SelectedType;
            const bool shown = type != None && person.form().picResults[type].onScreen();
            if (!shown) {
                continue;
            }
            const ResultState state = resultState(person.form(), type);
            stale += state == ResultState::Stale ? 1 : 0;
            if (state != ResultState::Current) {
                continue;
            }
            ++current;
            const auto before = person.results(type);
            person.calculate();
            person.project.messages();
            person.project.errors();
            ASSERT_EQ(person.results(type), before)
                << "type " << static_cast<int>(type) << ", person " << seed << ", event " << event;
        }
    }
    // Both were met often enough to say something.
    EXPECT_GT(current, 200);
    EXPECT_GT(stale, 200);
}

}  // namespace
}  // namespace mero::forms::test
