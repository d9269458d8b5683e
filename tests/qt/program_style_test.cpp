// SPDX-License-Identifier: MIT
/// The program's style: the outlines of controls can be seen, measured in what is painted.
#include "qt/program_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>

#include "qt/contrast.h"
#include "qt/look.h"
#include "qt/palettes.h"

namespace mero::qt {
namespace {

struct Desktop {
    const char* name;
    QPalette (*palette)();
};

QPalette grey() {
    return ProgramStyle().standardPalette();
}

void PrintTo(const Desktop& desktop, std::ostream* out) {
    *out << desktop.name;
}

/// Controls on a card and on the bare window.
class Outlines : public testing::TestWithParam<Desktop> {
  protected:
    void SetUp() override {
        QApplication::setPalette(palette);
        window.resize(400, 200);
    }
    void TearDown() override { QApplication::setPalette(before); }

    /// The contrast of the outline at the left edge of `control` to what is on its left, and to its inside;
    /// the smaller one. The edge is looked for in the middle of its height.
    double measured(QWidget& control, QWidget& parent) {
        auto* column = new QVBoxLayout(&parent);
        column->addWidget(&control, 0, Qt::AlignLeft | Qt::AlignTop);
        window.show();
        parent.show();
        control.clearFocus();
        QApplication::processEvents();
        const QImage image = window.grab().toImage();
        const QPoint edge = control.mapTo(&window, QPoint(0, control.height() / 2));
        constexpr int kMostIndent = 6;
        constexpr int kInside = 2;
        const QColor around = image.pixelColor(edge - QPoint(3, 0));
        double best = 0;
        for (int indent = 0; indent < kMostIndent; ++indent) {
            const QColor line = image.pixelColor(edge + QPoint(indent, 0));
            const QColor inside = image.pixelColor(edge + QPoint(indent + kInside, 0));
            best = std::max(best, std::min(contrast(line, around), contrast(line, inside)));
        }
        return best;
    }
    template <typename Control>
    void expectToBeSeen(const std::function<void(Control&)>& prepare = [](Control&) {}) {
        for (const bool on_card : {true, false}) {
            QWidget* place =
                on_card ? new QGroupBox(QStringLiteral("Vstupy"), &window) : new QWidget(&window);
            place->resize(400, 200);
            auto* control = new Control(place);
            prepare(*control);
            EXPECT_GE(measured(*control, *place), kOutlineContrast)
                << control->metaObject()->className() << (on_card ? " on a card" : " on the window");
            delete place;
        }
    }

    QPalette palette = GetParam().palette();
    QPalette before = QApplication::palette();
    QWidget window;
};

TEST_P(Outlines, OfFieldsAreSeen) {
    expectToBeSeen<QLineEdit>();
    expectToBeSeen<QLineEdit>([](QLineEdit& line) { showAsResult(line); });
    expectToBeSeen<QPlainTextEdit>();
    expectToBeSeen<QTableView>();
    expectToBeSeen<QComboBox>();
}

TEST_P(Outlines, OfChoicesAreSeenOnAndOff) {
    for (const bool on : {false, true}) {
        expectToBeSeen<QRadioButton>([on](QRadioButton& radio) { radio.setChecked(on); });
        expectToBeSeen<QCheckBox>([on](QCheckBox& box) { box.setChecked(on); });
    }
}

TEST_P(Outlines, OfButtonsAreSeen) {
    expectToBeSeen<QPushButton>([](QPushButton& button) { button.setText(QStringLiteral("Zadat")); });
}

TEST_P(Outlines, TitlesCanBeRead) {
    EXPECT_GE(contrast(titleColour(palette), titleStripColour(palette)), kTextContrast);
    EXPECT_GE(contrast(palette.color(QPalette::WindowText), cardColour(palette)), kTextContrast);
    EXPECT_GE(contrast(palette.color(QPalette::Link), cardColour(palette)), kTextContrast);
}

TEST_P(Outlines, ThePrimaryButtonsTextCanBeRead) {
    QPushButton button(QStringLiteral("Výpočti"), &window);
    showAsPrimary(button);
    EXPECT_GE(
        contrast(button.palette().color(QPalette::Active, QPalette::ButtonText), primaryColour(palette)),
        kTextContrast);
}

INSTANTIATE_TEST_SUITE_P(Desktops, Outlines,
                         testing::Values(Desktop{"light", lightPalette}, Desktop{"dark", darkPalette},
                                         Desktop{"grey", grey}),
                         [](const auto& desktop) { return std::string(desktop.param.name); });

TEST(Cards, KeepTheirContentBelowTheTitle) {
    QWidget window;
    auto* card = new QGroupBox(QStringLiteral("Výsledky"), &window);
    auto* column = new QVBoxLayout(card);
    auto* line = new QLineEdit(card);
    column->addWidget(line);
    column->addStretch(1);
    card->resize(300, 200);
    window.show();
    QApplication::processEvents();
    EXPECT_GT(line->y(), QFontMetrics(titleFont(card->font())).height());
    card->setTitle(QString());
    QApplication::processEvents();
    EXPECT_LT(line->y(), QFontMetrics(titleFont(card->font())).height());
}

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 1e-9);
    // Middle grey: linear value ((128/255 + 0.055)/1.055)^2.4 = 0.2159, (1 + 0.05)/(0.2159 + 0.05).
    EXPECT_NEAR(contrast(QColor(128, 128, 128), Qt::white), 3.949, 0.001);
}

}  // namespace
}  // namespace mero::qt
