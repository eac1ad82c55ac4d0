#include "results/map_polygons.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace barvon {
namespace {

/// Two squares of side 2, corner to corner at (2, 2).
const Map_Outline kLower = {{0, 0}, {2, 0}, {2, 2}, {0, 2}};
const Map_Outline kUpper = {{2, 2}, {4, 2}, {4, 4}, {2, 4}};

std::vector<long double> Areas_Of(const std::vector<Map_Polygon>& polygons) {
  std::vector<long double> areas;
  for (const Map_Polygon& polygon : polygons) areas.push_back(Twice_Area_Of(polygon.outer) / 2);
  std::ranges::sort(areas);
  return areas;
}

TEST(MapPolygons, A_Ring_Is_A_Polygon) {
  const auto polygons = Polygons_Within({kLower});
  EXPECT_EQ(Areas_Of(polygons), std::vector<long double>{4});
  EXPECT_TRUE(polygons[0].holes.empty());
}

TEST(MapPolygons, A_Ring_That_Touches_Itself_Is_Two_Polygons) {
  EXPECT_EQ(
      Areas_Of(Polygons_Within({{{0, 0}, {2, 0}, {2, 2}, {4, 2}, {4, 4}, {2, 4}, {2, 2}, {0, 2}}})),
      (std::vector<long double>{4, 4}));
  EXPECT_EQ(Areas_Of(Polygons_Within({kLower, kUpper})), (std::vector<long double>{4, 4}));
}

TEST(MapPolygons, A_Bay_That_Closes_In_A_Position_Is_A_Hole) {
  // A square of side 6 whose outline goes, at the middle of its left side, round a diamond of
  // area 8.
  const auto polygons =
      Polygons_Within({{{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 3}, {2, 5}, {4, 3}, {2, 1}, {0, 3}}});
  ASSERT_EQ(Areas_Of(polygons), std::vector<long double>{36});
  ASSERT_EQ(polygons[0].holes.size(), 1U);
  EXPECT_EQ(Twice_Area_Of(polygons[0].holes[0]), -2 * 8);
}

TEST(MapPolygons, A_Hole_That_Touches_The_Outline_Twice_Cuts_The_Polygon) {
  // A diamond in a square of side 4, at the middle of its left and right sides.
  const auto polygons = Polygons_Within(
      {{{0, 0}, {4, 0}, {4, 2}, {4, 4}, {0, 4}, {0, 2}}, {{0, 2}, {2, 3}, {4, 2}, {2, 1}}});
  // The square's 16 without the diamond's 4, half of it below and half above.
  EXPECT_EQ(Areas_Of(polygons), (std::vector<long double>{6, 6}));
  for (const Map_Polygon& polygon : polygons) EXPECT_TRUE(polygon.holes.empty());
}

const Map_Outline kSix = {{0, 0}, {6, 0}, {6, 6}, {0, 6}};

TEST(MapPolygons, A_Hole_Touches_A_Side_Between_Its_Corners) {
  const auto polygons = Polygons_Within({kSix, {{0, 3}, {2, 4}, {2, 2}}});
  ASSERT_EQ(Areas_Of(polygons), std::vector<long double>{36});
  // The side goes through the hole's corner.
  EXPECT_EQ(polygons[0].outer.size(), 5U);
  ASSERT_EQ(polygons[0].holes.size(), 1U);
  EXPECT_EQ(Twice_Area_Of(polygons[0].holes[0]), -2 * 2);
}

TEST(MapPolygons, A_Hole_With_Two_Corners_On_A_Side_Is_A_Bay) {
  const auto polygons = Polygons_Within({kSix, {{0, 2}, {0, 4}, {2, 4}, {2, 2}}});
  ASSERT_EQ(Areas_Of(polygons), std::vector<long double>{36 - 4});
  EXPECT_TRUE(polygons[0].holes.empty());
}

TEST(MapPolygons, A_Hole_With_Half_Of_Its_Corners_On_The_Outline_Is_In_It) {
  // The outline goes round a bay that closes in (2, 3), and both sides of the hole's corner there
  // belong to it.
  const auto polygons = Polygons_Within({{{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 4}, {2, 3}, {0, 2}},
                                         {{2, 3}, {3, 4}, {4, 3}, {3, 2}},
                                         {{4, 3}, {5, 4}, {5, 2}}});
  // The bay is a triangle of 2 by 2 / 2.
  ASSERT_EQ(Areas_Of(polygons), std::vector<long double>{36 - 2});
  EXPECT_EQ(polygons[0].holes.size(), 2U);
}

TEST(MapPolygons, An_Island_That_Touches_All_Sides_Of_A_Hole_Does_Not_Take_It) {
  const auto polygons = Polygons_Within({{{0, 0}, {10, 0}, {10, 10}, {0, 10}},
                                         {{2, 2}, {2, 8}, {8, 8}, {8, 2}},
                                         {{5, 2}, {8, 5}, {5, 8}, {2, 5}}});
  ASSERT_EQ(Areas_Of(polygons), (std::vector<long double>{18, 100}));
  const auto& outer = polygons[polygons[0].holes.empty() ? 1 : 0];
  EXPECT_EQ(Twice_Area_Of(outer.outer), 2 * 100);
  ASSERT_EQ(outer.holes.size(), 1U);
  EXPECT_EQ(Twice_Area_Of(outer.holes[0]), -2 * 36);
}

// The slope ends at a height of 4.6, rounded 5; at 7 it is 3.22 high, and rounded at both ends it
// would be 3.5. The triangle above it stands there at 3.3, rounded 3: the slope goes through that.
TEST(MapPolygons, Rounding_Takes_No_Corner_Behind_Another_Line) {
  const auto polygons = Polygons_Within({{{0, 0}, {10, 0}, {10, 4.6}}, {{7, 3.3}, {8, 9}, {6, 9}}});
  // Twice the areas: 10 x 5 without the triangle of (0, 0), (10, 5) and (7, 3); and 2 x 6.
  EXPECT_EQ(Areas_Of(polygons), (std::vector<long double>{6, (50 - 5) / 2.0L}));
}

TEST(MapPolygons, Half_A_Step_Rounds_Up_On_Both_Sides_Of_Zero) {
  EXPECT_EQ(Rounded_Step({0.5, -0.5}), (Map_Step{1, 0}));
  EXPECT_EQ(Rounded_Step({1.49, -1.51}), (Map_Step{1, -2}));
}

TEST(MapPolygons, What_Has_No_Area_Is_None) {
  EXPECT_TRUE(Polygons_Within({}).empty());
  EXPECT_TRUE(Polygons_Within({{{0, 0}}}).empty());
  EXPECT_TRUE(Polygons_Within({{{0, 0}, {2, 0}}}).empty());
  EXPECT_TRUE(Polygons_Within({{{0, 0}, {2, 0}, {4, 0}, {2, 0}}}).empty());
  // A spike on a square.
  EXPECT_EQ(Areas_Of(Polygons_Within({{{0, 0}, {2, 0}, {3, 0}, {2, 0}, {2, 2}, {0, 2}}})),
            std::vector<long double>{4});
}

}  // namespace
}  // namespace barvon
