// SPDX-License-Identifier: MIT
/// Lays out sections: heights on the left, widths above and below, labels of levels on the right.
/// The drawing takes the room that dimension lines and texts leave.
#include <algorithm>
#include <cmath>
#include <utility>

#include "picture/arrange.h"
#include "picture/label_column.h"
#include "picture/text_lines.h"
#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

// Distances in lines of text.
constexpr double kMargin = 0.4;        ///< around everything
constexpr double kSoilBeside = 1.4;    ///< soil on both sides of the extent
constexpr double kSoilBelow = 0.8;     ///< and below it
constexpr double kAir = 0.7;           ///< above the ground
constexpr double kRow = 1.5;           ///< height of a dimension above or below
constexpr double kLaneGap = 0.9;       ///< between the texts of a lane and its dimension line
constexpr double kTick = 0.25;         ///< half of the oblique stroke at the end of a dimension line
constexpr double kLeastRoom = 2.5;     ///< least size of the drawing itself
constexpr double kLegibleWidth = 2.5;  ///< least size of what must be legible, after stretching
constexpr double kLegibleHeight = 1.5;
constexpr double kSeenShare = 0.5;  ///< no stretching above this share of the legible size
constexpr double kArrowHead = 0.35;
constexpr double kBreakStep = 0.8;
constexpr double kBreakHeight = 0.22;
constexpr double kBreakBelow = 0.7;      ///< the break below the extent
constexpr double kBrokenBand = 1.1;      ///< soil for the break
constexpr double kMostNotesShare = 0.4;  ///< of the sheet's height
/// Scales with a smaller ratio count as equal.
constexpr double kSameScale = 1.02;

/// How much stands beside the drawing; reduced step by step on small sheets.
struct Frugality {
    bool names = true;   ///< dimensions have names
    bool turned = true;  ///< texts of outer dimensions are rotated
    bool outer = true;   ///< outer dimensions are shown
    double room = 0;     ///< least width for the drawing itself [lines]
};

class SectionLayout {
  public:
    SectionLayout(const Section& section, const Sheet& sheet, const TextSizes& sizes)
        : section_(&section), sheet_(sheet), sizes_(&sizes), line_(sizes.line_height) {}

    /// Computes scale and positions; false when the sheet is too small.
    bool plan() {
        constexpr Frugality kSteps[] = {{.names = true, .turned = true, .outer = true, .room = 8.0},
                                        {.names = true, .turned = false, .outer = true, .room = 8.0},
                                        {.names = false, .turned = true, .outer = true, .room = 4.0},
                                        {.names = false, .turned = false, .outer = true, .room = 4.0},
                                        {.names = false, .turned = false, .outer = false, .room = 2.5}};
        for (const Frugality& step : kSteps) {
            frugality_ = step;
            if (planNotes()) {
                return true;
            }
        }
        return false;
    }

    Drawing draw() {
        drawing_.summary = section_->summary;
        drawSoil();
        drawBody();
        drawBreak();
        drawLevels();
        drawHeights();
        drawWidths();
        drawNotes();
        drawing_.lines.insert(drawing_.lines.begin(), leaders_.begin(), leaders_.end());
        return std::move(drawing_);
    }

  private:
    [[nodiscard]] double lines(double count) const { return count * line_; }

    [[nodiscard]] std::string textOf(const Dimension& dimension) const {
        return frugality_.names ? dimension.name + " " + dimension.value : dimension.value;
    }
    [[nodiscard]] bool isShown(const Dimension& dimension) const {
        return frugality_.outer || !dimension.outer;
    }
    /// Whether its text is rotated along the dimension line.
    [[nodiscard]] bool isTurned(const Dimension& dimension) const {
        return dimension.outer && frugality_.turned;
    }

    bool planNotes() {
        notes_ = section_->notes;
        if (!planScale()) {
            return false;
        }
        const bool broken = isBroken();
        if (toScale()) {
            if (broken) {
                notes_.emplace_back("hloubka podzemní vody není v měřítku");
            }
        } else {
            notes_.push_back(scaleNote());
        }
        return notes_.size() == section_->notes.size() || planScale();
    }

    bool planScale() {
        const double margin = lines(kMargin);
        const double inner_width = sheet_.width - 2.0 * margin;
        note_lines_.clear();
        for (const std::string& note : notes_) {
            for (std::string& text : brokenLines(note, inner_width, *sizes_)) {
                note_lines_.push_back(std::move(text));
            }
        }
        const auto most = static_cast<std::size_t>(kMostNotesShare * sheet_.height / line_);
        note_lines_.resize(std::min(note_lines_.size(), most));

        inner_lane_ = 0;
        outer_lane_ = 0;
        int above = 0;
        int below = 0;
        for (const Dimension& dimension : section_->dimensions) {
            if (!isShown(dimension)) {
                continue;
            }
            const double width = sizes_->width(textOf(dimension));
            if (dimension.side == Side::Left) {
                double& lane = dimension.outer ? outer_lane_ : inner_lane_;
                lane = std::max(lane, (isTurned(dimension) ? line_ : width) + lines(kLaneGap));
            } else {
                ++(dimension.side == Side::Above ? above : below);
                if (width > inner_width) {
                    return false;
                }
            }
        }
        right_width_ = 0;
        for (const Level& level : section_->levels) {
            right_width_ = std::max(right_width_, sizes_->width(level.text) + lines(kLaneGap));
        }

        const double left_width = inner_lane_ + outer_lane_;
        const double room_width = inner_width - left_width - right_width_ - 2.0 * lines(kSoilBeside);
        const double below_extent = lines(kSoilBelow + (isBroken() ? kBrokenBand : 0.0));
        const double fixed_height = 2.0 * margin + static_cast<double>(note_lines_.size()) * line_ +
                                    lines(kAir) + below_extent + (above + below) * lines(kRow);
        const double room_height = sheet_.height - fixed_height;
        if (room_width < lines(kLeastRoom) || room_height < lines(kLeastRoom)) {
            return false;
        }
        const double most_x = room_width / section_->extent.width();
        const double most_y = room_height / section_->extent.height();
        // A high and narrow section is limited by the height, so it needs less width.
        if (room_width < lines(frugality_.room) && most_x < most_y) {
            return false;
        }
        const double even = std::min(most_x, most_y);
        scale_x_ = std::min(most_x, legibleScale(even, section_->legible_width_m, kLegibleWidth));
        scale_y_ = std::min(most_y, legibleScale(even, section_->legible_height_m, kLegibleHeight));

        const double drawn_width = section_->extent.width() * scale_x_ + 2.0 * lines(kSoilBeside);
        const double drawn_height = section_->extent.height() * scale_y_;
        const double spare_width = inner_width - left_width - right_width_ - drawn_width;
        soil_.left = margin + left_width + spare_width / 2.0;
        soil_.right = soil_.left + drawn_width;
        const double spare_height = room_height - drawn_height;
        soil_.top = margin + above * lines(kRow) + lines(kAir) + spare_height / 2.0;
        soil_.bottom = soil_.top + drawn_height + below_extent;
        notes_top_ = sheet_.height - margin - static_cast<double>(note_lines_.size()) * line_;
        return turnedTextsFit();
    }

    /// The even scale if the size is legible in it, else a larger one in which it is.
    [[nodiscard]] double legibleScale(double even, double size_m, double wanted_lines) const {
        const bool seen = size_m * even >= lines(kSeenShare * wanted_lines);
        return seen ? even : std::max(even, lines(wanted_lines) / size_m);
    }

    [[nodiscard]] bool turnedTextsFit() const {
        return std::all_of(section_->dimensions.begin(), section_->dimensions.end(),
                           [this](const Dimension& dimension) {
                               return !isTurned(dimension) ||
                                      sizes_->width(textOf(dimension)) <= y(dimension.to) - y(dimension.from);
                           });
    }

    [[nodiscard]] bool isBroken() const {
        return std::any_of(section_->levels.begin(), section_->levels.end(),
                           [](const Level& level) { return level.beyond_break; });
    }

    [[nodiscard]] bool toScale() const {
        return std::max(scale_x_, scale_y_) <= kSameScale * std::min(scale_x_, scale_y_);
    }

    [[nodiscard]] std::string scaleNote() const {
        const bool heights = scale_y_ > scale_x_;
        const double factor = heights ? scale_y_ / scale_x_ : scale_x_ / scale_y_;
        return std::string("není v měřítku, ") + (heights ? "výšky" : "šířky") + " zvětšeny " +
               numbers::fixed(factor, factor < 10.0 ? 1 : 0) + "×";
    }

    [[nodiscard]] double x(double metres) const {
        return soil_.left + lines(kSoilBeside) + (metres - section_->extent.left) * scale_x_;
    }
    [[nodiscard]] double y(double metres) const { return soil_.top + metres * scale_y_; }
    [[nodiscard]] Point at(const Point& point) const { return {x(point.x), y(point.y)}; }

    /// Leaders are painted below all other lines.
    void addLine(Stroke stroke, Point from, Point to) {
        std::vector<PlacedLine>& lines = stroke == Stroke::Leader ? leaders_ : drawing_.lines;
        lines.push_back({stroke, {from, to}});
    }
    void addText(const Box& box, std::string text, Align align) {
        drawing_.texts.push_back({.box = box, .text = std::move(text), .align = align});
    }

    void drawSoil() {
        drawing_.areas.push_back({Material::Soil,
                                  {{soil_.left, soil_.top},
                                   {soil_.right, soil_.top},
                                   {soil_.right, soil_.bottom},
                                   {soil_.left, soil_.bottom}}});
        addLine(Stroke::Ground, {soil_.left, soil_.top}, {x(section_->extent.left), soil_.top});
        addLine(Stroke::Ground, {x(section_->extent.right), soil_.top}, {soil_.right, soil_.top});
    }

    void drawBody() {
        for (const Area& area : section_->areas) {
            PlacedArea placed{area.material, {}};
            for (const Point& corner : area.corners) {
                placed.corners.push_back(at(corner));
            }
            drawing_.areas.push_back(std::move(placed));
        }
        for (const Pipe& pipe : section_->pipes) {
            addPipe(pipe.centre, pipe.outer_diameter_m, Material::Concrete);
            addPipe(pipe.centre, pipe.inner_diameter_m, Material::Air);
        }
        for (const Line& line : section_->lines) {
            addLine(line.stroke, at(line.from), at(line.to));
            if (line.stroke == Stroke::Flow) {
                addArrowHead(at(line.from), at(line.to));
            } else if (line.stroke == Stroke::Water) {
                addLevelMark((x(line.from.x) + x(line.to.x)) / 2.0, y(line.from.y));
            }
        }
    }

    void addPipe(const Point& centre, double diameter_m, Material material) {
        const double half_width = diameter_m / 2.0 * scale_x_;
        const double half_height = diameter_m / 2.0 * scale_y_;
        const Point middle = at(centre);
        drawing_.ellipses.push_back(
            {material,
             {middle.x - half_width, middle.y - half_height, middle.x + half_width, middle.y + half_height}});
    }

    void addArrowHead(const Point& from, const Point& to) {
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        if (length <= 0) {
            return;
        }
        const Point along{(to.x - from.x) / length, (to.y - from.y) / length};
        const double size = std::min(lines(kArrowHead), length);
        const Point foot{to.x - along.x * size, to.y - along.y * size};
        addLine(Stroke::Flow, {foot.x - along.y * size / 2.0, foot.y + along.x * size / 2.0}, to);
        addLine(Stroke::Flow, {foot.x + along.y * size / 2.0, foot.y - along.x * size / 2.0}, to);
    }

    /// Adds the triangle on a water level.
    void addLevelMark(double centre_x, double level_y) {
        const double size = lines(kArrowHead);
        drawing_.areas.push_back({Material::LevelMark,
                                  {{centre_x, level_y},
                                   {centre_x - size * 0.7, level_y - size},
                                   {centre_x + size * 0.7, level_y - size}}});
    }

    /// Adds the break: a strip without soil between two zigzag lines.
    void drawBreak() {
        if (isBroken()) {
            const double middle = y(section_->extent.bottom) + lines(kBreakBelow);
            const double rise = lines(kBreakHeight);
            PlacedArea strip{Material::Air, {}};
            PlacedLine upper{Stroke::Outline, {}};
            PlacedLine lower{Stroke::Outline, {}};
            const int steps = std::max(2, static_cast<int>(soil_.width() / lines(kBreakStep)));
            for (int i = 0; i <= steps; ++i) {
                const double at_x = soil_.left + soil_.width() * i / steps;
                const double bend = i % 2 == 0 ? rise / 2.0 : -rise / 2.0;
                upper.points.push_back({at_x, middle - rise + bend});
                lower.points.push_back({at_x, middle + rise + bend});
            }
            strip.corners = upper.points;
            strip.corners.insert(strip.corners.end(), lower.points.rbegin(), lower.points.rend());
            drawing_.areas.push_back(std::move(strip));
            drawing_.lines.push_back(std::move(upper));
            drawing_.lines.push_back(std::move(lower));
        }
    }

    [[nodiscard]] double columnTop() const { return std::max(0.0, soil_.top - lines(kAir)); }

    void drawLevels() {
        std::vector<double> wanted;
        for (const Level& level : section_->levels) {
            const double level_y = level.beyond_break ? soil_.bottom - lines(kSoilBelow) : y(level.depth_m);
            addLine(level.stroke, {soil_.left, level_y}, {soil_.right, level_y});
            addLevelMark(soil_.right - lines(kSoilBeside) / 2.0, level_y);
            wanted.push_back(level_y);
        }
        const std::vector<double> tops = labelTops(wanted, line_, columnTop(), soil_.bottom);
        for (std::size_t i = 0; i < tops.size(); ++i) {
            const std::string& text = section_->levels[i].text;
            const double left = soil_.right + lines(kLaneGap);
            addLine(Stroke::Leader, {soil_.right, wanted[i]}, {left - lines(0.2), tops[i] + line_ / 2.0});
            addText({left, tops[i], left + sizes_->width(text), tops[i] + line_}, text, Align::Left);
        }
    }

    void drawHeights() {
        drawLane(false, soil_.left - lines(kLaneGap) / 2.0);
        drawLane(true, soil_.left - inner_lane_ - lines(kLaneGap) / 2.0);
    }

    void drawLane(bool outer, double line_x) {
        std::vector<const Dimension*> members;
        std::vector<double> wanted;
        for (const Dimension& dimension : section_->dimensions) {
            if (dimension.side == Side::Left && dimension.outer == outer && isShown(dimension)) {
                members.push_back(&dimension);
                wanted.push_back((y(dimension.from) + y(dimension.to)) / 2.0);
            }
        }
        const std::vector<double> tops = labelTops(wanted, line_, columnTop(), soil_.bottom);
        for (std::size_t i = 0; i < tops.size(); ++i) {
            const double from = y(members[i]->from);
            const double to = y(members[i]->to);
            addLine(Stroke::Dimension, {line_x, from}, {line_x, to});
            for (const double end : {from, to}) {
                addLine(Stroke::Leader, {line_x - lines(kTick), end}, {x(section_->extent.left), end});
                addTick({line_x, end});
            }
            const std::string text = textOf(*members[i]);
            const double width = sizes_->width(text);
            const double right = line_x - lines(kLaneGap) / 3.0;
            if (isTurned(*members[i])) {
                drawing_.texts.push_back(
                    {{right - line_, wanted[i] - width / 2.0, right, wanted[i] + width / 2.0},
                     text,
                     Emphasis::Plain,
                     true});
                continue;
            }
            const double middle = tops[i] + line_ / 2.0;
            if (middle < from || middle > to) {
                addLine(Stroke::Leader, {right + lines(0.1), middle}, {line_x, wanted[i]});
            }
            addText({right - width, tops[i], right, tops[i] + line_}, text, Align::Right);
        }
    }

    /// Adds the oblique stroke at the end of a dimension line.
    void addTick(const Point& end) {
        const double size = lines(kTick);
        addLine(Stroke::Dimension, {end.x - size, end.y + size}, {end.x + size, end.y - size});
    }

    void drawWidths() {
        double above = soil_.top - lines(kAir);
        double below = soil_.bottom;
        const double margin = lines(kMargin);
        for (const Dimension& dimension : section_->dimensions) {
            if (dimension.side == Side::Left) {
                continue;
            }
            const bool is_above = dimension.side == Side::Above;
            const double row_top =
                is_above ? (above -= lines(kRow)) : std::exchange(below, below + lines(kRow));
            const double from = x(dimension.from);
            const double to = x(dimension.to);
            // The text is above its line in rows above the drawing, and below it in rows below.
            const double line_y = is_above ? row_top + lines(1.25) : row_top + lines(0.3);
            const double text_top = is_above ? row_top : row_top + lines(0.45);
            addLine(Stroke::Dimension, {from, line_y}, {to, line_y});
            for (const double end : {from, to}) {
                addLine(Stroke::Leader, {end, line_y}, {end, is_above ? soil_.top : soil_.bottom});
                addTick({end, line_y});
            }
            drawing_.texts.push_back(centredText(textOf(dimension), (from + to) / 2.0, text_top, margin,
                                                 sheet_.width - margin, *sizes_, Emphasis::Plain));
        }
    }

    void drawNotes() {
        double top = notes_top_;
        for (const std::string& text : note_lines_) {
            drawing_.texts.push_back(
                centredText(text, sheet_.width / 2.0, top, 0.0, sheet_.width, *sizes_, Emphasis::Quiet));
            top += line_;
        }
    }

    const Section* section_;
    Sheet sheet_;
    const TextSizes* sizes_;
    double line_;
    std::vector<std::string> notes_;
    std::vector<std::string> note_lines_;
    Frugality frugality_;
    double inner_lane_ = 0;
    double outer_lane_ = 0;
    double right_width_ = 0;
    double scale_x_ = 1;
    double scale_y_ = 1;
    Box soil_;
    double notes_top_ = 0;
    std::vector<PlacedLine> leaders_;
    Drawing drawing_;
};

}  // namespace

Drawing arrange(const Section& section, const Sheet& sheet, const TextSizes& sizes) {
    SectionLayout layout(section, sheet, sizes);
    if (section.drawable() && layout.plan()) {
        return layout.draw();
    }
    Drawing drawing = onlyText(section.hint, sheet, sizes);
    drawing.summary = section.summary;
    return drawing;
}

}  // namespace mero::picture
