/// The script's hands on the whole main window: every control has its widget, and what people see is right.
#include "app/mero/qt_user.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QTest>
#include <sstream>

#include "app/mero/qt_desk.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "forms/calc/layout/calc_window.h"
#include "platform/locale_settings.h"
#include "platform/qt/texts.h"

namespace mero::app {
namespace {

using automation::ScriptRunner;

/// One rain for every station.
class OneRain : public data::RainDatabase {
  public:
    [[nodiscard]] data::StationTable read(std::int16_t /*station*/, const std::string& /*path*/) override {
        data::StationTable table;
        table.columns = {"doba", "5", "2", "1", "05", "02", "01", "005"};
        for (const double minutes : {5, 10, 15, 20, 30, 45, 60, 90, 120}) {
            table.rows.push_back({minutes, 100., 200., 300., 400., 500., 600., 700.});
        }
        return table;
    }
};

class MainWindow : public testing::Test {
  protected:
    std::ostringstream trace;
    std::ostringstream diagnostics;
    QtDesk real_desk{Sitter::Script, [](std::string_view bytes) { return std::string(bytes); }};
    automation::TraceDesk desk{trace, &real_desk, "/nonexistent"};
    platform::FrozenClock clock{{2026, 11, 20, 14, 5, 9}};
    platform::ProgramLocale locale{",", " ", ";"};
    OneRain rain;
    forms::Program program{{desk, clock, locale, rain, "/nonexistent"}};
    qt::WidgetKit kit{[this](const std::function<void()>& event) { program.enter(event); },
                      qt::FocusEvents::RunNothing};
    forms::CalcWindow window{
        kit, program.window(), {[](std::string_view bytes) { return std::string(bytes); }, {}}};
    QtUser user{program, kit};
    ScriptRunner runner{program, user, desk, diagnostics, "test"};

    void SetUp() override { program.start(); }
    void run(std::string_view line) {
        ASSERT_NE(runner.execute(line, 1), ScriptRunner::Step::Unusable) << diagnostics.str();
    }
    void run(std::initializer_list<const char*> lines) {
        for (const char* line : lines) {
            run(std::string_view(line));
        }
    }
    /// Opens every tab, panel and dialog once.
    void showAll() {
        run({"click cmdEdit(0)", "close frmIntDialog", "click cmdEdit(1)", "close frmDialog",
             "click cmdEdit(2)", "close frmCoefDialog", "tab 1", "click optSelType(0)", "select cboSelType 4",
             "tab 2", "tab 3", "tab 0"});
    }
    /// All captions that stand in labels, buttons and frames, line breaks taken out.
    [[nodiscard]] std::vector<std::string> captions() const {
        std::vector<std::string> texts;
        for (const auto* label : window.findChildren<QLabel*>()) {
            texts.push_back(qt::stored(QString(label->text()).replace('\n', ' ')));
        }
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            texts.push_back(qt::stored(button->text()));
        }
        for (const auto* box : window.findChildren<QGroupBox*>()) {
            texts.push_back(qt::stored(box->title()));
        }
        return texts;
    }
    template <typename Widget>
    [[nodiscard]] Widget& widget(std::string_view name) {
        auto* found = dynamic_cast<Widget*>(kit.find(*program.window().find(name)));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
};

TEST_F(MainWindow, EveryControlHasAWidgetWithItsName) {
    showAll();
    for (const platform::Form* form : program.forms()) {
        for (const platform::Control* control : form->controls()) {
            const QWidget* widget = kit.find(*control);
            ASSERT_NE(widget, nullptr) << control->name();
            if (dynamic_cast<const platform::TabPage*>(control) == nullptr) {
                EXPECT_EQ(qt::stored(widget->objectName()), control->name());
            }
        }
    }
}

TEST_F(MainWindow, EveryFieldListAndGridHasASpokenName) {
    showAll();
    for (const platform::Form* form : program.forms()) {
        for (const platform::Control* control : form->controls()) {
            const bool needs_name = dynamic_cast<const platform::TextBox*>(control) != nullptr ||
                                    dynamic_cast<const platform::DropList*>(control) != nullptr ||
                                    dynamic_cast<const platform::Grid*>(control) != nullptr;
            if (needs_name && control->name() != "txtSChange") {
                EXPECT_FALSE(kit.find(*control)->accessibleName().isEmpty()) << control->name();
            }
        }
    }
}

TEST_F(MainWindow, CarriesTheCaptionsAsTheyHaveAlwaysStood) {
    showAll();
    EXPECT_THAT(captions(),
                testing::IsSupersetOf({"Vstupní infromace",
                                       "Název projektu:",
                                       "Řešitel projektu:",
                                       "Místo akce:",
                                       "Investor:",
                                       "Detilní popis:",
                                       "Typ nesoudržné horniny",
                                       "Hladina podzemní vody (pod povrchem)",
                                       "Celková odvodňovaná plocha",
                                       "Intenzita trvání deště",
                                       "l/(s.ha)",
                                       "Doba trvání deště",
                                       "Odtok do vsakovacího zařízení",
                                       "Součinitel filtrace (kf) podloží",
                                       "m²",
                                       "Zadat",
                                       "Vodítko k výběru systému vsakování",
                                       "Výběr typu vsakování",
                                       "Decenralizované",
                                       "Centralizované",
                                       "Součinitel bezpečnosti",
                                       "Typ půdy",
                                       "Typ půdy:",
                                       "Součinitel filtrace (kf) průlehu",
                                       "Součinitel filtrace náplně filtru",
                                       "Pórovitost výplně rýhy",
                                       "Šířka rýhy (střední)",
                                       "Výška rýhy",
                                       "Vnější průměr vsakovací trouby",
                                       "Vnitřní průměr vsakovací trouby",
                                       "Počet potrubí",
                                       "Škrcená odtoková intenzita",
                                       "Výstupní plocha",
                                       "cm²/m",
                                       "Výstupní rychlost",
                                       "Počet šachet:",
                                       "Minimální průsaková dráha",
                                       "Nezámrzná hloubka přitoku",
                                       "Vrstva písku/jemného štěrku",
                                       "Výška filtrační vrstvy",
                                       "Min. hloubka hladiny podzemní vody",
                                       "Specifická vsakovací intenzita",
                                       "l/s.ha",
                                       "Délka dna nádrže",
                                       "Šířka dna nádrže",
                                       "Hloubka nádrže",
                                       "Sklon svahů nádrže",
                                       "1 : n",
                                       "Plocha potřebná pro vsakování",
                                       "Vsakovací plocha šachty",
                                       "DN / Šířka",
                                       "Délka",
                                       "Tloušťka",
                                       "Typ šachty:",
                                       "kruhový",
                                       "pravoúhlý",
                                       "Předsazené usazování",
                                       "Výpočti",
                                       "Editovat",
                                       "Nutno ověřit dlouhodobou simulací!",
                                       "Hloubka průlehu (výška vzdutí)",
                                       "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)",
                                       "Uložit jako",
                                       "Stanice",
                                       "Periodicita",
                                       "Součinitel odtoku",
                                       "Dílčí plocha"}));
}

TEST_F(MainWindow, ResultsCannotBeTypedIntoByAPersonButAScriptCan) {
    auto& result = widget<QLineEdit>("txtOdtokDoVsak");
    EXPECT_TRUE(result.isReadOnly());
    QTest::keyClicks(&result, "7");
    EXPECT_EQ(program.window().txtOdtokDoVsak.text(), "");
    run("type txtOdtokDoVsak \"25.1\"");
    EXPECT_EQ(program.window().txtOdtokDoVsak.text(), "25.1");
    EXPECT_TRUE(result.isReadOnly());
    EXPECT_FALSE(widget<QLineEdit>("txtHPV").isReadOnly());
}

TEST_F(MainWindow, LaterTabsAreBuiltWhenTheyAreShown) {
    EXPECT_EQ(kit.find(program.window().cboSelType), nullptr);
    run("tab 1");
    EXPECT_NE(kit.find(program.window().cboSelType), nullptr);
    EXPECT_EQ(kit.find(program.window().wbShowResults), nullptr);
}

TEST_F(MainWindow, IsDisabledWhileADialogIsOpen) {
    run("click cmdEdit(1)");
    EXPECT_FALSE(widget<QLineEdit>("txtHPV").isEnabled());
    run("close frmDialog");
    EXPECT_TRUE(widget<QLineEdit>("txtHPV").isEnabled());
}

TEST_F(MainWindow, PickingTheSelectedTypeAgainRunsItsHandlerOnce) {
    run({"tab 1", "click optSelType(0)", "select cboSelType 3"});
    int clicks = 0;
    program.window().cboSelType.clicked = [&] { ++clicks; };
    run("select cboSelType 3");
    EXPECT_EQ(clicks, 1);
}

TEST_F(MainWindow, FocusAndLeaveRunTheirHandlersOnceAndOtherActionsNone) {
    int entered = 0;
    int left = 0;
    auto& box = program.window().txtSoucFiltrace;
    box.got_focus = [&] { ++entered; };
    box.lost_focus = [&] { ++left; };
    run({"type txtSoucFiltrace 1", "focus txtSoucFiltrace", "leave txtSoucFiltrace", "click cmdEdit(2)",
         "close frmCoefDialog", "focus txtHPV"});
    EXPECT_EQ(entered, 1);
    EXPECT_EQ(left, 1);
}

TEST_F(MainWindow, AShaftOfRoundShapeGreysTheLength) {
    run({"tab 1", "click optSelType(0)", "select cboSelType 5", "click optSelTypSachty(0)"});
    auto& length = widget<QLineEdit>("txtPrumerSachtyVnej");
    EXPECT_FALSE(length.isEnabled());
    EXPECT_EQ(length.palette().color(QPalette::Base), window.palette().color(QPalette::Button));
    run("click optSelTypSachty(1)");
    EXPECT_TRUE(length.isEnabled());
}

TEST_F(MainWindow, ItsCloseBoxEndsTheProgramAndHidesAllWindows) {
    run("close frmCalc");
    EXPECT_TRUE(program.ended());
    EXPECT_FALSE(window.isVisible());
    EXPECT_THAT(trace.str(), testing::HasSubstr("{\"ended\": true}"));
}

TEST_F(MainWindow, FitsASmallScreen) {
    EXPECT_LE(window.minimumSizeHint().width(), 680);
    EXPECT_LE(window.minimumSizeHint().height(), 480);
}

}  // namespace
}  // namespace mero::app
