#include "pictures/drawings/grid_shapes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "pictures/shapes/plot_frame.h"

namespace barvon {
namespace {

constexpr double kScaleRoom = 96, kScaleGap = 22, kScaleWidth = 16;  // pixels
constexpr double kLeastApart = 20, kLongestArrow = 60;               // pixels
constexpr double kPartOfCell = 0.92;
constexpr double kOverlap = 0.35;  // pixels, so that no ground shines through between two cells
constexpr int kShades = 40;        // of a map; equal neighbours are one shape
constexpr double kLabelsAcross = 8;

// From shallow to deep: even steps look evenly apart, also in print without colour. The stops of
// the public-domain scale "viridis", the light end first.
constexpr Colour kDepthStops[] = {{253, 231, 37}, {189, 223, 38}, {122, 209, 81}, {68, 191, 112},
                                  {34, 168, 132}, {33, 145, 140}, {42, 120, 142}, {53, 95, 141},
                                  {65, 68, 135},  {72, 36, 117},  {68, 1, 84}};
// Light enough throughout for dark arrows on it.
constexpr Colour kSpeedStops[] = {{250, 252, 255}, {189, 215, 238}, {107, 168, 217}};
constexpr Colour kArrow{20, 33, 48};

using Stops = std::span<const Colour>;

/// What is shown of a grid.
struct Cells {
  int rows = 0, columns = 0;
  const std::vector<double>& values;
  Axis_Scale scale;
  std::string label;
  Stops stops;
};

std::uint8_t Between(std::uint8_t a, std::uint8_t b, double part) {
  return static_cast<std::uint8_t>(std::lround(a + (b - a) * part));
}

Colour Colour_At(Stops stops, double part) {
  const double at = std::clamp(part, 0.0, 1.0) * static_cast<double>(stops.size() - 1);
  const std::size_t low = std::min(static_cast<std::size_t>(at), stops.size() - 2);
  const double rest = at - static_cast<double>(low);
  const Colour &a = stops[low], &b = stops[low + 1];
  return {Between(a.red, b.red, rest), Between(a.green, b.green, rest),
          Between(a.blue, b.blue, rest)};
}

/// The shade of a value, from 0 on; -1 for none.
int Shade_Of(const Cells& cells, double value) {
  const double part = Part_Of_Axis(cells.scale, value);
  if (!std::isfinite(part)) return -1;
  return std::clamp(static_cast<int>(part * kShades), 0, kShades - 1);
}

Colour Colour_Of_Shade(const Cells& cells, int shade) {
  return Colour_At(cells.stops, (shade + 0.5) / kShades);
}

Plot_Axis Axis_Of(int count, const char* label) {
  const double step = std::max(1.0, Round_Value_Below(count / kLabelsAcross * 2));
  return {{0.5, count + 0.5, step, 0}, label, 0};
}

Plot_Frame Frame_Of(const Cells& cells, const Canvas& canvas) {
  Plot_Layout layout;
  layout.across = Axis_Of(cells.columns, "Column (Z, left to right)");
  layout.upright = Axis_Of(cells.rows, "Row (X, top to bottom)");
  layout.upright.downwards = true;
  layout.across_on_top = true;
  layout.equal_scales = true;
  return Plot_Frame(layout, {canvas.width - kScaleRoom, canvas.height, canvas.text_size});
}

void Add_Cells(Shape_List& picture, const Plot_Frame& frame, const Cells& cells) {
  const auto columns = static_cast<std::size_t>(cells.columns);
  for (int row = 1; row <= cells.rows; ++row) {
    const std::size_t base = static_cast<std::size_t>(row - 1) * columns;
    for (std::size_t first = 0; first < columns;) {
      const int shade = Shade_Of(cells, cells.values[base + first]);
      std::size_t next = first + 1;
      while (next < columns && Shade_Of(cells, cells.values[base + next]) == shade) ++next;
      if (shade >= 0) {
        const Place a = frame.At(static_cast<double>(first) + 0.5, row - 0.5);
        Place b = frame.At(static_cast<double>(next) + 0.5, row + 0.5);
        if (next < columns) b.x += kOverlap;
        if (row < cells.rows) b.y += kOverlap;
        picture.shapes.push_back(Polygon_Shape{Rectangle(a, b), Colour_Of_Shade(cells, shade), {}});
      }
      first = next;
    }
  }
}

void Add_Colour_Scale(Shape_List& picture, const Plot_Frame& frame, const Cells& cells,
                      double size) {
  const double left = frame.right() + kScaleGap, right = left + kScaleWidth;
  const double height = frame.bottom() - frame.top();
  for (int shade = 0; shade < kShades; ++shade) {
    const double top = frame.top() + height * shade / kShades;
    const double bottom = frame.top() + height * (shade + 1) / kShades;
    picture.shapes.push_back(
        Polygon_Shape{Rectangle({left, top}, {right, std::min(bottom + kOverlap, frame.bottom())}),
                      Colour_Of_Shade(cells, shade),
                      {}});
  }
  picture.shapes.push_back(Polygon_Shape{
      Rectangle({left, frame.top()}, {right, frame.bottom()}), {}, Stroke{kAxisInk, 1}});
  for (const double value : Labels_Of(cells.scale, 1)) {
    const double y = frame.top() + height * Part_Of_Axis(cells.scale, value);
    picture.shapes.push_back(Line_Shape{{{right, y}, {right + 4, y}}, {kAxisInk, 1}});
    picture.shapes.push_back(
        Text_Shape{{right + 7, y + Half_Figure(size)}, Label_Text(cells.scale, value), size, kInk});
  }
  picture.shapes.push_back(Text_Shape{{left, frame.top() - 8}, cells.label, size, kInk});
}

Shape_List Map_Of(const Plot_Frame& frame, const Cells& cells, const std::string& title,
                  const std::string& description, double size) {
  Shape_List picture = frame.Ground(title, description);
  picture.shapes.clear();
  picture.width += kScaleRoom;
  Add_Cells(picture, frame, cells);
  Add_Colour_Scale(picture, frame, cells, size);
  frame.Add_Axes(picture);
  return picture;
}

/// An arrow about its middle; one that is too short to have a direction is a dot.
void Add_Arrow(Shape_List& picture, Place middle, Place reach) {
  constexpr double kLargestHead = 7, kHeadShare = 0.4, kDot = 1.2, kWide = 0.4;
  const double length = std::hypot(reach.x, reach.y);
  if (length < 2 * kDot) {
    picture.shapes.push_back(Circle_Shape{middle, kDot / 2, kArrow, {}});
    return;
  }
  const Place along{reach.x / length, reach.y / length};
  const double head = std::min(kLargestHead, kHeadShare * length);
  const Place tail{middle.x - reach.x / 2, middle.y - reach.y / 2};
  const Place tip{middle.x + reach.x / 2, middle.y + reach.y / 2};
  const Place neck{tip.x - along.x * head, tip.y - along.y * head};
  const Place across{-along.y * head * kWide, along.x * head * kWide};
  picture.shapes.push_back(Line_Shape{{tail, neck}, {kArrow, 1.2}});
  picture.shapes.push_back(Polygon_Shape{
      {tip, {neck.x + across.x, neck.y + across.y}, {neck.x - across.x, neck.y - across.y}},
      kArrow,
      {}});
}

std::string Three_Digits(double speed) {
  if (!(speed > 0)) return Short_Text(speed);
  const double unit = std::pow(10, std::floor(std::log10(speed)) - 2);
  return Short_Text(std::round(speed / unit) * unit);
}

}  // namespace

Shape_List Depth_Shapes(const Depth_Drawing& drawing, const Canvas& canvas) {
  if (!drawing.range) return {};
  const Cells cells{drawing.rows,  drawing.columns, drawing.depths,
                    drawing.scale, "Depth (ft)",    kDepthStops};
  Shape_List picture = Map_Of(Frame_Of(cells, canvas), cells, "Map of the water depths",
                              drawing.description, canvas.text_size);
  Add_Note(picture, drawing.note, canvas.text_size);
  return picture;
}

Shape_List Velocity_Shapes(const Velocity_Drawing& drawing, const Canvas& canvas) {
  if (drawing.rows < 1 || !Range_Of(drawing.speeds)) return {};
  const Cells cells{drawing.rows,  drawing.columns, drawing.speeds,
                    drawing.scale, "Speed (ft/s)",  kSpeedStops};
  const Plot_Frame frame = Frame_Of(cells, canvas);
  Shape_List picture =
      Map_Of(frame, cells, "Map of the velocity field", drawing.description, canvas.text_size);
  const double width = frame.right() - frame.left(), height = frame.bottom() - frame.top();
  const int by_row = Arrow_Stride(drawing.rows, height, kLeastApart);
  const int by_column = Arrow_Stride(drawing.columns, width, kLeastApart);
  const double apart =
      std::min(by_row * height / drawing.rows, by_column * width / drawing.columns);
  const double longest = std::min(kLongestArrow, kPartOfCell * apart);
  for (const Velocity_Arrow& arrow : Arrows_Of(drawing, by_row, by_column)) {
    Add_Arrow(picture, frame.At(arrow.column, arrow.row),
              {arrow.right * longest, arrow.down * longest});
  }
  std::string note = "The longest arrow stands for " + Three_Digits(drawing.fastest) + " ft/s.";
  if (!drawing.note.empty()) note += " " + drawing.note;
  Add_Note(picture, note, canvas.text_size);
  return picture;
}

}  // namespace barvon
