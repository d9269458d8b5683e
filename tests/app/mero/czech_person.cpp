// SPDX-License-Identifier: MIT
/// Runs a script as mero-batch does, but on the window and with Czech habits: numbers come
/// with a decimal comma, grouped digits and their unit, from the keys, the keypad and a spreadsheet's
/// clipboard.
///
/// Use: mero-czech-person run [--folder DIR] [--clock TIME] SCRIPT
/// Each number is entered in another way than the one before. Which ways were used is told at the end.
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <array>
#include <iostream>

#include "app/common/options.h"
#include "app/mero/qt_desk.h"
#include "app/mero/qt_user.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "data/rain_database.h"
#include "forms/calc/layout/calc_window.h"
#include "platform/locale_settings.h"
#include "platform/numbers/numeric_locale.h"
#include "qt/number_line.h"
#include "qt/texts.h"
#include "report/view_html.h"

namespace mero::app {
namespace {

/// The number with a comma, and its digits in groups of three.
QString czech(const std::string& number, QChar group) {
    QString text = qt::shown(number).replace('.', ',');
    const qsizetype end = text.contains('e') || !text.contains(',') ? text.size() : text.indexOf(',');
    if (!text.contains('e')) {
        for (qsizetype at = end - 3; at > 0; at -= 3) {
            text.insert(at, group);
        }
    }
    return text;
}

class CzechPerson : public QtUser {
  public:
    CzechPerson(forms::Program& program, const qt::WidgetKit& kit) : QtUser(program, kit), kit_(&kit) {}

    void typeCharacter(platform::TextBox& box, const std::string& character) override {
        if (numberField(box) != nullptr && character == ".") {
            QTest::keyClick(numberField(box), ',');
        } else {
            QtUser::typeCharacter(box, character);
        }
    }

    void paste(platform::TextBox& box, const std::string& text) override {
        qt::NumberLine* line = numberField(box);
        if (line == nullptr) {
            QtUser::paste(box, text);
            return;
        }
        line->setFocus(Qt::MouseFocusReason);
        line->selectAll();
        if (text.empty()) {
            QTest::keyClick(line, Qt::Key_Delete);
        } else {
            (this->*kWays[way_++ % kWays.size()])(*line, text);
        }
        QApplication::processEvents();
    }

    [[nodiscard]] std::size_t entered() const { return way_; }

  private:
    using Way = void (CzechPerson::*)(qt::NumberLine&, const std::string&);

    void typed(qt::NumberLine& line, const std::string& text) {
        const QString number = czech(text, ' ');
        for (const QChar character : number) {
            QTest::keyClick(&line, character.toLatin1());
        }
    }
    void typedOnKeypad(qt::NumberLine& line, const std::string& text) {
        const QString number = czech(text, ' ').remove(' ');
        for (const QChar character : number) {
            QTest::keyClick(&line, character.toLatin1(), Qt::KeypadModifier);
        }
    }
    /// From a text document, with no-break blanks and the unit.
    void pastedWithUnit(qt::NumberLine& line, const std::string& text) {
        const QString unit = line.entry()->unit.contains(':') ? QString() : line.entry()->unit;
        QApplication::clipboard()->setText(czech(text, QChar(0x00A0)) + QChar(0x00A0) + unit);
        QTest::keySequence(&line, QKeySequence::Paste);
    }
    /// A cell of a spreadsheet: plain text with a line end, beside HTML.
    void pastedCell(qt::NumberLine& line, const std::string& text) {
        auto* cell = new QMimeData;
        cell->setText(czech(text, QChar(0x202F)) + "\r\n");
        cell->setHtml("<table><tr><td>" + czech(text, QChar(0x202F)) + "</td></tr></table>");
        QApplication::clipboard()->setMimeData(cell);
        QTest::keySequence(&line, QKeySequence::Paste);
    }
    void pastedHtml(qt::NumberLine& line, const std::string& text) {
        auto* cell = new QMimeData;
        cell->setHtml("<table><tr><td>" + czech(text, ' ') + "</td></tr></table>");
        QApplication::clipboard()->setMimeData(cell);
        QTest::keySequence(&line, QKeySequence::Paste);
    }

    static constexpr std::array<Way, 5> kWays{&CzechPerson::typed, &CzechPerson::pastedWithUnit,
                                              &CzechPerson::typedOnKeypad, &CzechPerson::pastedCell,
                                              &CzechPerson::pastedHtml};

    [[nodiscard]] qt::NumberLine* numberField(const platform::TextBox& box) const {
        auto* line = dynamic_cast<qt::NumberLine*>(kit_->find(box));
        return line != nullptr && line->entry() && !line->isReadOnly() ? line : nullptr;
    }

    const qt::WidgetKit* kit_;
    std::size_t way_ = 0;
};

int run(const RunOptions& options) {
    QtDesk real_desk(Sitter::Script, report::viewHtml);
    automation::TraceDesk desk(std::cout, &real_desk, options.folder);
    platform::FrozenClock clock(*options.frozen_moment);
    platform::ProgramLocale locale;
    data::MdbRainDatabase rain_database;
    forms::Program program({desk, clock, locale, rain_database, options.folder});
    qt::WidgetKit kit([&](const std::function<void()>& event) { program.enter(event); },
                      qt::FocusEvents::RunHandlers);
    forms::CalcWindow window(kit, program.window(), {report::viewHtml, {}});
    CzechPerson person(program, kit);
    automation::ScriptRunner runner(program, person, desk, std::cerr, options.script);
    program.start();
    QApplication::setActiveWindow(&window);
    const int status = runner.run(std::cin);
    std::cerr << "numbers entered: " << person.entered() << '\n';
    return status;
}

}  // namespace
}  // namespace mero::app

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 2, argv + argc);
    int window_system_arguments = 1;
    const QApplication application(window_system_arguments, argv);
    mero::numbers::useNumericCLocale();
    return mero::app::run(mero::app::parseRunOptions(arguments, mero::app::ScriptArgument::Plain));
}
