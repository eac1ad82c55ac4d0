#pragma once

#include <optional>
#include <string>
#include <vector>

#include "results/drawings/map_drawing.h"
#include "results/results.h"

namespace barvon {

enum class Map_Kind { concentration, thickness };

/// Whose map is shown where two results are held beside each other: the difference is the own less
/// the other's.
enum class Map_Side { own, other, difference };

/// What is to be shown of a result's maps.
struct Map_View {
  Map_Kind kind = Map_Kind::concentration;
  int species = 0;  // of the own results; 0, of thickness: all solids together
  double depth = 0;
  double time = 0;
  bool largest = false;     // over time, instead of at a time; of concentrations
  bool same_scale = true;   // through time, and for both results; else it fits what is shown
  bool logarithmic = true;  // levels
  bool lines = true, grid = false;
  Map_Side side = Map_Side::own;
  std::optional<Section_Line> section;
};

/// The numbers of the species that have maps, each once and in their order.
std::vector<int> Mapped_Species(const Results& results, Map_Kind kind);
/// The depths (ft) and the times (s) of a species' maps, ascending. Depths of thickness are one 0.
std::vector<double> Mapped_Depths(const Results& results, Map_Kind kind, int species);
std::vector<double> Mapped_Times(const Results& results, Map_Kind kind, int species, double depth);
bool Has_Largest(const Results& results, int species, double depth);

/// The map of a view in its own results; null where there is none.
const Result_Map* Own_Map(const Results& results, const Map_View& view);

/// "SAND", "All solids".
std::string Mapped_Name(const Results& results, int species);

/// The view with species, depth and time that have a map, the nearest ones to those it has. For a
/// result without maps of the kind the view stays.
Map_View Nearest_View(const Results& results, Map_View view);

/// What the map of the view shows, or why there is none. `other` may be null.
Map_Content Content_Of(const Results& own, const Results* other, const Map_View& view);

/// The numbers of a map as CSV: a line for each cell, and behind an empty line those of the
/// section. Nothing where there is no map.
std::string Map_Numbers(const Map_Drawing& drawing);

}  // namespace barvon
