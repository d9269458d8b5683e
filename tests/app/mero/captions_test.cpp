// SPDX-License-Identifier: MIT
/// No caption is cut and no widgets overlap, in small and large windows, with small and large fonts.
/// To the program a scaled screen is a smaller one, so the window's sizes cover scales too.
#include <QComboBox>
#include <QHeaderView>
#include <QLayout>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "app/mero/main_window.h"

namespace mero::app {
namespace {

struct Look {
    const char* name;
    QSize window;
    double font;  ///< factor of the default font size
};

void PrintTo(const Look& look, std::ostream* out) {
    *out << look.name;
}

/// Sets the program's font for the test, before the window is built (when it is first shown).
class Captions : public MainWindow, public testing::WithParamInterface<Look> {
  protected:
    void SetUp() override {
        QFont font = font_before;
        font.setPointSizeF(QFontInfo(font_before).pointSizeF() * GetParam().font);
        QApplication::setFont(font);
        MainWindow::SetUp();
    }
    void TearDown() override { QApplication::setFont(font_before); }

    /// Checks all visible widgets of a window at the size of this look.
    void expectAllToBeSeen(const char* state, QWidget& shown_window) {
        SCOPED_TRACE(state);
        shown_window.resize(
            GetParam().window.boundedTo(&shown_window == &window ? GetParam().window : shown_window.size()));
        settle(shown_window);
        for (const auto* each : shown_window.findChildren<QWidget*>()) {
            if (each->isVisible() && each->window() == &shown_window) {
                expectNotCut(*each);
                expectNothingOver(*each);
            }
        }
    }

  private:
    static QList<QRect> places(const QWidget& of) {
        QList<QRect> rects;
        for (const auto* each : of.findChildren<QWidget*>()) {
            rects.append(each->geometry());
        }
        return rects;
    }

    /// Waits until the layouts are stable: one of them can trigger another.
    static void settle(const QWidget& shown_window) {
        constexpr int kRoundMs = 10;
        constexpr int kMostRounds = 100;
        constexpr int kQuietRounds = 2;
        QList<QRect> before;
        for (int round = 0, quiet = 0; round < kMostRounds && quiet < kQuietRounds; ++round) {
            QTest::qWait(kRoundMs);
            const QList<QRect> now = places(shown_window);
            quiet = now == before ? quiet + 1 : 0;
            before = now;
        }
    }

    static std::string textOf(const QWidget& widget) {
        QString text = widget.objectName();
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            text = label->text();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            text = button->text();
        }
        return qt::stored(text);
    }

    static void expectNotCut(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            const bool wraps = label->wordWrap();
            const QSize least = label->minimumSizeHint();
            EXPECT_GE(label->height(), wraps ? label->heightForWidth(label->width()) : least.height())
                << textOf(widget);
            EXPECT_GE(label->width(), wraps ? 1 : least.width()) << textOf(widget);
        } else if (const auto* push = qobject_cast<const QPushButton*>(&widget)) {
            const int frame = 2 * push->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
            EXPECT_GE(
                push->width(),
                push->fontMetrics().horizontalAdvance(QString(push->text()).remove(QLatin1Char('&'))) + frame)
                << textOf(widget);
            EXPECT_GE(push->height(), push->fontMetrics().height() + frame) << textOf(widget);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget);
                   button != nullptr && !button->text().isEmpty()) {
            EXPECT_GE(button->height(), button->minimumSizeHint().height()) << textOf(widget);
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << textOf(widget);
        } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
            EXPECT_GE(combo->width(), combo->fontMetrics().horizontalAdvance(combo->currentText()))
                << textOf(widget);
            EXPECT_GE(combo->height(), combo->fontMetrics().height()) << textOf(widget);
        } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
            EXPECT_GE(line->height(), line->fontMetrics().height()) << textOf(widget);
        } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
            EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->title()))
                << box->title().data();
        } else if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
            expectCellsNotCut(*table);
        }
    }

    static void expectCellsNotCut(const QTableView& table) {
        const QAbstractItemModel& model = *table.model();
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString heading = model.headerData(column, Qt::Horizontal).toString();
            EXPECT_GE(table.columnWidth(column),
                      table.horizontalHeader()->fontMetrics().horizontalAdvance(heading))
                << qt::stored(heading);
            for (int row = 0; row < model.rowCount(); ++row) {
                const QString text = model.index(row, column).data().toString();
                const int height = table.rowSpan(row, column) > 1
                                       ? table.fontMetrics().height()
                                       : table.fontMetrics()
                                             .boundingRect(QRect(0, 0, table.columnWidth(column), 100'000),
                                                           Qt::TextWordWrap, text)
                                             .height();
                EXPECT_GE(table.rowHeight(row) * table.rowSpan(row, column), height) << qt::stored(text);
            }
        }
    }

    /// Checks that the visible children of a widget do not overlap.
    static void expectNothingOver(const QWidget& widget) {
        const QWidget* holder = widget.parentWidget();
        if (holder == nullptr || holder->layout() == nullptr || holder->layout()->indexOf(&widget) < 0) {
            return;
        }
        for (int i = 0; i < holder->layout()->count(); ++i) {
            const QWidget* other = holder->layout()->itemAt(i)->widget();
            if (other != nullptr && other != &widget && other->isVisible()) {
                EXPECT_FALSE(other->geometry().intersects(widget.geometry()))
                    << textOf(widget) << " and " << textOf(*other);
            }
        }
        EXPECT_TRUE(holder->rect().contains(widget.geometry())) << textOf(widget) << " reaches out";
    }

    QFont font_before = QApplication::font();
};

TEST_P(Captions, AreNotCutOnAnyTab) {
    expectAllToBeSeen("inputs", window);
    run({"tab 1", "click optSelType(0)"});
    expectAllToBeSeen("types", window);
    run({"tab 3"});
    expectAllToBeSeen("report", window);
}

TEST_P(Captions, AreNotCutOnAnyPanel) {
    run({"click cmdEdit(0)", "select frmIntDialog.cboSelStanice 1", "select frmIntDialog.cboSelPeriod 1",
         "cell frmIntDialog.fgIntDeste 3 2", "click frmIntDialog.cmdOK", "click cmdEdit(1)",
         "cell frmDialog.fgSoucPovrchOdtok 8 3", "type frmDialog.txtPlocha 800",
         "key frmDialog.txtPlocha Enter", "click frmDialog.OKButton", "type txtSoucFiltrace 1e-4", "tab 1",
         "click optSelType(0)"});
    for (int type = 1; type <= 5; ++type) {
        run("select cboSelType " + std::to_string(type));
        if (type == 3 || type == 4) {
            run("click chkSelPretok(" + std::to_string(type) + ")");
        }
        expectAllToBeSeen(("type " + std::to_string(type)).c_str(), window);
    }
    run("click optSelType(1)");
    expectAllToBeSeen("type 6", window);
}

TEST_P(Captions, AreNotCutInAnyDialog) {
    run({"click cmdEdit(0)", "select frmIntDialog.cboSelStanice 1", "click frmIntDialog.cmdEdit"});
    expectAllToBeSeen("rain", *kit.find(program.window().intDialog));
    run({"close frmIntDialog", "click cmdEdit(1)", "cell frmDialog.fgSoucPovrchOdtok 8 3",
         "type frmDialog.txtPlocha 800", "key frmDialog.txtPlocha Enter"});
    expectAllToBeSeen("areas", *kit.find(program.window().areaDialog));
    run({"close frmDialog", "click cmdEdit(2)"});
    expectAllToBeSeen("soil", *kit.find(program.window().coefDialog));
}

INSTANTIATE_TEST_SUITE_P(
    Looks, Captions,
    testing::Values(Look{"At100Percent", {1024, 768}, 1}, Look{"At150Percent", {683, 512}, 1},
                    Look{"At200Percent", {512, 384}, 1}, Look{"InALargeWindow", {2560, 1440}, 1},
                    Look{"WithALargerFont", {1024, 768}, 1.5}, Look{"WithAHugeFont", {1024, 768}, 2}),
    [](const auto& look) { return std::string(look.param.name); });

}  // namespace
}  // namespace mero::app
