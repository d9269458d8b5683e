// SPDX-License-Identifier: MIT
/// The drawing, from the frame inwards.
/// Everything is placed by numbers with two decimals on a sheet of fixed size.
#include "sweep/svg.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "platform/numbers/number_text.h"
#include "sweep/scale.h"

namespace mero::sweep {
namespace {

constexpr double kWidth = 900.0;
constexpr double kHeight = 560.0;
constexpr double kLeft = 90.0;
constexpr double kTop = 64.0;
constexpr double kPlotWidth = 540.0;
constexpr double kPlotHeight = 420.0;
constexpr double kBottom = kTop + kPlotHeight;
constexpr double kLegendLeft = kLeft + kPlotWidth + 24.0;
constexpr double kLegendRow = 18.0;
constexpr double kTickLength = 6.0;
/// More marks than this on one line are a smear.
constexpr std::size_t kMostMarks = 25;

constexpr std::array<const char*, 6> kColours{"#000000", "#1f4e9c", "#a02020",
                                              "#1f6e3a", "#7a3e9d", "#8a5a00"};
constexpr std::array<const char*, 4> kDashes{"", "8 4", "2 3", "10 3 2 3"};
constexpr std::size_t kMarkShapes = 4;

std::string number(double value) {
    // No grouping here: every coordinate is below 1000.
    return numbers::fixed(value, 2);
}

std::string escaped(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        switch (c) {
            case '&':
                safe += "&amp;";
                break;
            case '<':
                safe += "&lt;";
                break;
            case '>':
                safe += "&gt;";
                break;
            case '"':
                safe += "&quot;";
                break;
            default:
                safe += c;
        }
    }
    return safe;
}

std::string line(double x1, double y1, double x2, double y2, const char* style) {
    return "<line x1=\"" + number(x1) + "\" y1=\"" + number(y1) + "\" x2=\"" + number(x2) + "\" y2=\"" +
           number(y2) + "\" " + style + "/>\n";
}

std::string text(double x, double y, const char* anchor, std::string_view content,
                 std::string_view more = "") {
    return "<text x=\"" + number(x) + "\" y=\"" + number(y) + "\" text-anchor=\"" + anchor + "\"" +
           std::string(more) + ">" + escaped(content) + "</text>\n";
}

/// Lines of the same dashes carry different marks.
std::size_t markShape(std::size_t n) {
    return (n + n / kDashes.size()) % kMarkShapes;
}

std::string mark(double x, double y, std::size_t shape, const char* colour) {
    constexpr double kSize = 3.5;
    const std::string fill = shape % 2 == 0 ? colour : "#ffffff";
    const std::string paint = "\" fill=\"" + fill + "\" stroke=\"" + colour + "\"/>\n";
    const auto point = [&](double dx, double dy) {
        return number(x + dx * kSize) + "," + number(y + dy * kSize) + " ";
    };
    switch (shape) {
        case 0:
        case 1:
            return "<circle cx=\"" + number(x) + "\" cy=\"" + number(y) + "\" r=\"" + number(kSize) + paint;
        case 2:
            return "<polygon points=\"" + point(-1, -1) + point(1, -1) + point(1, 1) + point(-1, 1) + paint;
        default:
            return "<polygon points=\"" + point(0, -1.2) + point(1.2, 1) + point(-1.2, 1) + paint;
    }
}

class Drawing {
  public:
    explicit Drawing(const Chart& chart)
        : chart_(&chart),
          x_(chart.x_values, chart.x.logarithmic, false),
          y_(allValues(chart), chart.y.logarithmic, true) {}

    std::string document() {
        svg_ =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
            number(kWidth) + "\" height=\"" + number(kHeight) + "\" viewBox=\"0 0 " + number(kWidth) + " " +
            number(kHeight) + "\" font-family=\"DejaVu Sans, Arial, sans-serif\" font-size=\"13\">\n" +
            "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
        drawTitles();
        drawAxes();
        for (std::size_t n = 0; n < chart_->series.size(); ++n) {
            drawSeries(n);
        }
        drawLegend();
        return svg_ + "</svg>\n";
    }

  private:
    static std::vector<double> allValues(const Chart& chart) {
        std::vector<double> values;
        for (const Series& series : chart.series) {
            for (const auto& value : series.values) {
                if (value) {
                    values.push_back(*value);
                }
            }
        }
        return values;
    }

    [[nodiscard]] static double acrossAt(double share) { return kLeft + share * kPlotWidth; }
    [[nodiscard]] static double downAt(double share) { return kBottom - share * kPlotHeight; }

    void drawTitles() {
        svg_ += text(kLeft, 28.0, "start", chart_->title, " font-size=\"17\" font-weight=\"bold\"");
        svg_ += text(kLeft, 48.0, "start", chart_->subtitle, " fill=\"#404040\"");
        svg_ += text(kLeft + kPlotWidth / 2.0, kBottom + 48.0, "middle", chart_->x.label);
        const double middle = kTop + kPlotHeight / 2.0;
        svg_ += text(22.0, middle, "middle", chart_->y.label,
                     " transform=\"rotate(-90 22 " + number(middle) + ")\"");
    }

    void drawAxes() {
        constexpr const char* kGrid = "stroke=\"#c8c8c8\" stroke-width=\"0.8\"";
        constexpr const char* kFine = "stroke=\"#e6e6e6\" stroke-width=\"0.6\"";
        constexpr const char* kAxis = "stroke=\"#000000\" stroke-width=\"1.2\"";
        for (const double tick : betweenDecades(x_)) {
            const double x = acrossAt(*x_.share(tick));
            svg_ += line(x, kTop, x, kBottom, kFine);
        }
        for (const double tick : betweenDecades(y_)) {
            const double y = downAt(*y_.share(tick));
            svg_ += line(kLeft, y, kLeft + kPlotWidth, y, kFine);
        }
        for (const double tick : x_.ticks()) {
            const double x = acrossAt(*x_.share(tick));
            svg_ += line(x, kTop, x, kBottom + kTickLength, kGrid);
            svg_ += text(x, kBottom + 22.0, "middle", tickText(tick, x_.logarithmic()));
        }
        for (const double tick : y_.ticks()) {
            const double y = downAt(*y_.share(tick));
            svg_ += line(kLeft - kTickLength, y, kLeft + kPlotWidth, y, kGrid);
            svg_ += text(kLeft - 10.0, y + 4.5, "end", tickText(tick, y_.logarithmic()));
        }
        svg_ += line(kLeft, kTop, kLeft, kBottom, kAxis);
        svg_ += line(kLeft, kBottom, kLeft + kPlotWidth, kBottom, kAxis);
    }

    /// 2 to 9 times each decade.
    static std::vector<double> betweenDecades(const Scale& scale) {
        std::vector<double> fine;
        if (!scale.logarithmic()) {
            return fine;
        }
        for (std::size_t i = 0; i + 1 < scale.ticks().size(); ++i) {
            for (int k = 2; k < 10; ++k) {
                fine.push_back(k * scale.ticks()[i]);
            }
        }
        return fine;
    }

    [[nodiscard]] static std::string strokeOf(std::size_t n) {
        return std::string("fill=\"none\" stroke-width=\"1.6\" stroke=\"") + kColours[n % kColours.size()] +
               "\" stroke-dasharray=\"" + kDashes[n % kDashes.size()] + "\"";
    }

    void drawSeries(std::size_t n) {
        const Series& series = chart_->series[n];
        const std::size_t mark_every = chart_->x_values.size() / kMostMarks + 1;
        std::string points;
        std::string marks;
        const auto finish = [&] {
            if (!points.empty()) {
                svg_ += "<polyline points=\"" + points + "\" " + strokeOf(n) + "/>\n";
                points.clear();
            }
        };
        for (std::size_t i = 0; i < chart_->x_values.size(); ++i) {
            const auto value = series.values[i] ? y_.share(*series.values[i]) : std::nullopt;
            const auto place = x_.share(chart_->x_values[i]);
            if (!value || !place) {
                finish();
                continue;
            }
            const double x = acrossAt(*place);
            const double y = downAt(*value);
            points += number(x) + "," + number(y) + " ";
            if (i % mark_every == 0) {
                marks += mark(x, y, markShape(n), kColours[n % kColours.size()]);
            }
        }
        finish();
        svg_ += marks;
    }

    void drawLegend() {
        if (chart_->legend.empty()) {
            return;
        }
        svg_ +=
            text(kLegendLeft, kTop + 4.0, "start", chart_->legend, " font-weight=\"bold\" font-size=\"12\"");
        for (std::size_t n = 0; n < chart_->series.size(); ++n) {
            const double y = kTop + kLegendRow * static_cast<double>(n + 1) + 4.0;
            svg_ +=
                "<path d=\"M" + number(kLegendLeft) + " " + number(y - 4.0) + "h34\" " + strokeOf(n) + "/>\n";
            svg_ += mark(kLegendLeft + 17.0, y - 4.0, markShape(n), kColours[n % kColours.size()]);
            svg_ += text(kLegendLeft + 42.0, y, "start", chart_->series[n].name, " font-size=\"12\"");
        }
    }

    const Chart* chart_;
    Scale x_;
    Scale y_;
    std::string svg_;
};

}  // namespace

std::string svg(const Chart& chart) {
    return Drawing(chart).document();
}

}  // namespace mero::sweep
