// SPDX-License-Identifier: MIT
// Drawings are painted completely, with real fonts, in light and in dark colours.
#include "qt/picture_painter.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <cmath>

#include "picture/arrange.h"
#include "picture/facility_sections.h"
#include "picture/picture_support.h"
#include "picture/rain_curve.h"
#include "picture/samples.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using picture::Drawing;
using picture::Emphasis;
using picture::Material;
using picture::Sheet;
using picture::Stroke;

QPalette lightColours() {
    return {QColor(0xef, 0xef, 0xef)};
}

QPalette darkColours() {
    QPalette palette(QColor(0x2e, 0x31, 0x34));
    palette.setColor(QPalette::Base, QColor(0x19, 0x1b, 0x1d));
    palette.setColor(QPalette::Text, QColor(0xe8, 0xea, 0xec));
    palette.setColor(QPalette::Highlight, QColor(0x35, 0x78, 0xb6));
    return palette;
}

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& first, const QColor& second) {
    const double a = luminance(first);
    const double b = luminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

picture::Chart rain() {
    return picture::rainCurve(picture::kSampleRains, picture::kSampleRains[2]);
}

picture::LineChart lines() {
    picture::LineChart chart;
    chart.title = "Délka rýhy";
    chart.x = {"Součinitel filtrace [m/s]", true};
    chart.y.label = "Délka rýhy [m]";
    chart.x_values = {1e-6, 1e-5, 1e-4};
    chart.legend = "Periodicita [1/rok]";
    for (const char* name : {"0.5", "0.2", "0.1", "0.05"}) {
        chart.series.push_back({name, {30.0, 20.0, 10.0}});
    }
    return chart;
}

const std::vector<Sheet> kSheets{{300, 220}, {480, 320}, {900, 600}};

struct PicturesInPalettes : testing::TestWithParam<bool> {
    QPalette palette = GetParam() ? darkColours() : lightColours();
    QColor paper = palette.color(QPalette::Base);
};

TEST_P(PicturesInPalettes, TextsAndLinesStandOutFromThePaper) {
    for (const Emphasis emphasis : {Emphasis::Plain, Emphasis::Strong, Emphasis::Quiet}) {
        EXPECT_GE(contrast(textColour(palette, emphasis), paper), 4.5);
    }
    for (const Stroke stroke : {Stroke::Ground, Stroke::Outline, Stroke::Dimension, Stroke::Axis,
                                Stroke::Curve, Stroke::Water, Stroke::Groundwater}) {
        EXPECT_GE(contrast(inkColour(palette, stroke), paper), 3.0) << static_cast<int>(stroke);
    }
    EXPECT_GE(contrast(fillColour(palette, Material::CriticalBar), paper), 3.0);
    for (std::size_t series = 0; series < picture::kMostSeries; ++series) {
        EXPECT_GE(contrast(seriesColour(palette, series), paper), 3.0) << series;
    }
}

TEST_P(PicturesInPalettes, TheCriticalBarAndTheMaterialsAreToldApart) {
    EXPECT_GE(contrast(fillColour(palette, Material::CriticalBar), fillColour(palette, Material::Bar)), 1.6);
    EXPECT_NE(fillColour(palette, Material::Water), fillColour(palette, Material::Soil));
    EXPECT_NE(fillColour(palette, Material::Air), fillColour(palette, Material::Soil));
    EXPECT_NE(fillColour(palette, Material::Concrete), fillColour(palette, Material::Soil));
}

TEST_P(PicturesInPalettes, NothingIsPaintedOutsideTheSheet) {
    constexpr int kAround = 20;
    for (const Sheet& sheet : kSheets) {
        for (const Drawing& drawing :
             {arrange(picture::sampleShaft(), sheet, textSizes(QApplication::font())),
              arrange(rain(), sheet, textSizes(QApplication::font())),
              arrange(lines(), sheet, textSizes(QApplication::font()))}) {
            if (drawing.lines.empty()) {
                continue;  // a line chart needs a large sheet
            }
            QImage image(static_cast<int>(sheet.width) + 2 * kAround,
                         static_cast<int>(sheet.height) + 2 * kAround, QImage::Format_RGB32);
            image.fill(paper);
            QPainter painter(&image);
            painter.translate(kAround, kAround);
            paintDrawing(painter, drawing, palette, QApplication::font());
            painter.end();
            const QRect inside(kAround, kAround, static_cast<int>(sheet.width),
                               static_cast<int>(sheet.height));
            int painted = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixelColor(x, y) != paper) {
                        ++painted;
                        ASSERT_TRUE(inside.contains(x, y)) << x << ", " << y;
                    }
                }
            }
            EXPECT_GT(painted, 1000);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, PicturesInPalettes, testing::Bool());

TEST(PicturePainter, LabelsInRealFontsFitTheirBoxesAndKeepApart) {
    for (const int points : {8, 10, 14, 20}) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        for (const Sheet& sheet : kSheets) {
            for (const Drawing& drawing :
                 {arrange(picture::sampleShaft(), sheet, textSizes(font)),
                  arrange(rain(), sheet, textSizes(font)), arrange(lines(), sheet, textSizes(font))}) {
                SCOPED_TRACE(std::to_string(points) + " pt");
                expectTidy(drawing, sheet);
                for (const picture::PlacedText& text : drawing.texts) {
                    QFont painted = pictureFont(font, text.emphasis);
                    painted.setPointSizeF(painted.pointSizeF() * text.size);
                    const QFontMetricsF metrics(painted);
                    const double room = text.upright ? text.box.height() : text.box.width();
                    const double lines = text.upright ? text.box.width() : text.box.height();
                    EXPECT_GE(room + 1e-6, metrics.horizontalAdvance(shown(text.text))) << text.text;
                    EXPECT_GE(lines + 1e-6, metrics.height()) << text.text;
                }
            }
        }
    }
}

TEST(PicturePainter, TheCriticalBarHasTheHighlightColour) {
    Drawing drawing;
    drawing.areas.push_back({Material::CriticalBar, {{10, 10}, {30, 10}, {30, 40}, {10, 40}}});
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(painter, drawing, lightColours(), QApplication::font());
    painter.end();
    EXPECT_EQ(image.pixelColor(20, 25), lightColours().color(QPalette::Highlight));
    EXPECT_EQ(image.pixelColor(5, 25), QColor(Qt::white));
}

TEST(PicturePainter, MarksLieAboveTheirLines) {
    Drawing drawing;
    drawing.lines.push_back({Stroke::Series, {{0, 25}, {50, 25}}, 1});
    drawing.marks.push_back({1, {25, 25}, 6});
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(painter, drawing, lightColours(), QApplication::font());
    painter.end();
    EXPECT_EQ(image.pixelColor(25, 25), QColor(Qt::white)) << "the mark is open";
    EXPECT_NE(image.pixelColor(1, 25), QColor(Qt::white)) << "the line";
}

TEST(PicturePainter, ATurnedTextRunsUpwards) {
    Drawing drawing;
    drawing.texts.push_back({{20, 10, 40, 90}, "hloubka", Emphasis::Plain, true});
    QImage image(60, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(painter, drawing, lightColours(), QApplication::font());
    painter.end();
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                inked |= QRect(x, y, 1, 1);
            }
        }
    }
    EXPECT_GT(inked.height(), inked.width());
    EXPECT_TRUE(QRect(15, 10, 30, 80).contains(inked));
}

}  // namespace
}  // namespace mero::qt
