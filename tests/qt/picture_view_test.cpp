// SPDX-License-Identifier: MIT
// A picture is drawn when it is painted, once for any number of changes, and has an accessible description.
#include "qt/picture_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "qt/bench_form.h"

namespace mero::qt {
namespace {

struct PictureViewTest : testing::Test {
    int drawn = 0;
    picture::Sheet last;
    std::string summary = "Řez průlehem.";
    BenchWindow window;
    PictureView& view =
        window.put(*new PictureView(window, QStringLiteral("Řez"),
                                    [this](const picture::Sheet& sheet, const picture::TextSizes& /*sizes*/) {
                                        ++drawn;
                                        last = sheet;
                                        picture::Drawing drawing;
                                        drawing.summary = summary;
                                        return drawing;
                                    }));

    void SetUp() override {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        QApplication::processEvents();
    }
};

TEST_F(PictureViewTest, ManyChangesArePaintedOnce) {
    const int before = drawn;
    ASSERT_GT(before, 0);
    for (int i = 0; i < 1000; ++i) {
        view.update();
    }
    EXPECT_EQ(drawn, before) << "not before the event loop runs";
    QApplication::processEvents();
    EXPECT_EQ(drawn, before + 1);
    QApplication::processEvents();
    EXPECT_EQ(drawn, before + 1) << "nothing changed since";
}

TEST_F(PictureViewTest, IsSetOutOnTheWholeWidget) {
    EXPECT_EQ(last.width, view.width());
    EXPECT_EQ(last.height, view.height());
}

TEST_F(PictureViewTest, IsNamedAndDescribed) {
    EXPECT_EQ(view.accessibleName(), QStringLiteral("Řez"));
    EXPECT_EQ(view.accessibleDescription(), QStringLiteral("Řez průlehem."));
    summary = "Řez rýhou.";
    view.update();
    QApplication::processEvents();
    EXPECT_EQ(view.accessibleDescription(), QStringLiteral("Řez rýhou."));
}

TEST_F(PictureViewTest, ItsRoomGrowsWithTheFont) {
    view.setRoom({40, 12}, {20, 6});
    const QSize small = view.minimumSizeHint();
    EXPECT_EQ(small.height(), view.fontMetrics().height() * 6);
    EXPECT_EQ(view.sizeHint().height(), view.fontMetrics().height() * 12);
    QFont font = view.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    view.setFont(font);
    EXPECT_GT(view.minimumSizeHint().width(), small.width() * 3 / 2);
    EXPECT_GT(view.minimumSizeHint().height(), small.height() * 3 / 2);
}

TEST_F(PictureViewTest, TakesNoFocus) {
    EXPECT_EQ(view.focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace mero::qt
