#pragma once

#include <vector>

#include "results/cell_values.h"
#include "results/results.h"

namespace barvon {

// Lines of equal value over the cells of a grid, by marching squares: linear between the centres of
// neighbouring cells, and flat from the outermost centres to the grid's edge. Where two corners of
// a square that face each other are at the level or above and two are below, the mean of the four
// decides whether the two above are joined. A cell without a finite value is below every level, and
// its neighbours reach half way to it. The cost grows with the cells, whatever the level.

/// A closed outline in feet; its first point is not repeated. Seen as a plan shows it, X down and Z
/// to the right, the area above the level lies on the left of who walks along the points: outer
/// rings run counterclockwise, holes clockwise.
struct Contour_Ring {
  std::vector<Result_Point> points;
  bool hole = false;
};

/// A line at the level; an open one begins and ends at the grid's edge or beside cells without
/// values. The area above the level is on the same side as of a ring.
struct Contour_Line {
  std::vector<Result_Point>
      points;  // two at least; the first is not repeated at a closed one's end
  bool closed = false;
};

/// The outlines of where the values are at the level or above, to be filled by the odd-even rule;
/// along the grid's edge where they are so there. Nothing for values that are not rows x columns.
/// A point or a line of cells that only touches the level has no area and no ring, and joins none:
/// no piece of an outline is passed twice.
std::vector<Contour_Ring> Regions_Above(const Cell_Values& values, double level);

/// The lines at the level alone, without the grid's edge.
std::vector<Contour_Line> Contour_Lines(const Cell_Values& values, double level);

/// The area (ft2) of a ring: above 0 for an outer one, below 0 for a hole.
double Signed_Area(const std::vector<Result_Point>& ring);

}  // namespace barvon
