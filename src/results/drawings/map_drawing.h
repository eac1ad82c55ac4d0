#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "pictures/shapes/plan.h"
#include "results/cell_values.h"
#include "results/drawings/colour_scale.h"
#include "results/drawings/section_drawing.h"
#include "results/results.h"

namespace barvon {

/// What a map shows.
struct Map_Content {
  Cell_Values cells;
  std::string title;     // above the map: "SAND at 20 ft, 600 s (10 min)"
  std::string quantity;  // of the values: "Concentration", "Thickness"
  std::string unit;
  Colour_Scale scale;
  bool logarithmic = false;  // of the section's axis
  bool lines = true;         // at the levels; on a scale of two sides always
  bool grid = false;         // the cells' edges
  std::optional<Result_Area> site, zid;
  bool mixing_zone = false;  // the site is one
  std::optional<Result_Point> disposal;
  std::optional<Section_Line> section;
  std::string nothing;  // instead of a map: why there is none
};

/// How the legend shows a mark of the map: by its outline, or by a point.
struct Map_Sign {
  std::string words;
  std::variant<Stroke, Circle_Shape> look;
};

/// A map of a grid to scale, X down and Z to the right: areas filled by levels, with the site, the
/// ZID (dashed) and the disposal point, a scale beside it, and a section below it where one is
/// asked for.
struct Map_Drawing {
  Plan plan;
  Map_Content content;
  std::optional<Section_Drawing> section;
  std::vector<Map_Sign> signs;  // of the marks that are drawn
  std::string summary;          // below the title where it has room: where the largest value is
  std::string description;      // all of it in words
};

Map_Drawing Draw_Map(Map_Content content);

Shape_List Map_Shapes(const Map_Drawing& drawing, const Canvas& canvas);

/// The place in feet below a place of the canvas, in round feet no coarser than a pixel; nothing
/// beside the map. `nearest`: a place beside it counts as the nearest one of the map; nothing only
/// where there is no map.
std::optional<Result_Point> Map_Feet_At(const Map_Drawing& drawing, const Canvas& canvas,
                                        const Place& place, bool nearest = false);

/// Where a place in feet is on the canvas; nothing where there is no map.
std::optional<Place> Map_Place_Of(const Map_Drawing& drawing, const Canvas& canvas,
                                  const Result_Point& place);

/// "X 1200 ft, Z 800 ft: 12.5 mg/l".
std::string Map_Words_At(const Map_Drawing& drawing, const Result_Point& place);

}  // namespace barvon
