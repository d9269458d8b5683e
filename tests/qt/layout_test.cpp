// SPDX-License-Identifier: MIT
/// Layout of fields and pages.
#include <gtest/gtest.h>

#include <QLabel>

#include "qt/bench_form.h"
#include "qt/field_grid.h"
#include "qt/look.h"
#include "qt/page_layout.h"
#include "qt/palettes.h"
#include "qt/panels.h"

namespace mero::qt {
namespace {

class Fields : public testing::Test {
  protected:
    BenchForm bench;
    platform::TextBox box{bench.form, "txtHPV"};
    BenchWindow window;
    QWidget& place = window.put(*new QWidget(&window));
    FieldGrid grid{bench.kit, place};

    [[nodiscard]] QLabel& label(const QString& text) const {
        for (auto* each : place.findChildren<QLabel*>()) {
            if (QString(each->text()).replace('\n', ' ') == text) {
                return *each;
            }
        }
        ADD_FAILURE() << "no label " << qPrintable(text);
        return *new QLabel(&place);
    }
    void show() {
        window.resize(1000, 200);
        QApplication::processEvents();
    }
};

TEST_F(Fields, CaptionFieldAndUnitStandInOneRow) {
    const QLineEdit& line = grid.input(box, "Výška rýhy", "m");
    show();
    EXPECT_LT(label("Výška rýhy").geometry().right(), line.geometry().left());
    EXPECT_LT(line.geometry().right(), label("m").geometry().left());
    EXPECT_LE(std::abs(label("m").geometry().center().y() - line.geometry().center().y()), 2);
    EXPECT_EQ(line.accessibleName(), "Výška rýhy, m");
    EXPECT_EQ(label("Výška rýhy").buddy(), &line);
}

TEST_F(Fields, ALongCaptionIsBrokenAndKeepsAllItsWords) {
    const QString caption = "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)";
    grid.result(box, caption);
    show();
    const QLabel& shown_label = label(caption);
    EXPECT_TRUE(shown_label.text().contains('\n'));
    EXPECT_GE(shown_label.width(), shown_label.sizeHint().width());
    EXPECT_GE(shown_label.height(), shown_label.sizeHint().height());
}

TEST_F(Fields, AResultIsReadOnlyBoldAndOnTheRight) {
    platform::TextBox other(bench.form, "txtVsakTok");
    const QLineEdit& result = grid.result(box, "Vsakovací tok", "m³/s");
    EXPECT_TRUE(result.isReadOnly());
    EXPECT_TRUE(result.font().bold());
    EXPECT_TRUE(result.alignment() & Qt::AlignRight);
    EXPECT_NE(result.palette().color(QPalette::Base), window.palette().color(QPalette::Base));
    EXPECT_TRUE(result.focusPolicy() & Qt::TabFocus) << "read and copied by the keyboard too";
}

TEST_F(Fields, TheirWidthComesFromTheFont) {
    platform::TextBox other(bench.form, "txtVsakTok");
    const QLineEdit& line = grid.input(box, "a");
    EXPECT_EQ(line.width(), textWidth(line, 15));
    EXPECT_EQ(grid.result(other, "b").width(), line.width()) << "whatever their font is";
}

TEST_F(Fields, AResultGrowsRatherThanLoseItsFirstDigits) {
    const QLineEdit& result = grid.result(box, "Objem dle rozměrů nádrže", "m³");
    show();
    const int usual = result.width();
    box.setText("1 015.7");
    EXPECT_EQ(result.width(), usual);
    box.setText("340 282 346 638 528 859 811 704 183 484 516 925 440.00");
    show();
    EXPECT_GT(result.width(), result.fontMetrics().horizontalAdvance(result.text()));
    EXPECT_LT(result.geometry().right(), label("m³").geometry().left());
    box.setText("");
    EXPECT_EQ(result.width(), usual);
}

TEST_F(Fields, TheirColoursFollowThePalette) {
    platform::TextBox plain_box(bench.form, "txtSirkaRyhy");
    platform::TextBox greyed_box(bench.form, "txtVyskaPiskVrstvy");
    const QLineEdit& plain = grid.input(plain_box, "a");
    const QLineEdit& result = grid.result(box, "b");
    const QLineEdit& greyed = grid.input(greyed_box, "c");
    greyed_box.setGreyed(true);
    QLabel warning("d", &place);
    showAsWarning(warning);
    show();
    const QPalette before = QApplication::palette();
    for (const QPalette& palette : {darkPalette(), lightPalette(), darkPalette()}) {
        QApplication::setPalette(palette);
        QApplication::processEvents();
        const bool dark = isDark(palette);
        for (const QLineEdit* line : {&plain, &result, &greyed}) {
            EXPECT_EQ(line->palette().color(QPalette::Base).lightness() < 128, dark);
            EXPECT_EQ(line->palette().color(QPalette::Text).lightness() < 128, !dark);
        }
        EXPECT_EQ(greyed.palette().color(QPalette::Base), palette.color(QPalette::Button));
        EXPECT_NE(result.palette().color(QPalette::Base), plain.palette().color(QPalette::Base));
        EXPECT_EQ(warning.palette().color(QPalette::WindowText).lightness() > 140, dark);
    }
    greyed_box.setGreyed(false);
    EXPECT_EQ(greyed.palette().color(QPalette::Base), darkPalette().color(QPalette::Base));
    QApplication::setPalette(before);
}

class Pair : public testing::Test {
  protected:
    BenchWindow window;
    FlowPair& pair = *new FlowPair(window);
    QWidget& first = *new QWidget(&pair);
    QWidget& second = *new QWidget(&pair);

    void SetUp() override {
        first.setMinimumSize(300, 100);
        second.setMinimumSize(300, 100);
        pair.add(first, 1);
        pair.add(second, 1);
        window.put(pair);
    }
    void widen(int width) {
        window.resize(width, 400);
        QApplication::processEvents();
    }
};

TEST_F(Pair, StandsBesideEachOtherWhereThereIsRoom) {
    widen(900);
    EXPECT_EQ(first.y(), second.y());
    EXPECT_LT(first.geometry().right(), second.x());
}

TEST_F(Pair, StandsBelowEachOtherInANarrowWindowAndGoesBack) {
    widen(400);
    EXPECT_EQ(first.x(), second.x());
    EXPECT_LT(first.geometry().bottom(), second.y());
    EXPECT_LE(pair.minimumSizeHint().width(), 320);
    widen(900);
    EXPECT_EQ(first.y(), second.y());
}

TEST(Panels, AreShownAndHiddenByCode) {
    BenchForm bench;
    platform::Panel panel(bench.form, "picPretokSkrOdtok(3)");
    panel.hide();
    platform::Frame frame(panel, "fra", "Výběr");
    BenchWindow window;
    QGroupBox& widget = window.put(makeFramedPanel(bench.kit, panel, "Drenáž", window));
    widget.setLayout(new QVBoxLayout);
    QGroupBox& inner = makeFrame(bench.kit, frame, widget);
    widget.layout()->addWidget(&inner);
    EXPECT_FALSE(widget.isVisible());
    panel.moveTo(0, 3000);
    panel.show();
    EXPECT_TRUE(widget.isVisible());
    EXPECT_TRUE(inner.isVisible());
    frame.setText("a & b");
    EXPECT_EQ(inner.title(), "a && b");
    EXPECT_EQ(widget.title(), "Drenáž");
}

TEST(Colours, AreMixedByShare) {
    EXPECT_EQ(mixed(Qt::black, Qt::white, 0), QColor(0, 0, 0));
    EXPECT_EQ(mixed(Qt::black, Qt::white, 1), QColor(255, 255, 255));
    EXPECT_EQ(mixed(QColor(0, 100, 200), QColor(100, 0, 200), 0.25), QColor(25, 75, 200));
}

}  // namespace
}  // namespace mero::qt
