#include "pictures/drawings/velocity_drawing.h"

#include <gtest/gtest.h>

#include <limits>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// One row of three: 3 down and 4 right, still, 2 up.
Velocity_Grid Small_Grid() { return {1, 3, {3, 0, -2}, {4, 0, 0}, 200, 300}; }

Velocity_Grid Even_Grid(int rows, int columns) {
  const std::size_t count = static_cast<std::size_t>(rows) * columns;
  return {rows, columns, std::vector<double>(count, 1), std::vector<double>(count, 0)};
}

TEST(VelocityDrawing, Speeds_Are_The_Length_Of_Both_Components) {
  const Velocity_Drawing drawing = Draw_Velocities(Small_Grid());
  EXPECT_EQ(drawing.speeds, (std::vector<double>{5, 0, 2}));
  EXPECT_EQ(drawing.fastest, 5);
  EXPECT_EQ(drawing.reference, 5);
  EXPECT_EQ(drawing.scale.low, 0);
  EXPECT_EQ(drawing.scale.high, 5);
  EXPECT_EQ(drawing.description,
            "Currents over a grid of 1 row and 3 columns. Fastest 5 ft/s down and right at Row 1, "
            "Col 1, slowest 0 ft/s.");
}

// The squares of such components are 0.
TEST(VelocityDrawing, A_Speed_Below_What_Squares_Can_Hold_Is_Still_One) {
  const Velocity_Drawing drawing = Draw_Velocities({1, 2, {3e-200, 0}, {4e-200, 0}, 200, 300});
  EXPECT_DOUBLE_EQ(drawing.fastest, 5e-200);
  EXPECT_EQ(drawing.slowest, 0);
}

// Parts of the fastest speed, 5: (4, 3) is (0.8, 0.6), 2 up is -0.4 down.
TEST(VelocityDrawing, An_Arrow_Goes_Right_With_Z_And_Down_With_X) {
  const Velocity_Grid grid = Small_Grid();
  const auto arrows = Arrows_Of(Draw_Velocities(grid), 1, 1);
  ASSERT_EQ(arrows.size(), 3u);
  EXPECT_DOUBLE_EQ(arrows[0].right, 0.8);
  EXPECT_DOUBLE_EQ(arrows[0].down, 0.6);
  EXPECT_DOUBLE_EQ(arrows[2].right, 0);
  EXPECT_DOUBLE_EQ(arrows[2].down, -0.4);
  EXPECT_EQ(arrows[2].column, 3);
}

// 96 points on 400 pixels, 20 pixels apart: every 4.8, so every 5th.
TEST(VelocityDrawing, A_Large_Grid_Has_An_Arrow_Every_Few_Points) {
  EXPECT_EQ(Arrow_Stride(96, 400, 20), 5);
  EXPECT_EQ(Arrow_Stride(8, 400, 20), 1);
  EXPECT_EQ(Arrow_Stride(8, 1, 20), 8);
  EXPECT_EQ(Arrow_Stride(8, 0, 20), 1);
  // In blocks of 5 the middle is the third: 3, 8, ... 93, that is 19 of them.
  const Velocity_Grid grid = Even_Grid(96, 96);
  const auto arrows = Arrows_Of(Draw_Velocities(grid), 5, 5);
  ASSERT_EQ(arrows.size(), 19u * 19u);
  EXPECT_EQ(arrows.front().row, 3);
  EXPECT_EQ(arrows.front().column, 3);
  EXPECT_EQ(arrows.back().row, 93);
}

TEST(VelocityDrawing, Points_Without_A_Velocity_Have_No_Arrow) {
  Velocity_Grid grid = Small_Grid();
  grid.x[0] = kNan;
  grid.z[1] = 1e300;
  const Velocity_Drawing drawing = Draw_Velocities(grid);
  EXPECT_EQ(drawing.left_out, 2);
  EXPECT_EQ(drawing.fastest, 2);
  EXPECT_EQ(drawing.note, "2 points without a velocity.");
  EXPECT_EQ(Arrows_Of(drawing, 1, 1).size(), 1u);
  EXPECT_EQ(Velocity_Cell_Text(grid, 1, 1),
            "Row 1, Col 1: no velocity\nX 0 ft from the top, Z 0 ft from the left");
}

TEST(VelocityDrawing, Still_Water_Has_A_Scale_And_No_Arrows) {
  Velocity_Grid grid = Even_Grid(8, 8);
  grid.x.assign(64, 0);
  const Velocity_Drawing drawing = Draw_Velocities(grid);
  EXPECT_EQ(drawing.note, "Still water everywhere.");
  EXPECT_EQ(drawing.reference, 0);
  EXPECT_LT(drawing.scale.low, drawing.scale.high);
  EXPECT_TRUE(Arrows_Of(drawing, 1, 1).empty());
}

TEST(VelocityDrawing, A_Point_Tells_Velocities_Speed_And_Heading) {
  EXPECT_EQ(Velocity_Cell_Text(Small_Grid(), 1, 3),
            "Row 1, Col 3: 2 ft/s up\nX -2 ft/s, Z 0 ft/s\nX 0 ft from the top, Z 600 ft from the "
            "left");
  EXPECT_EQ(Velocity_Cell_Text(Small_Grid(), 1, 4), "");
  EXPECT_EQ(Heading_Text(0, -1), "left");
  EXPECT_EQ(Heading_Text(-1, 1), "up and right");
  EXPECT_EQ(Heading_Text(0, 0), "nowhere");
  EXPECT_EQ(Heading_Text(1, 0.001), "down");
}

TEST(VelocityDrawing, A_Grid_Of_The_Wrong_Size_Is_An_Empty_One) {
  Velocity_Grid grid = Small_Grid();
  grid.z.pop_back();
  const Velocity_Drawing drawing = Draw_Velocities(grid);
  EXPECT_EQ(drawing.rows, 0);
  EXPECT_EQ(drawing.description, "No velocity to show.");
  EXPECT_EQ(Velocity_Cell_Text(grid, 1, 1), "");
  EXPECT_TRUE(Arrows_Of(drawing, 1, 1).empty());
}

}  // namespace
}  // namespace barvon
