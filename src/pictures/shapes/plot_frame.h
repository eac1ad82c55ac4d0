#pragma once

#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

struct Plot_Axis {
  Axis_Scale scale;
  std::string label;
  double margin = 0.03;  // part of the axis left free at both ends, so that markers there are whole
  bool downwards = false;  // of the upright axis: its values grow from top to bottom
  bool labelled = true;    // with numbers, and with lines through the plot
  // Where there is one, it stands for a label that is wider than its axis; where that is too wide
  // too, or the plot would have less than half of the canvas, the axis has no label.
  std::string short_label = {};
};

/// How the legend shows an entry.
enum class Sample { circles, squares, area, triangles, line };

struct Legend_Entry {
  std::string text;
  Colour colour;
  Sample sample = Sample::circles;
  Dash dash = Dash::solid;  // of the line; an area has none
};

struct Plot_Layout {
  Plot_Axis across, upright;
  std::vector<Legend_Entry> legend;  // above the plot, in as many rows as it takes
  bool across_on_top = false;        // the numbers of the axis across, as a table has its headings
  bool equal_scales = false;         // a unit is as long across as it is upright
  double left_room = 0;              // pixels that are kept free beside an axis without numbers
};

/// Where a plot's axes lie on a canvas. On a canvas too small for axes every place is still a
/// place, within a pixel or so of the others.
class Plot_Frame {
 public:
  Plot_Frame(Plot_Layout layout, const Canvas& canvas);

  /// Where two values meet; not a number in a coordinate whose value has no place on its axis.
  Place At(double across, double upright) const;
  /// The values there, also outside of the axes.
  double Across_At(const Place& place) const;
  double Upright_At(const Place& place) const;
  bool Holds(const Place& place) const;

  double left() const { return left_; }
  double top() const { return top_; }
  double right() const { return right_; }
  double bottom() const { return bottom_; }
  /// How far the numbers of the axis across reach to the right, at most.
  double numbers_right() const;

  /// A list of the canvas's size with the lines that lie below what is drawn.
  Shape_List Ground(const std::string& title, const std::string& description) const;
  /// A band over a range of the upright axis, and a line at one of its values.
  void Add_Band(Shape_List& picture, Value_Range range, Colour fill) const;
  void Add_Mark(Shape_List& picture, double upright, const Stroke& stroke) const;
  /// Axes with their numbers, and the legend.
  void Add_Axes(Shape_List& picture) const;

 private:
  void Lay_Out();
  bool Shorten_Labels();
  void Shrink_To_Equal_Scales();
  std::vector<double> Labels_Across() const;
  std::vector<double> Labels_Upright() const;
  void Add_Across(Shape_List& picture) const;
  void Add_Upright(Shape_List& picture) const;
  void Add_Legend(Shape_List& picture) const;

  Plot_Layout layout_;
  Canvas canvas_;
  double left_ = 0, top_ = 0, right_ = 1, bottom_ = 1;
  double room_across_ = 0, room_down_ = 0;  // for the plot, before its scales are made equal
};

/// Adds a line through values of the plot, in their order, with a marker at each where `markers`
/// has one.
struct Plot_Value {
  double across = 0, upright = 0;
};
void Add_Marked_Line(Shape_List& picture, const Plot_Frame& frame,
                     const std::vector<Plot_Value>& values, Colour colour, Sample markers,
                     Dash dash = Dash::solid);

}  // namespace barvon
