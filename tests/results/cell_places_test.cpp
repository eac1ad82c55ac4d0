#include "results/cell_places.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace barvon::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

Cell_Values Two_By_Three() {
  return {.rows = 2, .columns = 3, .spacing_x = 10, .spacing_z = 20, .values = {0, 4, 8, 2, 6, 16}};
}

TEST(CellPlaces, Cells_Reach_Half_A_Spacing_Around_Their_Grid_Points) {
  const Result_Area reach = Reach_Of(Two_By_Three());
  EXPECT_EQ(reach.top, -5);
  EXPECT_EQ(reach.bottom, 15);
  EXPECT_EQ(reach.left, -10);
  EXPECT_EQ(reach.right, 50);
}

TEST(CellPlaces, Between_Centres_Values_Are_Linear_And_Beyond_Them_Flat) {
  const Cell_Values cells = Two_By_Three();
  EXPECT_EQ(Value_At(cells, {0, 0}), 0);
  EXPECT_EQ(Value_At(cells, {10, 40}), 16);
  EXPECT_EQ(Value_At(cells, {0, 5}), 1);        // a quarter of 0 to 4
  EXPECT_EQ(Value_At(cells, {5, 20}), 5);       // half of 4 to 6
  EXPECT_EQ(Value_At(cells, {5, 30}), 8.5);     // the mean of 4, 8, 6 and 16
  EXPECT_EQ(Value_At(cells, {2.5, 30}), 7.25);  // 6 to 11, a quarter of the way
  EXPECT_EQ(Value_At(cells, {-5, -10}), 0);
  EXPECT_EQ(Value_At(cells, {15, 50}), 16);
  EXPECT_EQ(Value_At(cells, {-4, 10}), 2);
  EXPECT_TRUE(std::isnan(Value_At(cells, {-5.1, 0})));
  EXPECT_TRUE(std::isnan(Value_At(cells, {0, 50.1})));
  EXPECT_TRUE(std::isnan(Value_At(cells, {kNan, 0})));
}

TEST(CellPlaces, Beside_A_Cell_Without_A_Value_Each_Cell_Decides_Alone) {
  Cell_Values cells = Two_By_Three();
  cells.values[1] = kNan;
  EXPECT_EQ(Value_At(cells, {0, 9}), 0);
  EXPECT_TRUE(std::isnan(Value_At(cells, {0, 11})));
  EXPECT_EQ(Value_At(cells, {9, 20}), 6);
}

TEST(CellPlaces, One_Cell_Has_One_Value_Everywhere) {
  const Cell_Values one{.rows = 1, .columns = 1, .spacing_x = 10, .spacing_z = 10, .values = {7}};
  EXPECT_EQ(Value_At(one, {-5, 5}), 7);
  EXPECT_EQ(Value_At(one, {0, 0}), 7);
}

TEST(CellPlaces, Volume_And_Area_Go_By_Whole_Cells) {
  Cell_Values cells = Two_By_Three();
  EXPECT_EQ(Volume_Of(cells), 36 * 200);
  EXPECT_EQ(Cell_Area_Above(cells, 4), 3 * 200);  // 8, 6 and 16
  EXPECT_EQ(Cell_Area_Above(cells, 16), 0);
  cells.values[5] = kNan;
  EXPECT_EQ(Volume_Of(cells), 20 * 200);
  EXPECT_EQ(Cell_Area_Above(cells, 4), 2 * 200);
}

TEST(CellPlaces, The_First_Of_The_Largest_Cells_Is_Told) {
  Cell_Values cells = Two_By_Three();
  cells.values = {kNan, 4, 8, 8, 1, 2};
  const Cell_Place largest = Largest_Cell(cells);
  EXPECT_EQ(largest.row, 1);
  EXPECT_EQ(largest.column, 3);
  const Result_Point centre = Centre_Of(cells, largest);
  EXPECT_EQ(centre.x, 0);
  EXPECT_EQ(centre.z, 40);
  cells.values.assign(6, kNan);
  EXPECT_EQ(Largest_Cell(cells).row, 0);
}

TEST(CellPlaces, What_Is_No_Whole_Grid_Is_Told) {
  Cell_Values cells = Two_By_Three();
  EXPECT_TRUE(Is_Whole(cells));
  cells.values.pop_back();
  EXPECT_FALSE(Is_Whole(cells));
  EXPECT_TRUE(std::isnan(Value_At(cells, {0, 0})));
  cells = Two_By_Three();
  cells.spacing_z = 0;
  EXPECT_FALSE(Is_Whole(cells));
  EXPECT_FALSE(Is_Whole({}));
}

}  // namespace
}  // namespace barvon::testing
