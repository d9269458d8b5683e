// SPDX-License-Identifier: MIT
/// Sets the program up and performs the user's longer tasks in the dialogs.
#include "support/test_program.h"

#include "automation/script_line.h"

namespace mero::test {

TestProgram::TestProgram(Start /*later*/)
    : program(forms::Surroundings{desk, clock, locale, rain, folder.path()}) {
    constexpr std::int16_t kBrnoNumber = 84;
    rain.tables[kBrnoNumber] = FakeRainDatabase::regular(9);
}

TestProgram::TestProgram() : TestProgram(Start::Later) {
    start();
}

void TestProgram::type(platform::TextBox& box, const std::string& text) {
    for (const std::string& key : automation::keysOf(text)) {
        user.typeCharacter(box, key);
    }
}

void TestProgram::paste(platform::TextBox& box, const std::string& text) {
    user.paste(box, text);
}

void TestProgram::erase(platform::TextBox& box, int count) {
    for (int i = 0; i < count; ++i) {
        user.eraseCharacter(box);
    }
}

void TestProgram::giveRain(const std::string& intensity) {
    constexpr int kRowOf15Minutes = 3;
    click(window().cmdEdit[0]);
    select(rainDialog().cboSelPeriod, 4);
    cell(rainDialog().fgIntDeste, kRowOf15Minutes, 1);
    paste(rainDialog().txtSChange, intensity);
    press(rainDialog().txtSChange, platform::Key::Enter);
    cell(rainDialog().fgIntDeste, kRowOf15Minutes, 2);
    click(rainDialog().cmdOK);
}

void TestProgram::giveArea(const std::string& area) {
    click(window().cmdEdit[1]);
    paste(areaDialog().txtSoucinitel, "1");
    paste(areaDialog().txtPlocha, area);
    click(areaDialog().cmdZapsat);
    click(areaDialog().OKButton);
}

void TestProgram::takeAreaAway() {
    click(window().cmdEdit[1]);
    click(areaDialog().cmdDeleteAll);
    click(areaDialog().OKButton);
}

void TestProgram::giveSite() {
    giveRain("150");
    giveArea("1000");
    paste(window().txtSoucFiltrace, "1e-4");
}

void TestProgram::chooseType(data::FacilityType type) {
    tab(forms::kTabDesign);
    click(window().optSelType[0]);
    select(window().cboSelType, static_cast<int>(type));
}

}  // namespace mero::test
