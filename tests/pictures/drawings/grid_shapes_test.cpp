#include "pictures/drawings/grid_shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "pictures/drawings/tidal_shapes.h"

namespace barvon {
namespace {

constexpr Canvas kCanvas{600, 400, 12};
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

bool Says(const Shape_List& picture, const std::string& text) {
  return std::ranges::any_of(picture.shapes, [&](const Shape& shape) {
    const auto* found = std::get_if<Text_Shape>(&shape);
    return found != nullptr && found->text == text;
  });
}

template <class Kind>
int Count(const Shape_List& picture) {
  return static_cast<int>(std::ranges::count_if(
      picture.shapes, [](const Shape& shape) { return std::holds_alternative<Kind>(shape); }));
}

bool All_On_Canvas(const Shape_List& picture) {
  const auto inside = [&](const Place& place) {
    return place.x >= 0 && place.y >= 0 && place.x <= picture.width && place.y <= picture.height;
  };
  return std::ranges::all_of(picture.shapes, [&](const Shape& shape) {
    if (const auto* text = std::get_if<Text_Shape>(&shape)) return inside(text->place);
    if (const auto* area = std::get_if<Polygon_Shape>(&shape)) {
      return std::ranges::all_of(area->points, inside);
    }
    return true;
  });
}

TEST(GridShapes, Equal_Neighbours_Of_A_Row_Are_One_Shape) {
  // Two rows of three; the scale of the colours is forty shapes and its edge.
  const Shape_List picture = Depth_Shapes(Draw_Depths({2, 3, {10, 10, 10, 10, 20, 20}}), kCanvas);
  EXPECT_EQ(Count<Polygon_Shape>(picture), 1 + 2 + 40 + 1);
  EXPECT_EQ(picture.title, "Map of the water depths");
  EXPECT_EQ(picture.width, 600);
  EXPECT_TRUE(Says(picture, "Depth (ft)"));
  EXPECT_TRUE(All_On_Canvas(picture));
}

TEST(GridShapes, A_Cell_Without_A_Depth_Is_A_Gap) {
  const Shape_List picture = Depth_Shapes(Draw_Depths({1, 3, {10, kNan, 10}}), kCanvas);
  EXPECT_EQ(Count<Polygon_Shape>(picture), 2 + 40 + 1);
}

TEST(GridShapes, A_Grid_Without_A_Value_Is_No_Picture) {
  EXPECT_TRUE(Depth_Shapes(Draw_Depths({}), kCanvas).shapes.empty());
  EXPECT_TRUE(Depth_Shapes(Draw_Depths({1, 1, {kNan}}), kCanvas).shapes.empty());
  EXPECT_TRUE(Velocity_Shapes(Draw_Velocities({}), kCanvas).shapes.empty());
}

TEST(GridShapes, An_Arrow_Points_Where_The_Current_Goes) {
  // Down and twice as fast to the right.
  const Shape_List picture = Velocity_Shapes(Draw_Velocities({1, 1, {1}, {2}, 0, 0}), kCanvas);
  const auto arrow = std::ranges::find_if(picture.shapes, [](const Shape& shape) {
    const auto* line = std::get_if<Line_Shape>(&shape);
    return line != nullptr && line->stroke.width == 1.2;
  });
  ASSERT_NE(arrow, picture.shapes.end());
  const auto& points = std::get<Line_Shape>(*arrow).points;
  EXPECT_NEAR(points[1].x - points[0].x, 2 * (points[1].y - points[0].y), 1e-9);
  EXPECT_GT(points[1].x, points[0].x);
  // The speed is the root of 5, 2.236 ft/s.
  EXPECT_TRUE(Says(picture, "The longest arrow stands for 2.24 ft/s."));
  EXPECT_TRUE(All_On_Canvas(picture));
}

TEST(GridShapes, Still_Water_Has_Colours_And_No_Arrows) {
  const Shape_List picture =
      Velocity_Shapes(Draw_Velocities({1, 2, {0, 0}, {0, 0}, 0, 0}), kCanvas);
  EXPECT_EQ(Count<Polygon_Shape>(picture), 1 + 40 + 1);
}

TEST(TidalShapes, Show_Both_Curves_The_Interval_And_Its_Averages) {
  const Shape_List picture =
      Tidal_Shapes(Draw_Tide({{0, 1, 0}, {0.5, 0.5, 0.5}, 0, 1, 0.75, 0.5}), kCanvas);
  EXPECT_EQ(picture.title, "Velocity over the tidal pattern");
  for (const char* entry : {"X velocity", "Z velocity", "Simulated"}) {
    EXPECT_TRUE(Says(picture, entry)) << entry;
  }
  const auto dashed = std::ranges::count_if(picture.shapes, [](const Shape& shape) {
    const auto* line = std::get_if<Line_Shape>(&shape);
    return line != nullptr && line->stroke.dash == Dash::dashed;
  });
  EXPECT_EQ(dashed, 2);
  EXPECT_TRUE(Says(picture,
                   "Dashed: the averages of the simulated interval, X 0.75 ft/s and Z 0.5"
                   " ft/s."));
}

TEST(TidalShapes, Without_An_Interval_There_Is_No_Band) {
  const Shape_List picture = Tidal_Shapes(Draw_Tide({{0, 1}, {0, 1}, 0, 0}), kCanvas);
  EXPECT_FALSE(Says(picture, "Simulated"));
}

}  // namespace
}  // namespace barvon
