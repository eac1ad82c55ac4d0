#include "pictures/drawings/depth_drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// Two rows of three columns:   10 20 30
//                              40 50 65
Depth_Grid Small_Grid() { return {2, 3, {10, 20, 30, 40, 50, 65}}; }

TEST(DepthDrawing, Tells_Range_And_Where_It_Is) {
  const Depth_Drawing drawing = Draw_Depths(Small_Grid());
  EXPECT_EQ(drawing.depths, Small_Grid().depths);
  EXPECT_EQ(drawing.range->low, 10);
  EXPECT_EQ(drawing.range->high, 65);
  EXPECT_FALSE(drawing.uniform);
  // 55 ft / 5 = 11, steps of 20.
  EXPECT_EQ(drawing.scale.low, 0);
  EXPECT_EQ(drawing.scale.high, 80);
  EXPECT_EQ(drawing.description,
            "Water depth over a grid of 2 rows and 3 columns: from 10.00 ft (Row 1, Col 1) to "
            "65.00 ft (Row 2, Col 3).");
}

TEST(DepthDrawing, A_Cell_Tells_Its_Place_And_Depth) {
  EXPECT_EQ(Depth_Cell_Text(Small_Grid(), 2, 3), "Row 2, Col 3: 65.00 ft");
  EXPECT_EQ(Depth_Cell_Text(Small_Grid(), 1, 2), "Row 1, Col 2: 20.00 ft");
  Depth_Grid empty_cell = Small_Grid();
  empty_cell.depths[1] = kNan;
  EXPECT_EQ(Depth_Cell_Text(empty_cell, 1, 2), "Row 1, Col 2: no depth");
  for (const auto& [row, column] : {std::pair(0, 1), {3, 1}, {1, 0}, {1, 4}}) {
    EXPECT_EQ(Depth_Cell_Text(Small_Grid(), row, column), "");
  }
}

TEST(DepthDrawing, A_Uniform_Grid_Says_So_And_Has_A_Scale) {
  const Depth_Drawing drawing = Draw_Depths({2, 2, {30, 30, 30, 30}});
  EXPECT_TRUE(drawing.uniform);
  EXPECT_LT(drawing.scale.low, 30);
  EXPECT_GT(drawing.scale.high, 30);
  EXPECT_EQ(drawing.note, "30.00 ft everywhere.");
  EXPECT_EQ(drawing.description,
            "Water depth over a grid of 2 rows and 2 columns. 30.00 ft everywhere.");
}

TEST(DepthDrawing, Cells_Without_A_Depth_Are_Left_Out_And_Counted) {
  const Depth_Drawing drawing = Draw_Depths({1, 4, {10, kNan, 1e300, 20}});
  EXPECT_EQ(drawing.left_out, 2);
  EXPECT_EQ(drawing.range->high, 20);
  EXPECT_TRUE(std::isnan(drawing.depths[2]));
  EXPECT_EQ(drawing.note, "2 cells without a depth.");
  EXPECT_FALSE(Draw_Depths({1, 1, {kNan}}).range);
}

TEST(DepthDrawing, A_Grid_Of_The_Wrong_Size_Is_An_Empty_One) {
  for (const Depth_Grid& grid :
       {Depth_Grid{}, Depth_Grid{2, 2, {1, 2, 3}}, Depth_Grid{-1, -1, {1}}}) {
    const Depth_Drawing drawing = Draw_Depths(grid);
    EXPECT_EQ(drawing.rows, 0);
    EXPECT_TRUE(drawing.depths.empty());
    EXPECT_EQ(drawing.description, "No depth to show.");
    EXPECT_EQ(Depth_Cell_Text(grid, 1, 1), "");
  }
}

}  // namespace
}  // namespace barvon
