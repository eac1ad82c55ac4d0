#include "results/map_polygons.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace barvon {
namespace {

/// Two squares of side 2, corner to corner at (2, 2).
const Map_Ring kLower = {{0, 0}, {2, 0}, {2, 2}, {0, 2}};
const Map_Ring kUpper = {{2, 2}, {4, 2}, {4, 4}, {2, 4}};

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
