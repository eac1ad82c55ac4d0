#include "results/contours.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "results/cell_places.h"

namespace barvon::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Cells of 10 ft in X by 20 ft in Z.
Cell_Values Cells(int rows, int columns, std::vector<double> values) {
  return {.rows = rows,
          .columns = columns,
          .spacing_x = 10,
          .spacing_z = 20,
          .values = std::move(values)};
}

using Points = std::vector<std::pair<double, double>>;

Points Of(const std::vector<Result_Point>& points) {
  Points pairs;
  for (const Result_Point& point : points) pairs.emplace_back(point.x, point.z);
  return pairs;
}

/// The points of a ring, the smallest X and then Z first.
Points Of_Ring(const std::vector<Result_Point>& ring) {
  Points points = Of(ring);
  std::rotate(points.begin(), std::min_element(points.begin(), points.end()), points.end());
  return points;
}

double Area_Above(const Cell_Values& cells, double level) {
  double area = 0;
  for (const Contour_Ring& ring : Regions_Above(cells, level)) area += Signed_Area(ring.points);
  return area;
}

// A grid of 2 x 2 covers X -5 to 15 and Z -10 to 30. Upper row 4, lower row 0: level 1 is three
// quarters of the way down, at X 7.5.
TEST(Contours, A_Level_Between_Two_Rows_Is_A_Straight_Line_To_The_Edges) {
  const Cell_Values cells = Cells(2, 2, {4, 4, 0, 0});
  const auto lines = Contour_Lines(cells, 1);
  ASSERT_EQ(lines.size(), 1);
  EXPECT_FALSE(lines[0].closed);
  // The area above, the upper row, is on the left of who walks to the right.
  EXPECT_EQ(Of(lines[0].points), (Points{{7.5, -10}, {7.5, 30}}));
  const auto rings = Regions_Above(cells, 1);
  ASSERT_EQ(rings.size(), 1);
  EXPECT_FALSE(rings[0].hole);
  EXPECT_EQ(Of_Ring(rings[0].points), (Points{{-5, -10}, {7.5, -10}, {7.5, 30}, {-5, 30}}));
  EXPECT_EQ(Signed_Area(rings[0].points), 12.5 * 40);
}

// Upper left 4, the others 0, level 2: half way on both sides of it, flat to the edges.
TEST(Contours, A_Corner_Above_Is_Cut_Off) {
  const auto rings = Regions_Above(Cells(2, 2, {4, 0, 0, 0}), 2);
  ASSERT_EQ(rings.size(), 1);
  EXPECT_EQ(Of_Ring(rings[0].points), (Points{{-5, -10}, {5, -10}, {5, 0}, {0, 10}, {-5, 10}}));
}

// A peak of 4 among zeros, level 1: three quarters of the way to each neighbour.
TEST(Contours, A_Peak_Has_A_Closed_Line) {
  const Cell_Values cells = Cells(3, 3, {0, 0, 0, 0, 4, 0, 0, 0, 0});
  const auto lines = Contour_Lines(cells, 1);
  ASSERT_EQ(lines.size(), 1);
  EXPECT_TRUE(lines[0].closed);
  EXPECT_EQ(Of_Ring(lines[0].points), (Points{{2.5, 20}, {10, 5}, {17.5, 20}, {10, 35}}));
  const auto rings = Regions_Above(cells, 1);
  ASSERT_EQ(rings.size(), 1);
  EXPECT_EQ(Of_Ring(rings[0].points), Of_Ring(lines[0].points));
  EXPECT_EQ(Signed_Area(rings[0].points), 15 * 30 / 2.0);
}

// The hollow of 0 in a plain of 4, level 1: a quarter of the way from the hollow.
TEST(Contours, A_Hollow_Is_A_Hole_In_The_Whole_Grid) {
  const auto rings = Regions_Above(Cells(3, 3, {4, 4, 4, 4, 0, 4, 4, 4, 4}), 1);
  ASSERT_EQ(rings.size(), 2);
  const bool first = rings[0].hole;
  const Contour_Ring &outer = rings[first ? 1 : 0], &hole = rings[first ? 0 : 1];
  EXPECT_FALSE(outer.hole);
  EXPECT_TRUE(hole.hole);
  EXPECT_EQ(Of_Ring(outer.points), (Points{{-5, -10}, {25, -10}, {25, 50}, {-5, 50}}));
  EXPECT_EQ(Of_Ring(hole.points), (Points{{7.5, 20}, {10, 25}, {12.5, 20}, {10, 15}}));
  EXPECT_EQ(Signed_Area(outer.points), 30 * 60);
  EXPECT_EQ(Signed_Area(hole.points), -5 * 10 / 2.0);
}

// The corners 4 across from each other, 0 and 1 or 0 and 6 between them: the mean is 2.25 or 3.5.
TEST(Contours, On_A_Saddle_The_Mean_Decides) {
  const Cell_Values low = Cells(2, 2, {4, 0, 1, 4});
  EXPECT_EQ(Regions_Above(low, 3).size(), 2);     // 2.25 is below: two corners apart
  EXPECT_EQ(Regions_Above(low, 2).size(), 1);     // above: one band across
  EXPECT_EQ(Regions_Above(low, 2.25).size(), 1);  // at the level counts as above
  EXPECT_EQ(Contour_Lines(low, 3).size(), 2);
  EXPECT_EQ(Contour_Lines(low, 2).size(), 2);
}

TEST(Contours, All_Above_Is_The_Grid_And_None_Is_Nothing) {
  const Cell_Values cells = Cells(2, 2, {3, 4, 5, 6});
  const auto rings = Regions_Above(cells, 3);
  ASSERT_EQ(rings.size(), 1);
  EXPECT_EQ(Of_Ring(rings[0].points), (Points{{-5, -10}, {15, -10}, {15, 30}, {-5, 30}}));
  EXPECT_TRUE(Contour_Lines(cells, 3).empty());
  EXPECT_TRUE(Regions_Above(cells, 6.5).empty());
  EXPECT_TRUE(Contour_Lines(cells, 6.5).empty());
  EXPECT_TRUE(Regions_Above(cells, kNan).empty());
  EXPECT_TRUE(Regions_Above({}, 1).empty());
  EXPECT_TRUE(Regions_Above(Cells(2, 3, {1, 2}), 1).empty());
}

TEST(Contours, One_Cell_Is_All_Or_Nothing) {
  const Cell_Values one = Cells(1, 1, {5});
  EXPECT_EQ(Area_Above(one, 5), 200);
  EXPECT_EQ(Area_Above(one, 5.1), 0);
}

// A plateau of 2 x 2 cells at the level itself, lower around it: its centres are the outline.
TEST(Contours, A_Plateau_At_The_Level_Ends_At_Its_Centres) {
  const Cell_Values cells = Cells(4, 4, {0, 0, 0, 0, 0, 2, 2, 0, 0, 2, 2, 0, 0, 0, 0, 0});
  const auto rings = Regions_Above(cells, 2);
  ASSERT_EQ(rings.size(), 1);
  EXPECT_EQ(Of_Ring(rings[0].points), (Points{{10, 20}, {20, 20}, {20, 40}, {10, 40}}));
  const auto lines = Contour_Lines(cells, 2);
  ASSERT_EQ(lines.size(), 1);
  EXPECT_EQ(lines[0].points.size(), 4);
}

TEST(Contours, What_Only_Touches_The_Level_Has_Neither_Ring_Nor_Line) {
  const Cell_Values peak = Cells(3, 3, {0, 0, 0, 0, 2, 0, 0, 0, 0});
  EXPECT_TRUE(Regions_Above(peak, 2).empty());
  EXPECT_TRUE(Contour_Lines(peak, 2).empty());
  const Cell_Values ridge = Cells(3, 5, {0, 0, 0, 0, 0, 0, 2, 2, 2, 0, 0, 0, 0, 0, 0});
  EXPECT_TRUE(Regions_Above(ridge, 2).empty());
  EXPECT_TRUE(Contour_Lines(ridge, 2).empty());
}

// A peak with a ridge at the level behind it: the ridge is no way there and back in the ring.
TEST(Contours, A_Ridge_At_The_Level_Leaves_No_Double_Line) {
  const Cell_Values cells = Cells(3, 5, {0, 0, 0, 0, 0, 0, 4, 2, 2, 0, 0, 0, 0, 0, 0});
  const auto rings = Regions_Above(cells, 2);
  ASSERT_EQ(rings.size(), 1);
  EXPECT_EQ(Of_Ring(rings[0].points), (Points{{5, 20}, {10, 10}, {15, 20}, {10, 40}}));
}

// Two peaks of 4 with two cells at the level between them, along Z and along X: half way from each
// peak to the zeros, and the ridge belongs to neither.
TEST(Contours, Peaks_That_A_Ridge_At_The_Level_Joins_Are_Two_Areas) {
  const Cell_Values along_z = Cells(3, 6, {0, 0, 0, 0, 0, 0, 0, 4, 2, 2, 4, 0, 0, 0, 0, 0, 0, 0});
  const Points left{{5, 20}, {10, 10}, {15, 20}, {10, 40}};
  const Points right{{5, 80}, {10, 60}, {15, 80}, {10, 90}};
  const auto rings = Regions_Above(along_z, 2);
  ASSERT_EQ(rings.size(), 2);
  EXPECT_EQ(Of_Ring(rings[0].points), left);
  EXPECT_EQ(Of_Ring(rings[1].points), right);
  const auto lines = Contour_Lines(along_z, 2);
  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(Of_Ring(lines[0].points), left);
  EXPECT_EQ(Of_Ring(lines[1].points), right);

  const Cell_Values along_x = Cells(6, 3, {0, 0, 0, 0, 4, 0, 0, 2, 0, 0, 2, 0, 0, 4, 0, 0, 0, 0});
  const auto columns = Regions_Above(along_x, 2);
  ASSERT_EQ(columns.size(), 2);
  EXPECT_EQ(Of_Ring(columns[0].points), (Points{{5, 20}, {10, 10}, {20, 20}, {10, 30}}));
  EXPECT_EQ(Of_Ring(columns[1].points), (Points{{30, 20}, {40, 10}, {45, 20}, {40, 30}}));
  EXPECT_EQ(Contour_Lines(along_x, 2).size(), 2);
}

// Two hollows of 0 in a plain of 4 with a ridge at the level between them: one hole, since the
// ridge has no area.
TEST(Contours, A_Ridge_At_The_Level_Across_A_Hollow_Leaves_One_Hole) {
  const Cell_Values cells =
      Cells(5, 4, {4, 4, 4, 4, 4, 0, 0, 4, 4, 2, 2, 4, 4, 0, 0, 4, 4, 4, 4, 4});
  const auto rings = Regions_Above(cells, 2);
  ASSERT_EQ(rings.size(), 2);
  const Contour_Ring& hole = rings[rings[0].hole ? 0 : 1];
  EXPECT_TRUE(hole.hole);
  EXPECT_EQ(Of_Ring(hole.points), (Points{{5, 20},
                                          {5, 40},
                                          {10, 50},
                                          {20, 40},
                                          {30, 50},
                                          {35, 40},
                                          {35, 20},
                                          {30, 10},
                                          {20, 20},
                                          {10, 10}}));
  EXPECT_EQ(Area_Above(cells, 2), 50 * 80 - 2 * (150 + 300));
}

TEST(Contours, A_Cell_Without_A_Value_Is_Left_Out_Half_Way_Around_It) {
  for (const double none : {kNan, kInfinity, -kInfinity}) {
    const Cell_Values cells = Cells(3, 3, {4, 4, 4, 4, none, 4, 4, 4, 4});
    const auto rings = Regions_Above(cells, 1);
    ASSERT_EQ(rings.size(), 2) << none;
    EXPECT_EQ(Area_Above(cells, 1), 30 * 60 - 10 * 20 / 2.0);
    EXPECT_TRUE(Contour_Lines(cells, 1).empty());  // no line where no value crosses the level
  }
}

TEST(Contours, The_Largest_Numbers_Do_No_Harm) {
  const double most = std::numeric_limits<double>::max();
  const auto lines = Contour_Lines(Cells(2, 2, {most, most, -most, -most}), 0);
  ASSERT_EQ(lines.size(), 1);
  EXPECT_EQ(Of(lines[0].points), (Points{{5, -10}, {5, 30}}));
}

/// Few different values, so that they often hit a level.
rc::Gen<Cell_Values> Any_Cells() {
  return rc::gen::exec([] {
    const int rows = *rc::gen::inRange(1, 8), columns = *rc::gen::inRange(1, 8);
    const auto wholes = *rc::gen::container<std::vector<int>>(
        static_cast<std::size_t>(rows * columns), rc::gen::inRange(-1, 9));
    std::vector<double> values;
    // A ninth stands for no value.
    for (const int whole : wholes) values.push_back(whole == 8 ? kNan : 0.5 * whole);
    return Cells(rows, columns, values);
  });
}

RC_GTEST_PROP(Contours, Areas_Shrink_From_Level_To_Level, ()) {
  const Cell_Values cells = *Any_Cells();
  double former = std::numeric_limits<double>::max();
  for (double level = -1; level <= 5; level += 0.25) {
    const double area = Area_Above(cells, level);
    RC_ASSERT(area >= 0);
    RC_ASSERT(area <= former * (1 + 1e-12) + 1e-9);
    former = area;
  }
}

/// The segments of rings or lines, the smaller end first.
std::vector<std::array<double, 4>> Segments(const std::vector<Result_Point>& points, bool closed) {
  std::vector<std::array<double, 4>> segments;
  for (std::size_t i = 0; i + (closed ? 0 : 1) < points.size(); ++i) {
    const Result_Point &a = points[i], &b = points[(i + 1) % points.size()];
    const bool swapped = b.x < a.x || (b.x == a.x && b.z < a.z);
    const Result_Point &low = swapped ? b : a, &high = swapped ? a : b;
    segments.push_back({low.x, low.z, high.x, high.z});
  }
  return segments;
}

RC_GTEST_PROP(Contours, Rings_Are_Closed_And_Have_No_Doubles, ()) {
  const Cell_Values cells = *Any_Cells();
  const double level = 0.25 * *rc::gen::inRange(-4, 20);
  std::vector<std::array<double, 4>> all;
  for (const Contour_Ring& ring : Regions_Above(cells, level)) {
    RC_ASSERT(ring.points.size() >= 3u);
    RC_ASSERT(ring.hole == (Signed_Area(ring.points) < 0));
    const auto segments = Segments(ring.points, true);
    for (const auto& segment : segments) {
      RC_ASSERT(segment[0] != segment[2] || segment[1] != segment[3]);
    }
    all.insert(all.end(), segments.begin(), segments.end());
  }
  std::sort(all.begin(), all.end());
  RC_ASSERT(std::adjacent_find(all.begin(), all.end()) == all.end());
}

RC_GTEST_PROP(Contours, Every_Crossing_Lies_Between_Its_Two_Cells, ()) {
  const Cell_Values cells = *Any_Cells();
  const bool is_whole =
      std::ranges::all_of(cells.values, [](double value) { return std::isfinite(value); });
  const double level = 0.25 * *rc::gen::inRange(-4, 20);
  for (const Contour_Line& line : Contour_Lines(cells, level)) {
    RC_ASSERT(line.points.size() >= 2u);
    for (const Result_Point& point : line.points) {
      // On a way between two neighbours (or from one to the edge) the value is linear.
      const bool on_row = std::fmod(point.x, 10) == 0, on_column = std::fmod(point.z, 20) == 0;
      const Result_Area reach = Reach_Of(cells);
      const bool on_edge = point.x == reach.top || point.x == reach.bottom ||
                           point.z == reach.left || point.z == reach.right;
      RC_ASSERT(on_row || on_column || on_edge);
      const double value = Value_At(cells, point);
      // Half way to a cell without a value no value is that of the line.
      if (is_whole) RC_ASSERT(std::abs(value - level) < 1e-9);
    }
  }
}

RC_GTEST_PROP(Contours, Without_Missing_Cells_Lines_Have_The_Level, ()) {
  Cell_Values cells = *Any_Cells();
  for (double& value : cells.values) {
    if (!std::isfinite(value)) value = 0;
  }
  const double level = 0.3 + 0.5 * *rc::gen::inRange(-2, 8);  // never that of a cell
  double open_ends = 0;
  for (const Contour_Line& line : Contour_Lines(cells, level)) {
    for (const Result_Point& point : line.points) {
      RC_ASSERT(std::abs(Value_At(cells, point) - level) < 1e-9);
    }
    if (!line.closed) open_ends += 2;
  }
  // Along the grid's edge, each change from below to above and back ends a line.
  std::vector<double> edge;
  for (int k = 1; k <= cells.columns; ++k) edge.push_back(cells.At(1, k));
  for (int i = 1; i <= cells.rows; ++i) edge.push_back(cells.At(i, cells.columns));
  for (int k = cells.columns; k >= 1; --k) edge.push_back(cells.At(cells.rows, k));
  for (int i = cells.rows; i >= 1; --i) edge.push_back(cells.At(i, 1));
  int changes = 0;
  for (std::size_t i = 0; i < edge.size(); ++i) {
    if ((edge[i] >= level) != (edge[(i + 1) % edge.size()] >= level)) ++changes;
  }
  RC_ASSERT(open_ends == changes);
}

}  // namespace
}  // namespace barvon::testing
