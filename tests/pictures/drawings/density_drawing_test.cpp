#include "pictures/drawings/density_drawing.h"

#include <gtest/gtest.h>

#include <limits>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(DensityDrawing, Draws_Every_Point_With_Its_Numbers) {
  const Density_Drawing drawing = Draw_Density({{0, 1}, {40, 1.0243}}, 45);
  ASSERT_EQ(drawing.points.size(), 2u);
  EXPECT_EQ(drawing.points[1].depth, 40);
  EXPECT_EQ(drawing.points[1].density, 1.0243);
  EXPECT_EQ(drawing.bottom, 45);
  // 45 ft in steps of 10, 0.0243 in steps of 0.005.
  EXPECT_EQ(drawing.depth.low, 0);
  EXPECT_EQ(drawing.depth.high, 50);
  EXPECT_DOUBLE_EQ(drawing.density.low, 1);
  EXPECT_DOUBLE_EQ(drawing.density.high, 1.025);
  EXPECT_EQ(drawing.note, "");
  EXPECT_EQ(drawing.description,
            "2 points: 1.0000 g/cc at 0 ft, 1.0243 g/cc at 40 ft. Bottom at 45 ft.");
}

TEST(DensityDrawing, The_Surface_Is_Always_In_The_Picture) {
  const Density_Drawing drawing = Draw_Density({{20, 1}, {40, 1.01}}, 0);
  EXPECT_EQ(drawing.depth.low, 0);
  EXPECT_FALSE(drawing.bottom);
}

TEST(DensityDrawing, A_Point_With_An_Empty_Cell_Is_Left_Out_And_Counted) {
  const Density_Drawing drawing =
      Draw_Density({{0, 1}, {kNan, 1.01}, {20, kNan}, {1e300, 1}, {30, 1.02}}, kNan);
  EXPECT_EQ(drawing.points.size(), 2u);
  EXPECT_EQ(drawing.left_out, 3);
  EXPECT_EQ(drawing.note, "3 points not complete.");
  EXPECT_FALSE(drawing.bottom);
}

TEST(DensityDrawing, Points_Out_Of_Order_Keep_Their_Order_And_Are_Told) {
  const Density_Drawing drawing = Draw_Density({{0, 1}, {30, 1.02}, {20, 1.01}}, 0);
  EXPECT_FALSE(drawing.depths_increase);
  EXPECT_EQ(drawing.points[2].depth, 20);
  EXPECT_EQ(drawing.note, "Depths do not increase from point to point.");
  EXPECT_FALSE(Draw_Density({{0, 1}, {0, 1.02}}, 0).depths_increase);
  EXPECT_TRUE(Draw_Density({{0, 1}, {1, 1}}, 0).depths_increase);
}

// One point of 1 g/cc: 0.999 to 1.001, the point in the middle.
TEST(DensityDrawing, One_Point_And_None_Have_Axes_Too) {
  const Density_Drawing one = Draw_Density({{0, 1}}, 0);
  EXPECT_NEAR((one.density.low + one.density.high) / 2, 1, 1e-12);
  EXPECT_LT(one.density.low, one.density.high);
  EXPECT_LT(one.depth.low, one.depth.high);
  const Density_Drawing none = Draw_Density({}, 0);
  EXPECT_LT(none.density.low, none.density.high);
  EXPECT_EQ(none.note, "No point has a depth and a density yet.");
}

}  // namespace
}  // namespace barvon
