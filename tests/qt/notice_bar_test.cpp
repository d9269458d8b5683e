// SPDX-License-Identifier: MIT
/// A confirmation that need not be closed.
#include "qt/notice_bar.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>

#include "qt/bench_form.h"

namespace mero::qt {
namespace {

class Notice : public testing::Test {
  protected:
    BenchWindow window;
    QLineEdit& field = window.put(*new QLineEdit);
    NoticeBar& bar = *new NoticeBar(window);

    void SetUp() override {
        window.layout()->addWidget(&bar);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }
    [[nodiscard]] QList<QPushButton*> buttons() const {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return bar.findChildren<QPushButton*>();
    }
};

TEST_F(Notice, IsThereOnceSomethingIsToldAndTakesNoFocus) {
    EXPECT_FALSE(bar.isVisible());
    bar.tell("Uloženo: /x/zpráva.html", {});
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.accessibleName(), "Uloženo: /x/zpráva.html");
    EXPECT_TRUE(field.hasFocus());
    bar.findChild<QToolButton*>()->click();
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(Notice, OffersWhatCanBeDone) {
    int opened = 0;
    bar.tell("první", {{"Otevřít", [&] { ++opened; }}, {"Otevřít složku", [] {}}});
    ASSERT_EQ(buttons().size(), 2);
    buttons()[0]->click();
    EXPECT_EQ(opened, 1);
    bar.tell("druhý", {{"Otevřít", [&] { opened += 10; }}});
    ASSERT_EQ(buttons().size(), 1) << "the offers of the earlier text are gone";
    buttons()[0]->click();
    EXPECT_EQ(opened, 11);
}

TEST_F(Notice, ShowsMarkUpInAFileNameAsItIs) {
    const QString text = "Uloženo: /x/<b>hala<b> & sklad.html";
    window.resize(2000, 200);
    bar.tell(text, {});
    QApplication::processEvents();
    const auto* label = bar.findChild<QLabel*>();
    EXPECT_EQ(label->text(), text);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    QTextDocument tip;
    tip.setHtml(label->toolTip());
    EXPECT_EQ(tip.toPlainText(), text);
}

TEST_F(Notice, ALongPathDoesNotWidenTheWindow) {
    const int width = window.minimumSizeHint().width();
    bar.tell("Uloženo: /" + QString(500, 'x'), {});
    QApplication::processEvents();
    EXPECT_LT(window.minimumSizeHint().width(), width + 200);
    EXPECT_TRUE(bar.findChild<QLabel*>()->text().contains(QChar(0x2026)));
}

}  // namespace
}  // namespace mero::qt
