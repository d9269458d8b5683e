// SPDX-License-Identifier: MIT
/// A person who presses random keys, pastes random texts and clicks at random in the whole window. Nothing of
/// it ends the program, and no number field is left with a text that is no number.
///
/// The short form runs with the other tests. The long one:
///   MERO_PERSON_ACTIONS=100000 MERO_PERSON_SEED=1 build/dev/tests/random_person_test
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTabBar>
#include <QTest>
#include <array>
#include <deque>

#include "app/mero/main_window.h"
#include "monkey/random.h"
#include "platform/controls/text_box.h"
#include "qt/grid_view.h"

namespace mero::app {
namespace {

constexpr int kShortForm = 20000;
constexpr std::size_t kRemembered = 60;

constexpr std::array kTexts{"1 200,5 m²",
                            "0,0001",
                            "1.200,5",
                            "1,200.5",
                            "434\n320\n253",
                            "5\t434,3\n10\t300",
                            "x",
                            "",
                            "-5",
                            "1e99",
                            "1E-4",
                            "2×10⁻⁵ m/s",
                            "500 mm",
                            "\n",
                            "\t\t",
                            "1e-",
                            ".",
                            "Dvůr, 12",
                            "12\u00A0345",
                            "0",
                            "1\t0,9\tPark\n",
                            "nan",
                            "\"",
                            "1;2;3",
                            "99999999",
                            "0.5",
                            "td\ti\n5\t100",
                            "+3",
                            "50 %",
                            "1200,5\t0,9\tStřecha\n3\t1\tx"};

constexpr std::array kKeys{Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape,
                           Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,
                           Qt::Key_Down,      Qt::Key_Home,   Qt::Key_End,     Qt::Key_F2,     Qt::Key_Space,
                           Qt::Key_PageDown,  Qt::Key_Enter};

constexpr std::array kCommands{Qt::Key_A, Qt::Key_A, Qt::Key_C, Qt::Key_X,     Qt::Key_Z,
                               Qt::Key_Z, Qt::Key_Y, Qt::Key_K, Qt::Key_U,     Qt::Key_Backspace,
                               Qt::Key_V, Qt::Key_V, Qt::Key_V, Qt::Key_Delete};

constexpr std::string_view kCharacters = "0123456789012345678901234567890123456789,,..eE-+ xm/";

int setting(const char* name, int otherwise) {
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : otherwise;
}

class RandomPerson : public MainWindow {
  protected:
    RandomPerson() : MainWindow(qt::FocusEvents::RunHandlers) {}

    monkey::Random random{static_cast<std::uint64_t>(setting("MERO_PERSON_SEED", 1))};
    std::deque<std::string> done;

    void remember(std::string action) {
        done.push_back(std::move(action));
        if (done.size() > kRemembered) {
            done.pop_front();
        }
    }

    /// The window that takes events: an open dialog before the main window.
    QWidget& front() {
        for (platform::Form* form : {static_cast<platform::Form*>(&program.window().intDialog),
                                     static_cast<platform::Form*>(&program.window().areaDialog),
                                     static_cast<platform::Form*>(&program.window().coefDialog)}) {
            if (form->visible() && form->enabled()) {
                return *kit.find(*form);
            }
        }
        return window;
    }
    QWidget& focused() {
        QWidget* widget = front().focusWidget();
        return widget == nullptr || !widget->isVisible() ? front() : *widget;
    }

    void clickSomewhere() {
        QList<QWidget*> widgets;
        for (auto* widget : front().findChildren<QWidget*>()) {
            const bool taken = widget->focusPolicy() != Qt::NoFocus ||
                               qobject_cast<QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<QTabBar*>(widget) != nullptr;
            if (taken && widget->isVisible() && widget->isEnabled()) {
                widgets.append(widget);
            }
        }
        QList<QWidget*> of_numbers;
        for (QWidget* place : widgets) {
            if (dynamic_cast<qt::NumberLine*>(place) != nullptr ||
                dynamic_cast<qt::GridView*>(place) != nullptr) {
                of_numbers.append(place);
            }
        }
        if (widgets.isEmpty()) {
            return;
        }
        const bool to_numbers = !of_numbers.isEmpty() && random.percent(50);
        QWidget* place = random.oneOf(to_numbers ? of_numbers : widgets);
        remember("click " + qt::stored(place->objectName()) + " " + place->metaObject()->className());
        if (auto* view = dynamic_cast<qt::GridView*>(place)) {
            clickCell(*view);
        } else if (auto* tabs = qobject_cast<QTabBar*>(place)) {
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(random.below(tabs->count())).center());
        } else if (qobject_cast<QComboBox*>(place) != nullptr) {
            // Its list would take the mouse; the keys choose from it.
            place->setFocus(Qt::MouseFocusReason);
        } else {
            const QSize size = place->size().boundedTo(place->sizeHint());
            QTest::mouseClick(place, Qt::LeftButton, {}, {size.width() / 2, size.height() / 2});
        }
    }
    void clickCell(qt::GridView& view) {
        const int rows = view.model()->rowCount();
        const int columns = view.model()->columnCount();
        if (rows == 0 || columns == 0) {
            return;
        }
        const platform::GridCell cell{1 + random.below(rows), random.below(columns)};
        view.reveal(cell);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.cellRect(cell).center());
    }
    /// The table of entries is often emptied by a random click.
    void enterArea() {
        auto& areas = program.window().areaDialog;
        if (&front() != kit.find(areas) || areas.fgZapisTab.dataRows() > 3) {
            return;
        }
        remember("an area");
        auto& line = dynamic_cast<QLineEdit&>(*kit.find(areas.txtPlocha));
        auto& coefficient = dynamic_cast<QLineEdit&>(*kit.find(areas.txtSoucinitel));
        for (QLineEdit* field : {&coefficient, &line}) {
            field->setFocus();
            field->selectAll();
            QTest::keyClicks(field, field == &line ? "1 200,5" : "0,9");
        }
        QTest::keyClick(&line, Qt::Key_Return);
    }
    void pressKey() {
        const Qt::Key key = random.oneOf(kKeys);
        remember("key " + std::to_string(key));
        QTest::keyClick(&focused(), key, random.percent(10) ? Qt::ShiftModifier : Qt::NoModifier);
    }
    void command() {
        const Qt::Key key = random.oneOf(kCommands);
        remember("ctrl " + std::to_string(key));
        QTest::keyClick(&focused(), key, Qt::ControlModifier);
    }
    void type() {
        const char character = random.oneOf(kCharacters);
        remember(std::string("type ") + character);
        QTest::keyClick(&focused(), character, random.percent(5) ? Qt::KeypadModifier : Qt::NoModifier);
    }
    void paste() {
        const char* text = random.oneOf(kTexts);
        remember(std::string("paste ") + text);
        QApplication::clipboard()->setText(QString::fromUtf8(text));
        QTest::keyClick(&focused(), Qt::Key_V, Qt::ControlModifier);
    }
    void drop() {
        const char* text = random.oneOf(kTexts);
        remember(std::string("drop ") + text);
        QWidget& target = focused();
        if (dynamic_cast<QLineEdit*>(&target) == nullptr) {
            return;
        }
        QMimeData data;
        data.setText(QString::fromUtf8(text));
        QDragEnterEvent enter({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        QDropEvent dropped({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &dropped);
    }
    void commit() {
        const char* text = random.oneOf(kTexts);
        remember(std::string("input method ") + text);
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(text));
        QApplication::sendEvent(&focused(), &event);
    }

    void act() {
        const int kind = random.below(100);
        if (kind < 45) {
            type();
        } else if (kind < 60) {
            pressKey();
        } else if (kind < 70) {
            command();
        } else if (kind < 80) {
            paste();
        } else if (kind < 82) {
            drop();
        } else if (kind < 84) {
            commit();
        } else if (kind < 86) {
            enterArea();
        } else {
            clickSomewhere();
        }
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        QApplication::processEvents();
        QApplication::setActiveWindow(&front());
    }

    /// What is wrong with the number fields, empty when nothing is.
    std::string fault() {
        for (QWidget* form : QApplication::topLevelWidgets()) {
            for (const auto* child : form->findChildren<QLineEdit*>()) {
                const auto* line = dynamic_cast<const qt::NumberLine*>(child);
                if (line == nullptr || !line->entry() || !line->isVisible()) {
                    continue;
                }
                const std::string text = qt::stored(line->text());
                const bool typing = line == line->window()->focusWidget();
                if (!numbers::isFinished(text) && !(typing && numbers::mayStand(text, line->entry()->kind))) {
                    return qt::stored(line->objectName()) + " holds " + text;
                }
            }
        }
        return program.ended() ? "the program ended: " + trace.str() : "";
    }
};

TEST_F(RandomPerson, NeitherEndsTheProgramNorLeavesWhatIsNoNumber) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    // The panels need an area and a rain, which random clicks seldom give.
    run({"set txtSoucFiltrace 1e-4", "click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 1 3",
         "set frmDialog.txtPlocha 1000", "click frmDialog.cmdZapsat", "click frmDialog.OKButton"});
    const int actions = setting("MERO_PERSON_ACTIONS", kShortForm);
    for (int i = 0; i < actions; ++i) {
        trace.str("");
        act();
        const std::string wrong = fault();
        if (!wrong.empty()) {
            std::string story;
            for (const std::string& action : done) {
                story += action + "\n";
            }
            FAIL() << "after " << i + 1 << " actions: " << wrong << "\n" << story;
        }
    }
}

}  // namespace
}  // namespace mero::app
