#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/plot_frame.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// A part of a bar, from one value of the axis to another. One with an end that cannot be drawn is
/// left out. On a logarithmic axis a part from 0 begins at the axis's end.
struct Bar_Part {
  double from = 0, to = 0;
  Colour fill;
  std::string words;  // what it is: "sand"; may be empty
};

/// A level bar, or a row of parts with gaps between.
struct Bar {
  std::string label;            // to the left of it
  std::vector<Bar_Part> parts;  // drawn in this order
  double weight = 1;            // its part of the height beside the other bars; above 0
  bool endless = false;         // longer than any axis: drawn as an outline that warns
  bool warned = false;          // has an edge that warns
  std::string remark = {};      // a word behind its end
};

struct Bar_Chart {
  std::string title;
  std::string value_label;  // below the axis, with the unit
  bool logarithmic = false;
  std::vector<Bar> bars;  // from top to bottom
  std::vector<Legend_Entry> legend;
};

/// One of the amounts that a stacked bar puts one behind the other.
struct Bar_Amount {
  double amount = 0;
  Colour fill;
  std::string words;
};

/// A plain bar from 0.
Bar Plain_Bar(const std::string& label, double value, Colour fill);
/// Amounts one behind the other from 0. Those that are not above 0 take no room.
Bar Stacked_Bar(const std::string& label, const std::vector<Bar_Amount>& amounts);

/// What a picture of bars draws.
struct Bars_Drawing {
  Bar_Chart chart;   // its bars without the parts that are left out
  Axis_Scale scale;  // of the values; a linear one holds 0
  int left_out = 0;  // parts
  std::string note;
  std::string description;
};

Bars_Drawing Draw_Bars(const Bar_Chart& chart);

Shape_List Bar_Shapes(const Bars_Drawing& drawing, const Canvas& canvas);

/// The bar at a place of the canvas, counted from 0.
std::optional<std::size_t> Bar_At(const Bars_Drawing& drawing, const Canvas& canvas,
                                  const Place& place);

/// A bar in words, with its numbers.
std::string Bar_Words(const Bar& bar);

}  // namespace barvon
