#pragma once

#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/shapes.h"
#include "results/cell_values.h"
#include "results/drawings/colour_scale.h"
#include "results/results.h"

namespace barvon {

/// A line over the map, straight between two places in feet.
struct Section_Line {
  Result_Point from, to;
};

struct Section_Sample {
  double distance = 0;  // ft from the beginning of the line
  Result_Point place;
  double value = 0;  // NaN outside of the cells
};

/// The values along the line, as `Value_At` reads them: at both ends and evenly between, no more
/// than a quarter of the smaller spacing apart and no fewer than 20 steps, but no more than 2000.
/// None for a line without length or cells that are not whole.
std::vector<Section_Sample> Samples_Along(const Cell_Values& cells, const Section_Line& line);

/// A section through a map: the values over the distance, with the levels of the map.
struct Section_Drawing {
  std::vector<Section_Sample> samples;
  std::string unit;
  Colour_Scale levels;
  Axis_Scale across, upright;
  std::string note, description;
};

/// A logarithmic one has its axis from the decade of the least level on; lower values leave a gap.
/// A scale of two sides has none.
Section_Drawing Draw_Section(const Cell_Values& cells, const Section_Line& line,
                             const std::string& unit, const Colour_Scale& levels, bool logarithmic);

Shape_List Section_Shapes(const Section_Drawing& drawing, const Canvas& canvas);

}  // namespace barvon
