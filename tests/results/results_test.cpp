#include "results/results.h"

#include <gtest/gtest.h>

#include <vector>

namespace barvon::testing {
namespace {

TEST(Results, A_Window_Of_A_Map_Lies_In_Its_Place_And_The_Base_Around_It) {
  const Result_Grid grid{.rows = 3, .columns = 4, .spacing_x = 50, .spacing_z = 20};
  Result_Map map;
  map.base = 0.5;
  map.top = 2;
  map.bottom = 3;
  map.left = 2;
  map.right = 3;
  map.values = {1, 2, 3, 4};
  const Cell_Values whole = Whole_Grid(grid, map);
  EXPECT_EQ(whole.values,
            (std::vector<double>{0.5, 0.5, 0.5, 0.5, 0.5, 1, 2, 0.5, 0.5, 3, 4, 0.5}));
  EXPECT_EQ(whole.At(3, 2), 3);
  EXPECT_EQ(whole.spacing_x, 50);
  EXPECT_EQ(whole.spacing_z, 20);
}

TEST(Results, An_Empty_Map_Is_The_Base_Everywhere) {
  Result_Map map;
  map.base = 2;
  const Cell_Values whole = Whole_Grid({.rows = 2, .columns = 2}, map);
  EXPECT_EQ(whole.values, (std::vector<double>{2, 2, 2, 2}));
}

}  // namespace
}  // namespace barvon::testing
